#pragma once

#include "module/host/services.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/meanwhile/ConflictQuestion.h"
#include "module/parts/meanwhile/TakenOver.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::parts {

/// Brings rows that a user has typed into together with the same rows as they are now, directly before they
/// are written: what was not typed takes what the database has, what both have changed is asked about.
class RowMerge {
public:
    /// @param session the screen's own copy of the session record
    /// @param takenOver the fields that come from somebody else are added to it
    /// @param rows where the rows are shown
    RowMerge(host::HostServices& services, const host::TlxVar& session, KeyedGrid& rows, TakenOver& takenOver)
        : services_(services), session_(session), rows_(rows), takenOver_(takenOver) {}

    /// Compares until nothing is in conflict: after each answer the rows are read again, because it takes its
    /// time.
    /// @param compare reads the rows and brings their fields together
    /// @return false when the user wants to go back: nothing is to be written
    bool settle(const std::function<void()>& compare);

    /// Brings one field together.
    /// @param now what the database has in it
    /// @param name what the user knows it by
    /// @param text of a value, exactly enough for equal texts to be equal values
    void field(KeyedRow& row, std::string_view field, const base::Value& now, const std::string& name,
               const std::function<std::string(const base::Value&)>& text);

    /// Whether no field is in conflict.
    bool settled() const { return conflicts_.empty(); }

private:
    struct InConflict {
        KeyedRow* row;
        std::string field;
        base::Value now;
        Conflict shown;
    };
    /// Asks about the fields in conflict, and does what the answer says.
    bool ask();

    host::HostServices& services_;
    const host::TlxVar& session_;
    KeyedGrid& rows_;
    std::vector<InConflict> conflicts_;
    TakenOver& takenOver_;
};

} // namespace tellurix::parts
