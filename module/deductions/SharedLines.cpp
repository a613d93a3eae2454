#include "module/deductions/SharedLines.h"

#include "module/base/own_text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tellurix::deductions {

using base::OwnText;
using host::CalculationLine;

namespace {

/// The fields of a line, in the order of the screen; the article has no control of its own.
enum Member : std::size_t { statistic, designation, value, references, subset, article };
constexpr std::size_t memberCount = 6;

void copyMember(std::size_t member, CalculationLine& to, const CalculationLine& from) {
    switch (member) {
    case statistic:
        to.statistic = from.statistic;
        break;
    case designation:
        to.designation = from.designation;
        break;
    case value:
        to.value = from.value;
        break;
    case references:
        to.references = from.references;
        break;
    case subset:
        to.subset = from.subset;
        break;
    default:
        to.article = from.article;
    }
}

} // namespace

void SharedLines::show(const StoredLines& stored) {
    read_ = stored;
    for (std::size_t line = 0; line < shown_.size(); ++line) {
        table_.show(line, stored.lines[line]);
        shown_[line] = table_.read(line);
    }
    shownModel_ = model_ = stored.model;
    takenOver_.clear();
    taken_ = {};
}

std::string SharedLines::text(std::size_t member, const CalculationLine& line) const {
    const auto& statistics = table_.CmbStat.front().items();
    switch (member) {
    case statistic:
        return line.statistic >= 0 && line.statistic < static_cast<int>(statistics.size())
                   ? statistics[static_cast<std::size_t>(line.statistic)].text
                   : std::string{};
    case designation:
        return line.designation;
    case value:
        return line.value.empty() ? "" : table_.amountText(line.value);
    case references:
        return line.references;
    case subset:
        return line.subset;
    default:
        return line.article < 1 ? "" : std::to_string(line.article);
    }
}

std::string SharedLines::text(const CalculationLine& line) const {
    std::string all;
    for (std::size_t member = 0; member < memberCount; ++member) {
        const std::string one = text(member, line);
        if (!one.empty()) all += (all.empty() ? "" : ", ") + one;
    }
    return all;
}

std::string SharedLines::name(std::size_t line) const {
    return base::ownText(OwnText::lineOfNumber, session_.language, {std::to_string(line + 1)});
}

std::string SharedLines::name(std::size_t line, std::size_t member) const {
    return name(line) + ", " +
           (member == article ? base::ownText(OwnText::article, session_.language) : table_.heading(member));
}

ui::Control* SharedLines::controlOf(std::size_t line, std::size_t member) const {
    const std::array<ui::Control*, memberCount> controls{&table_.CmbStat[line],  &table_.TextBez[line],
                                                         &table_.TextWert[line], &table_.txtWert[line],
                                                         &table_.Check1[line],   nullptr};
    return controls[member];
}

bool SharedLines::changed(std::size_t line, std::size_t member, const CalculationLine& present) const {
    const auto* box = ui::as<ui::TextBox>(controlOf(line, member));
    return (box != nullptr && box->touched()) || text(member, present) != text(member, shown_[line]);
}

bool SharedLines::changed(std::size_t line) const {
    const CalculationLine present = table_.read(line);
    for (std::size_t member = 0; member < memberCount; ++member)
        if (changed(line, member, present)) return true;
    return false;
}

void SharedLines::mark() {
    for (std::size_t line = 0; line < LineTable::size; ++line) {
        const CalculationLine present = table_.read(line);
        for (std::size_t member = 0; member < memberCount; ++member) {
            ui::Control* control = controlOf(line, member);
            if (control == nullptr) continue;
            control->setChangedBy(changed(line, member, present)  ? ui::ChangedBy::user
                                  : taken_[line].contains(member) ? ui::ChangedBy::colleague
                                                                  : ui::ChangedBy::nobody);
        }
    }
}

void SharedLines::takeLine(std::size_t line, const CalculationLine& from) {
    for (std::size_t member = 0; member < memberCount; ++member)
        if (text(member, table_.read(line)) != text(member, from)) taken_[line].insert(member);
    table_.show(line, from);
    shown_[line] = table_.read(line);
    read_.lines[line] = from;
}

