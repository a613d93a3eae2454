#include "module/lines/LineEditor.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "module/parts/questions.h"

#include <algorithm>

namespace tellurix::lines {

using base::OwnText;
using base::StatementText;

namespace {

constexpr std::int64_t noRow = -1;

} // namespace

LineEditor::LineEditor(host::HostServices& services, const LineKind& kind, std::string name,
                       std::string title)
    : Form(std::move(name), std::move(title)),
      services_(services),
      lines_(MSFlexGrid1, services.locale),
      kind_(kind),
      statements_(kind.table, 0),
      newId_(noRow),
      rowBefore_(ui::Grid::none),
      mode_({.create = &cmdNeu,
             .edit = &cmdBearbeiten,
             .save = &cmdSpeichern,
             .cancel = &cmdAbbrechen,
             .remove = &cmdLoschen},
            {.inView = {&MSFlexGrid1, &cmdOk},
             .onRow = {&UpDown1},
             .whileEdited = {&frmPosition, &quickSelection_.frame()}},
            [this] { return hasLines(); }) {
    connect();
}

void LineEditor::connect() {
    MSFlexGrid1.onCurrentChange = [this] { showCurrentLine(); };
    UpDown1.onUp = [this] { moveLine(-1); };
    UpDown1.onDown = [this] { moveLine(+1); };
    UpDown1.setToolTip("Zeile nach oben oder unten verschieben");
    cmdSelect.onClick = [this] { selectInDialog(); };
    chkSelektion.setEnabled(false);
    chkSelektion.setToolTip("Die Zeile hat eine Selektion");
    cmdNeu.onClick = [this] { startNew(); };
    cmdBearbeiten.onClick = [this] { startEdit(); };
    cmdSpeichern.onClick = [this] { save(); };
    cmdAbbrechen.onClick = [this] { cancel(); };
    cmdLoschen.onClick = [this] { removeLine(); };
    cmdOk.onClick = [this] { unload(); };
    mode_.onEnter = [this] {
        cmdSelect.setEnabled(!viewing() || hasLines());
        setCancelButton(viewing() ? cmdOk : cmdAbbrechen);
        stateShown();
    };
}

void LineEditor::arrange(std::vector<ui::Layout> fields, std::vector<ui::Layout> besideGrid,
                         std::vector<ui::Layout> below) {
    fields.insert(fields.begin(), ui::field(lblBezeichnung, txtBEZEICHNUNG).growing());
    besideGrid.insert(besideGrid.begin(), UpDown1);
    std::vector<ui::Layout> screen{
        ui::row({ui::Layout{MSFlexGrid1}.growing(), ui::column(std::move(besideGrid))}).growing(),
        ui::row({ui::frame(frmPosition, {ui::fields(2, std::move(fields))}).growing(),
                 ui::column({quickSelection_.layout(), ui::row({cmdSelect, chkSelektion})})}),
    };
    std::ranges::move(below, std::back_inserter(screen));
    screen.push_back(ui::row({cmdNeu, cmdBearbeiten, cmdSpeichern, cmdAbbrechen, cmdLoschen, cmdOk}));
    setLayout(ui::column(std::move(screen)));
}

void LineEditor::Run(const host::TlxVar& session, std::int32_t contract, bool shown) {
    session_ = session;
    contract_ = contract;
    statements_ = LineStatements{kind_.table, contract};
    mode_.reset();
    newId_ = noRow;
    prepare(shown);
    loadUnits();
    lines_.setColumns(gridColumns());
    lines_.clear();
    LoadGrid();
    if (!shown) return;
    txtBEZEICHNUNG.setMaxLength(services_.columnWidth.of(session_, kind_.table, "BEZEICHNUNG"));
    showCurrentLine();
    mode_.enter(State::view);
    services_.display.showModal(*this);
}

void LineEditor::loadUnits() {
    cboUnit.clear();
    for (auto unit = session_.connection->open(kind_.unitQuery); !unit->atEnd(); unit->moveNext())
        cboUnit.add(unit->text("EINHEIT"), unit->integer("EINHEIT_ID"));
}

std::string LineEditor::linesQuery() const {
    StatementText query{kind_.lineColumns};
    query.fixed(" WHERE ").fixed(kind_.contractColumn).fixed(" = ").number(contract_);
    return query.fixed(" ORDER BY ").fixed(kind_.placeColumn).text();
}

void LineEditor::LoadGrid() {
    const auto placed = [](parts::KeyedRow& line) {
        return !std::holds_alternative<base::Null>(line.field("ORDNUNG"));
    };
    auto lines = parts::KeyedRows::read(*session_.connection, linesQuery(), "ID").rows;
    // A line without a place is one that somebody else has just begun; it must not push the others aside.
    std::ranges::stable_partition(lines, placed);
    lines_.show(std::move(lines));

    for (int row = 0; row < lines_.rowCount(); ++row) {
        parts::KeyedRow& line = lines_.row(row);
        const std::int64_t place = row + 1;
        if (placed(line) && line.integer("ORDNUNG") == place) continue;
        const auto record = session_.connection->openUpdatable(statements_.lineOf(line.key()));
        if (record->atEnd()) continue; // deleted by somebody else a moment ago
        record->setField("Ordnung", place);
        record->update();
    }
    linesChanged();
}

void LineEditor::reloadLine(int row) {
    StatementText query{kind_.lineColumns};
    query.fixed(" WHERE ").fixed(kind_.keyColumn).fixed(" = ").number(lines_.keyOf(row));
    const auto line = session_.connection->open(query.text());
    if (line->atEnd()) return;
    lines_.replace(row, parts::KeyedRow{*line, "ID"});
    if (row == MSFlexGrid1.currentRow()) showCurrentLine();
    linesChanged();
}

std::unique_ptr<base::Recordset> LineEditor::openCurrent() {
    const auto open = [this] { return session_.connection->open(statements_.lineAt(place())); };
    if (!hasLines()) return nullptr;
    if (auto line = open(); !line->atEnd() && line->integer("ID") == lines_.keyOf(MSFlexGrid1.currentRow()))
        return line;
    LoadGrid();
    mode_.refresh();
    // The next key may be meant for the line that was here.
    services_.errors.report(base::Refused{OwnText::listWasOld});
    if (!hasLines()) return nullptr;
    auto line = open();
    if (line->atEnd()) throw base::Refused{OwnText::lineIsGone};
    return line;
}

std::unique_ptr<base::Recordset> LineEditor::openInPlace(int row) {
    auto line = session_.connection->open(statements_.keyAndSelectionAt(row + 1));
    if (!line->atEnd() && line->integer("ID") == lines_.keyOf(row)) return line;
    if (!viewing()) throw base::Refused{OwnText::lineIsGone};
    LoadGrid();
    showCurrentLine();
    mode_.enter(State::view);
    throw base::Refused{{{OwnText::listWasOld}, {OwnText::nothingWritten}}};
}

std::unique_ptr<base::Recordset> LineEditor::openLine(const std::string& query) {
    auto line = session_.connection->open(query);
    if (line->atEnd()) throw base::Refused{OwnText::lineIsGone};
    return line;
}

std::unique_ptr<base::UpdatableRecordset> LineEditor::openToEdit(const std::string& query) {
    auto line = session_.connection->openUpdatable(query);
    if (line->atEnd()) throw base::Refused{OwnText::lineIsGone};
    return line;
}

void LineEditor::showCurrentLine() {
    if (const auto line = openCurrent()) {
        showFieldsOf(*line);
        ShowSelection(openLine(statements_.selectionAt(place()))->text("SELEKTION_VALUE"));
    } else {
        txtBEZEICHNUNG.setText("");
        cboUnit.select(ui::ItemList::none);
        showNoLine();
        ShowSelection("");
    }
    currentLineShown();
}

void LineEditor::showFieldsOf(base::Recordset& line) {
    txtBEZEICHNUNG.setText(line.text("BEZEICHNUNG"));
    cboUnit.selectItemData(line.integer("ID_WARENEINHEIT"));
    unlistedUnit_ = line.field("ID_WARENEINHEIT");
    showFields(line);
}

void LineEditor::ShowSelection(const std::string& value) {
    quickSelection_.show(readSelection(value));
    chkSelektion.setChecked(hasSelection(value));
}

void LineEditor::startNew() {
    newId_ = noRow;
    unlistedUnit_ = base::Null{};
    cboUnit.select(ui::ItemList::none);
    chkSelektion.setChecked(false);
    emptyForNewLine();
    rowBefore_ = MSFlexGrid1.currentRow();
    MSFlexGrid1.setCurrent(ui::Grid::none, MSFlexGrid1.currentColumn());
    mode_.enter(State::fresh);
    parts::SafeSetFocus(txtBEZEICHNUNG);
}

void LineEditor::startEdit() {
    const auto line = openInPlace(MSFlexGrid1.currentRow());
    ShowSelection(line->text("SELEKTION_VALUE"));
    mode_.enter(State::edit);
    parts::SafeSetFocus(txtBEZEICHNUNG);
}

std::int64_t LineEditor::createRow() {
    session_.connection->execute(statements_.insert());
    return session_.connection->open(statements_.newestKey())->integer(0);
}

void LineEditor::StoreSelection(const std::string& literal) {
    if (literal.empty()) return;
    if (mode_.state() != State::fresh) {
        session_.connection->execute(statements_.setSelectionAt(literal, place()));
        return;
    }
    if (newId_ == noRow) newId_ = createRow();
    session_.connection->execute(statements_.setSelectionOf(literal, newId_));
}

bool LineEditor::lineHasSelection() {
    if (mode_.state() == State::fresh && newId_ == noRow) return false;
    const auto line = openLine(mode_.state() == State::fresh ? statements_.selectionOf(newId_)
                                                             : statements_.selectionAt(place()));
    return !base::trim(line->text("SELEKTION_VALUE")).empty();
}

void LineEditor::selectInDialog() {
    std::int64_t id = newId_;
    if (mode_.state() != State::fresh) {
        id = openInPlace(MSFlexGrid1.currentRow())->integer("ID");
    } else if (newId_ == noRow) {
        id = newId_ = createRow();
    }
    const host::HostContext& context = host::moduleState().context;
    const auto chosen = services_.selectionDialog.select(session_, std::to_string(id) + kind_.dialogKey,
                                                         base::toUpper(context.StrVer_Type),
                                                         context.strServiceOut1, context.strServiceOut2);
    if (!chosen) return;
    const std::string selection{base::trim(*chosen)};
    session_.connection->execute(statements_.setDialogSelectionOf(selection, id));
    chkSelektion.setChecked(!selection.empty());
    quickSelection_.show({});
    if (viewing()) currentLineShown();
}

void LineEditor::save() {
    if (!confirmSave()) return;
    requireFields();
    const std::string selection = selectionLiteral(quickSelection_.read());
    if (mode_.state() == State::edit) openInPlace(MSFlexGrid1.currentRow());
    StoreSelection(selection);
    if (!lineHasSelection()) {
        parts::tellInvalid(services_.display, services_.localizer, session_);
        selectInDialog();
        return;
    }
    saveLine();
    mode_.enter(State::view);
    reloadLine(MSFlexGrid1.currentRow());
    parts::SafeSetFocus(MSFlexGrid1);
}

void LineEditor::saveLine() {
    const bool isNew = mode_.state() == State::fresh;
    const auto line = openToEdit(isNew ? statements_.lineOf(newId_) : statements_.lineAt(place()));
    if (isNew) line->setField("Ordnung", std::int64_t{lines_.rowCount()} + 1);
    line->setField("ID_Vertrag", std::int64_t{contract_});
    line->setField("BEZEICHNUNG",
                   txtBEZEICHNUNG.text().empty() ? base::Value{} : base::Value{txtBEZEICHNUNG.text()});
    const int unit = cboUnit.selected();
    line->setField("ID_WARENEINHEIT",
                   unit == ui::ItemList::none
                       ? unlistedUnit_
                       : base::Value{cboUnit.items()[static_cast<std::size_t>(unit)].itemData});
    writeFields(*line);
    line->update();
    if (!isNew) return;
    lines_.add(std::exchange(newId_, noRow));
}

void LineEditor::cancel() {
    discardNewRow();
    if (mode_.state() == State::fresh) MSFlexGrid1.setCurrent(rowBefore_, MSFlexGrid1.currentColumn());
    showCurrentLine();
    mode_.enter(State::view);
    parts::SafeSetFocus(MSFlexGrid1);
}

void LineEditor::discardNewRow() {
    if (newId_ == noRow) return;
    session_.connection->execute(statements_.removeOf(newId_));
    newId_ = noRow;
}

void LineEditor::removeLine() {
    const int removed = place();
    const auto id = lines_.keyOf(removed - 1);
    // By its key: in the meantime another user may have moved another line to this place.
    if (const auto line = session_.connection->openUpdatable(statements_.lineOf(id)); !line->atEnd()) {
        line->remove();
        session_.connection->execute(statements_.closeGapBehind(removed));
    }
    LoadGrid();
    showCurrentLine();
    mode_.enter(State::view);
    parts::SafeSetFocus(hasLines() ? static_cast<ui::Control&>(MSFlexGrid1) : cmdNeu);
}

void LineEditor::moveLine(int step) {
    const int from = MSFlexGrid1.currentRow();
    const int to = from + step;
    if (from == ui::Grid::none || to < 0 || to >= lines_.rowCount()) return;
    openInPlace(from);
    openInPlace(to);
    const auto setPlace = [this](int row, int place) {
        const auto line = openToEdit(statements_.lineOf(lines_.keyOf(row)));
        line->setField("Ordnung", std::int64_t{place});
        line->update();
    };
    try {
        // Through 0, so that two lines of a contract never have the same place.
        setPlace(from, 0);
        setPlace(to, from + 1);
        setPlace(from, to + 1);
    } catch (const std::exception& error) {
        // Not all of it was written: loading again puts the line with 0 back into the order.
        services_.errors.report(error);
        LoadGrid();
        showCurrentLine();
        return;
    }
    lines_.swap(from, to);
    MSFlexGrid1.setCurrent(to, MSFlexGrid1.currentColumn());
    currentLineShown();
    linesChanged();
}

bool LineEditor::queryUnload() {
    // The close box during an edit would throw away what was typed, and the row of a line never saved.
    if (!viewing() &&
        !parts::confirmed(services_.display, base::ownText(OwnText::closeUnsaved, session_.language)))
        return false;
    discardNewRow();
    return true;
}

} // namespace tellurix::lines
