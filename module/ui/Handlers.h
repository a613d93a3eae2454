#pragma once

#include <concepts>
#include <functional>
#include <type_traits>
#include <utility>
#include <vector>

namespace tellurix::ui {

template <typename Signature>
class Handlers;

/// Who is told of one event of a control, in an order that is said.
///
/// The owner's handler is assigned, and a new one takes the place of the former. Others stand before it
/// or behind it and stay when it is replaced: the one put `before` last is called first, the one put
/// `after` last is called last. A `false` ends the calls, for events that are answered with one.
template <typename Result, typename... Arguments>
class Handlers<Result(Arguments...)> {
public:
    using Handler = std::function<Result(Arguments...)>;

    Handlers() = default;

    template <typename Owner>
    requires(!std::same_as<std::remove_cvref_t<Owner>, Handlers> &&
             std::constructible_from<Handler, Owner>) Handlers&
    operator=(Owner&& owner) {
        owner_ = std::forward<Owner>(owner);
        return *this;
    }

    void before(Handler handler) { before_.insert(before_.begin(), std::move(handler)); }
    void after(Handler handler) { after_.push_back(std::move(handler)); }

    /// Whether anybody is told.
    explicit operator bool() const { return owner_ || !before_.empty() || !after_.empty(); }

    /// @return false when a handler answered so, true when none did or there is none
    Result operator()(Arguments... arguments) const {
        if constexpr (std::is_same_v<Result, bool>) {
            for (const Handler& handler : before_)
                if (!handler(arguments...)) return false;
            if (owner_ && !owner_(arguments...)) return false;
            for (const Handler& handler : after_)
                if (!handler(arguments...)) return false;
            return true;
        } else {
            for (const Handler& handler : before_)
                handler(arguments...);
            if (owner_) owner_(arguments...);
            for (const Handler& handler : after_)
                handler(arguments...);
        }
    }

    /// The handler of that type among those put before or behind the owner's, or null.
    template <typename Kind>
    Kind* find() {
        for (std::vector<Handler>* handlers : {&before_, &after_}) {
            for (Handler& handler : *handlers)
                if (Kind* found = handler.template target<Kind>()) return found;
        }
        return nullptr;
    }

private:
    std::vector<Handler> before_;
    Handler owner_;
    std::vector<Handler> after_;
};

} // namespace tellurix::ui
