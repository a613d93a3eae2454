#pragma once

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
    ProvisionSaving(host::HostServices& services, const host::TlxVar& session,
                    const ProvisionStatements& statements, ProvisionTable& table)
        : services_(services), session_(session), statements_(statements), table_(table) {}

    /// Writes the rows, after they have been read again: what nobody typed is taken over, what both the user
    /// and somebody else have changed is asked about.
    /// @param bar shows how far it has come
    /// @return false when the user wants to go back: nothing is written
    /// @throws ui::RefusedInput before anything is written, when a carrier cannot be
    /// @throws base::Refused when it stopped in the middle, which has been reported: with the helper, and
    ///         how many rows are written. The others stay typed; the next saving writes them.
    bool write(ui::ProgressBar& bar);

    /// The helpers whose report somebody else has deleted meanwhile. Their rows are not written: they stay
    /// typed, and the next saving makes new reports.
    const std::vector<std::string>& gone() const { return gone_; }
    /// What came from somebody else, in a sentence; empty for nothing.
    std::string takenOver() const { return merge_.takenOver(); }
    /// The helpers of whose row the database has not taken everything.
    std::vector<std::string> notTaken();

private:
    /// @return false when the user wants to go back
    bool settle();
    void writeRow(parts::KeyedRow& row);

    host::HostServices& services_;
    const host::TlxVar& session_;
    const ProvisionStatements& statements_;
    ProvisionTable& table_;
    parts::RowMerge merge_{services_, session_};
    std::vector<parts::KeyedRow*> goneRows_;
    std::vector<std::string> gone_;
    std::vector<parts::KeyedRow*> uncertain_; ///< typed rows of which nobody said that they were changed
};

} // namespace tellurix::logistics
