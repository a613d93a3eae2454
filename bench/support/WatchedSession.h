#pragma once

#include "bench/support/ContractSession.h"
#include "bench/support/ScriptedPage.h"
#include "bench/support/measure.h"
#include "database/tracing/TracingConnection.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::bench {

/// A session on a scripted page that notes when each step of the script began, and what had been sent to
/// the database by then.
class WatchedSession {
public:
    explicit WatchedSession(base::Connection& connection);

    /// @param open opens a screen; the script closes it again
    void play(std::vector<Step> script, const std::function<void(ContractSession&)>& open);

    /// From a step to the session's next wait, with everything drawn that the step changed.
    Clock::duration step(std::size_t index) const {
        return waits_.at(index + 1).time - waits_.at(index).time;
    }
    /// The statements that a step sent.
    std::vector<std::string> statements(std::size_t index) const;

private:
    struct Wait {
        Clock::time_point time;
        std::size_t sent;
    };

    ScriptedPage page_;
    std::vector<Wait> waits_;
    std::vector<std::string> sent_;
    tracing::TracingConnection traced_;
    ContractSession session_;
};

/// Prints how many statements of each name there are.
void listStatements(const std::string& step, const std::vector<std::string>& statements);

} // namespace tellurix::bench
