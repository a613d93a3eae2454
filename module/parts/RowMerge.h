#pragma once

#include "module/host/services.h"
#include "module/parts/ConflictQuestion.h"
#include "module/parts/KeyedRow.h"

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
    RowMerge(host::HostServices& services, const host::TlxVar& session)
        : services_(services), session_(session) {}

    /// Brings one field together.
    /// @param now what the database has in it
    /// @param name what the user knows it by
    /// @param text of a value, exactly enough for equal texts to be equal values
    void field(KeyedRow& row, std::string_view field, const base::Value& now, const std::string& name,
               const std::function<std::string(const base::Value&)>& text);

    /// Whether no field is in conflict.
    bool settled() const { return conflicts_.empty(); }
    /// Asks about those that are, and does what the answer says. The rows have to be read again then.
    /// @return false when the user wants to go back: nothing is to be written
    bool ask();

    /// The fields that came from somebody else, in a sentence; empty for none.
    std::string takenOver() const { return takenOverFromOthers(takenOver_, session_.language); }

private:
    struct InConflict {
        KeyedRow* row;
        std::string field;
        base::Value now;
        Conflict shown;
    };

    host::HostServices& services_;
    const host::TlxVar& session_;
    std::vector<InConflict> conflicts_;
    std::vector<std::string> takenOver_;
};

} // namespace tellurix::parts