void SharedLines::takeMember(std::size_t line, std::size_t member, const CalculationLine& from) {
    CalculationLine merged = table_.read(line);
    copyMember(member, merged, from);
    table_.show(line, merged);
    copyMember(member, shown_[line], table_.read(line));
    copyMember(member, read_.lines[line], from);
    taken_[line].insert(member);
}

void SharedLines::compareLine(std::size_t line, const CalculationLine& now,
                              std::vector<InConflict>& conflicts) {
    if (read_.lines[line] == now) return;
    if (!changed(line)) {
        takeLine(line, now);
        takenOver_.add({.name = name(line), .whole = true});
    } else if (text(table_.read(line)) == text(now)) {
        read_.lines[line] = now;
    } else if (read_.lines[line].statistic != now.statistic) {
        conflicts.push_back({line, std::nullopt, {name(line), text(table_.read(line)), text(now)}});
    } else {
        compareMembers(line, now, conflicts);
    }
}

void SharedLines::compareMembers(std::size_t line, const CalculationLine& now,
                                 std::vector<InConflict>& conflicts) {
    // Before anything is shown: showing a line makes all its boxes untouched.
    const CalculationLine present = table_.read(line);
    std::array<bool, memberCount> mine{};
    for (std::size_t member = 0; member < memberCount; ++member)
        mine[member] = changed(line, member, present);
    for (std::size_t member = 0; member < memberCount; ++member) {
        if (text(member, read_.lines[line]) == text(member, now)) continue;
        const std::string had = text(member, table_.read(line));
        if (!mine[member]) {
            takeMember(line, member, now);
            takenOver_.add({.name = name(line, member), .before = had, .now = text(member, now)});
        } else if (had == text(member, now)) {
            copyMember(member, read_.lines[line], now);
        } else {
            conflicts.push_back({line, member, {name(line, member), had, text(member, now)}});
        }
    }
}

void SharedLines::compareModel(const std::string& now, std::vector<InConflict>& conflicts) {
    if (read_.model == now) return;
    if (model_ == shownModel_) {
        const std::string before = std::exchange(model_, now);
        shownModel_ = read_.model = now;
        takenOver_.add({.name = modelName_(), .before = before, .now = now});
    } else if (model_ == now) {
        read_.model = now;
    } else {
        conflicts.push_back({std::nullopt, std::nullopt, {modelName_(), model_, now}});
    }
}

std::vector<SharedLines::InConflict> SharedLines::compare(const StoredLines& now) {
    std::vector<InConflict> conflicts;
    compareModel(now.model, conflicts);
    for (std::size_t line = 0; line < now.lines.size(); ++line)
        compareLine(line, now.lines[line], conflicts);
    return conflicts;
}

void SharedLines::answer(const InConflict& conflict, const StoredLines& now, bool theirs) {
    if (!conflict.line) {
        read_.model = now.model;
        if (theirs) model_ = shownModel_ = now.model;
        return;
    }
    const std::size_t line = *conflict.line;
    const CalculationLine& from = now.lines[line];
    if (theirs) {
        conflict.member ? takeMember(line, *conflict.member, from) : takeLine(line, from);
    } else if (conflict.member) {
        copyMember(*conflict.member, read_.lines[line], from);
    } else {
        read_.lines[line] = from;
    }
}

bool SharedLines::settle(const std::function<StoredLines()>& read) {
    while (true) {
        const StoredLines now = read();
        const std::vector<InConflict> conflicts = compare(now);
        if (conflicts.empty()) return true;
        std::vector<parts::Conflict> shown;
        for (const InConflict& conflict : conflicts)
            shown.push_back(conflict.shown);
        const auto answered = parts::ConflictQuestion{services_, session_}.ask(shown);
        if (answered == parts::ConflictQuestion::Answer::back) return false;
        for (const InConflict& conflict : conflicts)
            answer(conflict, now, answered == parts::ConflictQuestion::Answer::theirs);
    }
}

} // namespace tellurix::deductions
