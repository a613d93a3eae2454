#include "bench/support/WatchedSession.h"

#include "bench/support/report.h"
#include "bench/support/statement_name.h"

#include <algorithm>
#include <iostream>
#include <utility>

namespace tellurix::bench {

WatchedSession::WatchedSession(base::Connection& connection)
    : traced_(connection, [this](const tracing::Statement& statement) { sent_.push_back(statement.text); }),
      session_(traced_, page_) {
    page_.onWait = [this] { waits_.push_back({Clock::now(), sent_.size()}); };
}

void WatchedSession::play(std::vector<Step> script, const std::function<void(ContractSession&)>& open) {
    waits_.clear();
    sent_.clear();
    page_.play(std::move(script));
    open(session_);
}

std::vector<std::string> WatchedSession::statements(std::size_t index) const {
    const auto at = [&](std::size_t wait) {
        return sent_.begin() + static_cast<std::ptrdiff_t>(waits_.at(wait).sent);
    };
    return {at(index), at(index + 1)};
}

void listStatements(const std::string& step, const std::vector<std::string>& statements) {
    std::vector<std::pair<std::string, int>> counts; // in the order in which each kind is first sent
    for (const std::string& statement : statements) {
        const std::string name = statementName(statement);
        const auto known = std::ranges::find(counts, name, &std::pair<std::string, int>::first);
        if (known == counts.end())
            counts.emplace_back(name, 1);
        else
            ++known->second;
    }
    heading(std::cout, step + ": " + std::to_string(statements.size()) + " statements");
    Report report{{"statement", "sent"}};
    for (const auto& [name, count] : counts)
        report.add({name, std::to_string(count)});
    report.print(std::cout);
}

} // namespace tellurix::bench
