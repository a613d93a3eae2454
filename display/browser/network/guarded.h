#pragma once

#include <exception>
#include <iostream>
#include <utility>

namespace tellurix::browser {

/// The boundary of every thread that the network has, and of what it calls: makes a handler of an action.
/// What the action throws is told on standard error, and `failed` gives up what the action was for.
/// Nothing leaves the handler: it would end the process, and with it all other sessions.
/// @param failed must not throw
template <typename Action, typename Failed>
auto guarded(Action action, Failed failed) {
    return [action = std::move(action), failed = std::move(failed)](auto&&... arguments) mutable {
        try {
            action(std::forward<decltype(arguments)>(arguments)...);
        } catch (const std::exception& error) {
            std::cerr << "Connection failed: " << error.what() << '\n';
            failed();
        }
    };
}

template <typename Action>
auto guarded(Action action) {
    return guarded(std::move(action), [] {});
}

} // namespace tellurix::browser
