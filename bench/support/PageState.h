#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::bench {

/// What a page knows from the drawings that it was sent: which windows are open, by which numbers
/// their controls go, and which message box waits.
class PageState {
public:
    struct Window {
        int id = 0;
        std::string form;
        std::map<std::string, std::size_t> controls;
    };
    struct Box {
        int id = 0;
        std::string text;
    };

    void apply(const nlohmann::json& drawing);

    const std::vector<Window>& windows() const { return windows_; }
    const std::optional<Box>& box() const { return box_; }
    /// The topmost window.
    /// @throws std::runtime_error when it is another form, or a message box is in front of it
    const Window& top(const std::string& form) const;

private:
    std::vector<Window> windows_; ///< the topmost last
    std::optional<Box> box_;
};

} // namespace tellurix::bench
