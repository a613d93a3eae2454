#include "module/parts/meanwhile/RowMerge.h"

#include "module/base/field_text.h"

#include <utility>

namespace tellurix::parts {

void RowMerge::field(KeyedRow& row, std::string_view field, const base::Value& now, const std::string& name,
                     const std::function<std::string(const base::Value&)>& text) {
    if (base::sameValue(row.asRead(field), now)) return;
    if (!row.touched(field)) {
        std::string before = text(row.field(field));
        row.refresh(field, now);
        takenOver_.add({.name = name,
                        .before = std::move(before),
                        .now = text(now),
                        .mark = [&rows = rows_, key = row.key(), name = std::string{field}] {
                            rows.markFromOthers(key, name);
                        }});
        return;
    }
    const std::string mine = text(row.field(field));
    const std::string theirs = text(now);
    if (mine == theirs) {
        row.rebase(field, now);
    } else {
        conflicts_.push_back({&row, std::string{field}, now, {name, mine, theirs}});
    }
}

bool RowMerge::settle(const std::function<void()>& compare) {
    for (;;) {
        compare();
        if (settled()) return true;
        if (!ask()) return false;
    }
}

bool RowMerge::ask() {
    std::vector<Conflict> shown;
    for (const InConflict& conflict : conflicts_)
        shown.push_back(conflict.shown);
    const auto answer = ConflictQuestion{services_, session_}.ask(shown);
    if (answer == ConflictQuestion::Answer::back) return false;
    for (InConflict& conflict : std::exchange(conflicts_, {})) {
        if (answer == ConflictQuestion::Answer::theirs) {
            conflict.row->refresh(conflict.field, std::move(conflict.now));
        } else {
            conflict.row->rebase(conflict.field, std::move(conflict.now));
        }
    }
    return true;
}

} // namespace tellurix::parts
