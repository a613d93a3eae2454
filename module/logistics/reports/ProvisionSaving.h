#pragma once

#include "module/base/Refused.h"
#include "module/host/services.h"
#include "module/logistics/reports/ProvisionTable.h"
#include "module/ui/controls/ProgressBar.h"

#include <string>
#include <vector>

namespace tellurix::logistics {

/// One saving of the provision reports: every row of the table, in its order. There are no transactions;
/// a row is its own from its first statement to its last.
class ProvisionSaving {
public:
    /// @param takenOver the fields that come from somebody else are added to it
    ProvisionSaving(host::HostServices& services, const host::TlxVar& session,
                    const ProvisionStatements& statements, ProvisionTable& table, parts::TakenOver& takenOver)
        : services_(services),
          session_(session),
          statements_(statements),
          table_(table),
          merge_(services, session, table.grid(), takenOver) {}

    /// Writes the rows, after they have been read again: what nobody typed is taken over, what both the user
    /// and somebody else have changed is asked about.
    /// @param bar shows how far it has come
    /// @return false when the user wants to go back: nothing is written
    /// @throws ui::RefusedInput before anything is written, when a carrier cannot be
    /// @throws base::Refused when it stopped in the middle, which has been reported: with the helper, and
    ///         how many rows are written. The others stay typed; the next saving writes them.
    bool write(ui::ProgressBar& bar);

    /// Whether somebody else has deleted reports meanwhile whose rows were typed into. These rows are not
    /// written: they stay typed, and the next saving makes new reports.
    bool someAreGone() const { return !goneRows_.empty(); }
    /// What the user has to know of the saving beside how it ended: whose reports are gone, and of whose row
    /// the database has not taken everything. A saving that stops in the middle tells it itself.
    std::vector<base::Refused::Sentence> besides();

private:
    /// @return false when the user wants to go back
    bool settle();
    void writeRow(parts::KeyedRow& row);
    std::vector<base::Refused::Sentence> besidesFailure();
    std::vector<std::string> notTaken();

    host::HostServices& services_;
    const host::TlxVar& session_;
    const ProvisionStatements& statements_;
    ProvisionTable& table_;
    parts::RowMerge merge_;
    std::vector<parts::KeyedRow*> goneRows_;
    std::vector<parts::KeyedRow*> uncertain_; ///< typed rows of which nobody said that they were changed
};

} // namespace tellurix::logistics
