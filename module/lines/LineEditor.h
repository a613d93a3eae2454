#pragma once

#include "module/base/own_text.h"
#include "module/host/module_state.h"
#include "module/host/services.h"
#include "module/lines/LineList.h"
#include "module/lines/LineSelection.h"
#include "module/parts/EditMode.h"
#include "module/parts/UndoOffers.h"
#include "module/parts/fields/EnteredChanges.h"
#include "module/parts/grids/KeyedGrid.h"
#include "module/parts/meanwhile/SharedRow.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/UpDown.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::lines {

/// The editor of a contract's lines, as price and quantity lines share it.
///
/// A line is looked at in the view state and changed in the edit or new state, in which the list
/// waits. A new line gets its row when something has to be written for it, and its place when it is
/// saved; cancelling, and closing the window, removes the row again. Every line needs a selection
/// value.
class LineEditor : public ui::Form, public host::Screen {
public:
    /// Loads the lines of a contract.
    /// @param shown whether to show the screen, and return when it is closed; otherwise it only
    ///        keeps what it loaded, for the caller to copy
    /// @param line the key of the line to begin with, where it is still there; otherwise with the first
    void Run(const host::TlxVar& session, std::int32_t contract, bool shown,
             std::optional<std::int64_t> line = {});

    const ui::Grid& lines() const { return MSFlexGrid1; }
    /// The key of the line in a row of what was loaded last; nothing where there is none.
    std::optional<std::int64_t> keyInRow(int row) const;

protected:
    using State = parts::EditMode::State;

    LineEditor(host::HostServices& services, const LineKind& kind, std::string name, std::string title);

    /// Reads what the screen needs besides its lines.
    virtual void prepare(bool shown) = 0;
    /// The columns, of fields of the lines' statement.
    virtual std::vector<parts::KeyedGrid::Column> gridColumns() const = 0;
    /// Takes of the line that is shown what has no control of its own.
    virtual void lineShown(base::Recordset& /*line*/) {}
    /// Empties the fields that only this kind has, because the contract has no line.
    virtual void showNoLine() = 0;
    /// Empties those that a new line starts without; the others keep what they show.
    virtual void emptyForNewLine() = 0;
    /// Asks what has to be asked before saving.
    virtual bool confirmSave() { return true; }
    /// Refuses what cannot be written of them, before anything is.
    /// @throws ui::RefusedInput
    virtual void requireFields() = 0;
    /// Sets the fields that only this kind has.
    virtual void writeFields(base::UpdatableRecordset& line) = 0;
    /// The current line, or the state, is another one.
    virtual void currentLineShown() {}
    virtual void stateShown() {}
    /// Lines, their order or their contents are others than before.
    virtual void linesChanged() {}

    /// The layout around what the kind has for itself.
    /// @param fields below the description
    /// @param heading in the line above the list
    /// @param details below the fields and the selection
    /// @param elsewhere in the bar of buttons
    void arrange(std::vector<ui::Layout> fields, std::vector<ui::Layout> heading = {},
                 std::vector<ui::Layout> details = {}, std::vector<ui::Layout> elsewhere = {});

    /// Whether the user has entered something that is not written.
    virtual bool changed() const;
    bool escape() override;
    /// Says what has been done.
    void say(base::OwnText text, const std::vector<std::string>& values = {});

    bool viewing() const { return mode_.viewing(); }
    bool hasLines() const { return !lines_.empty(); }
    /// Place of the current line in its contract, from 1; 0 when there is no line.
    int place() const { return MSFlexGrid1.currentRow() + 1; }

    /// Loads the lines, without showing the current one. It stays current if it is still there.
    void LoadGrid();
    /// `ID` and `SELEKTION_VALUE` of the line in a row, read by its place: what writes by the place comes
    /// after it.
    /// @throws base::Refused when somebody else has moved or deleted lines meanwhile; in the view state
    ///         they have been loaded again
    std::unique_ptr<base::Recordset> openInPlace(int row);
    /// As `openInPlace`, with all columns.
    std::unique_ptr<base::Recordset> openWholeInPlace(int row);
    /// Shows what the database has for one line: its row in the grid and, for the current line, the fields.
    void reloadLine(int row);
    void showCurrentLine();

    host::HostServices& services_;
    host::TlxVar session_;
    std::int32_t contract_ = 0;
    std::string name_; ///< `VERTRAG_NAME`, while the screen is shown

    ui::Frame frmLines{*this, "frmLines"};
    ui::Grid MSFlexGrid1{*this, "MSFlexGrid1", 7};
    parts::KeyedGrid lines_; ///< what stands in it
    ui::UpDown UpDown1{*this, "UpDown1"};
    ui::Frame frmPosition{*this, "frmPosition", "Position"};
    ui::Label lblBezeichnung{*this, "lblBezeichnung", "Bezeichnung"};
    ui::TextBox txtBEZEICHNUNG{*this, "txtBEZEICHNUNG", 40};
    ui::Label lblUnit{*this, "lblUnit", "Einheit"};
    ui::ComboBox cboUnit{*this, "cboUnit", 14};
    /// The fields of the current line; a kind adds its own.
    parts::SharedRow row_{services_, session_};

private:
    void connect();
    void connectRow();
    std::string unitText(const base::Value& unit) const;
    std::unique_ptr<base::Recordset> requireInPlace(std::unique_ptr<base::Recordset> line, int row);
    void loadUnits();
    /// The current line, or null where the contract has none.
    std::unique_ptr<base::Recordset> openCurrent();

    void startNew();
    void startEdit();
    void save();
    void saveLine();
    void cancel();
    void discardNewRow();
    void removeLine();
    /// @return what is said then
    std::string restoreLine(parts::KeyedRow& line, int place);
    void moveLine(int step);
    void StoreSelection(const std::string& literal);
    bool lineHasSelection();
    void selectInDialog();
    /// Shows the selection value that the line has.
    void showSelection(const std::string& value);
    bool queryUnload() override;

    const std::string caption_; ///< what the title begins with
    const LineKind& kind_;
    LineList list_;
    std::int64_t newId_; ///< `ID` of the new line, -1 while it has no row
    parts::EnteredChanges changes_;
    int rowBefore_;            ///< row that was current when the new line was begun
    base::Value unlistedUnit_; ///< the line's unit where the list does not offer it

    LineSelection selection_{*this, services_, session_};
    ui::Button cmdNeu{*this, "cmdNeu", "Neu"};
    ui::Button cmdBearbeiten{*this, "cmdBearbeiten", "Bearbeiten"};
    ui::Button cmdSpeichern{*this, "cmdSpeichern", "Speichern"};
    ui::Button cmdAbbrechen{*this, "cmdAbbrechen", "Bearb. Abbr."};
    ui::Button cmdLoschen{*this, "cmdLoschen", "Löschen"};
    ui::Button cmdOk{*this, "cmdOk", "Schließen"};

    parts::EditMode mode_;
    parts::UndoOffers undo_{status(), session_};
};

} // namespace tellurix::lines
