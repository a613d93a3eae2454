#pragma once

#include <cstddef>
#include <cstring>
#include <memory>
#include <memory_resource>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::embedded {

/// Memory of one parsed text: the syntax tree lives and dies as a whole, so its nodes are never
/// freed one by one and their destructors never run. Everything inside a node that allocates has
/// to take its memory from here too (`List`).
class Arena {
public:
    Arena() = default;
    Arena(const Arena&) = delete;
    Arena& operator=(const Arena&) = delete;

    template <typename Node, typename... Arguments>
    Node* make(Arguments&&... arguments) {
        void* place = memory_.allocate(sizeof(Node), alignof(Node));
        return std::construct_at(static_cast<Node*>(place), std::forward<Arguments>(arguments)...);
    }

    /// Uninitialised room for a text of at most `size` bytes.
    char* textRoom(std::size_t size) { return static_cast<char*>(memory_.allocate(size == 0 ? 1 : size, 1)); }

    std::string_view keep(std::string_view text) {
        char* room = textRoom(text.size());
        std::memcpy(room, text.data(), text.size());
        return {room, text.size()};
    }

    std::pmr::memory_resource* memory() { return &memory_; }

private:
    static constexpr std::size_t firstBlock = 8192;
    std::pmr::monotonic_buffer_resource memory_{firstBlock};
};

/// A list inside a node of the arena.
template <typename Element>
using List = std::pmr::vector<Element>;

} // namespace tellurix::embedded
