#include "module/logistics/plan/WeekGeneration.h"

#include "module/base/field_text.h"

#include <algorithm>

namespace tellurix::logistics {

WeekGeneration::Plans WeekGeneration::read(base::Connection& connection) const {
    Plans plans;
    for (auto week = connection.open(statements_.plans()); !week->atEnd(); week->moveNext())
        plans[week->integer("ID")] = week->field("PLANMENGE");
    return plans;
}

void WeekGeneration::run(base::Connection& connection, const std::vector<base::IsoWeek>& weeks) {
    for (const base::IsoWeek& week : weeks) {
        if (!connection.open(statements_.findGenerated(week))->atEnd()) continue;
        connection.execute(statements_.insertGenerated(week));
        madeWeeks_.push_back(week);
    }
    if (weeks.empty()) return;
    before_ = read(connection);
    connection.execute(statements_.spread(weeks.size()));
}

void WeekGeneration::finish(std::span<parts::KeyedRow> weeks) {
    for (parts::KeyedRow& week : weeks) {
        given_[week.key()] = week.field("PLANMENGE");
        const bool made = std::ranges::any_of(madeWeeks_, [&](const base::IsoWeek& some) {
            return some.year == week.integer("JAHR") && some.week == week.integer("WOCHE");
        });
        if (made) made_.insert(week.key());
    }
}

std::size_t WeekGeneration::replaced() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        before_, [](const auto& plan) { return !std::holds_alternative<base::Null>(plan.second); }));
}

std::size_t WeekGeneration::undo(base::Connection& connection) const {
    for (const auto& [key, given] : given_) {
        const auto before = before_.find(key);
        if (made_.contains(key)) {
            connection.execute(statements_.removePlanned(key, given));
        } else if (before != before_.end() && !base::sameValue(before->second, given)) {
            connection.execute(statements_.replacePlan(key, given, before->second));
        }
    }
    // The server was told not to count what it changes.
    return static_cast<std::size_t>(std::ranges::count_if(read(connection), [this](const auto& week) {
        const auto before = before_.find(week.first);
        return made_.contains(week.first) ||
               (before != before_.end() && !base::sameValue(before->second, week.second));
    }));
}

} // namespace tellurix::logistics
