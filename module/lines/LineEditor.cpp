#include "module/lines/LineEditor.h"

#include "module/base/Refused.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "module/parts/contract_title.h"
#include "module/parts/grids/grid_layout.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"

#include <algorithm>

namespace tellurix::lines {

using base::OwnText;

namespace {

constexpr std::int64_t noRow = -1;
constexpr const char* selectionColumn = "SELEKTION_VALUE";

} // namespace

LineEditor::LineEditor(host::HostServices& services, const LineKind& kind, std::string name,
                       std::string title)
    : Form(std::move(name), title),
      services_(services),
      lines_(MSFlexGrid1, services.locale),
      caption_(std::move(title)),
      kind_(kind),
      list_(kind),
      newId_(noRow),
      rowBefore_(ui::Grid::none),
      mode_({.create = &cmdNeu,
             .edit = &cmdBearbeiten,
             .save = &cmdSpeichern,
             .cancel = &cmdAbbrechen,
             .remove = &cmdLoschen},
            {.inView = {&MSFlexGrid1, &cmdOk},
             .onRow = {&UpDown1},
             .whileEdited = {&frmPosition, &selection_.quickSelection()},
             .changes = &changes_,
             .rows = &MSFlexGrid1},
            [this] { return hasLines(); }) {
    connect();
    connectRow();
}

void LineEditor::connect() {
    MSFlexGrid1.onCurrentChange = [this] { showCurrentLine(); };
    // Nobody goes on from a line by accident.
    MSFlexGrid1.onKeyDown.before([](ui::KeyDown& key) {
        if (key.key == ui::Key::enter) key.key = ui::Key::none;
    });
    UpDown1.onUp = [this] { moveLine(-1); };
    UpDown1.onDown = [this] { moveLine(+1); };
    UpDown1.setToolTip("Zeile nach oben oder unten verschieben");
    selection_.button().onClick = [this] { selectInDialog(); };
    cmdNeu.onClick = [this] { startNew(); };
    cmdBearbeiten.onClick = [this] { startEdit(); };
    cmdSpeichern.onClick = [this] { save(); };
    cmdAbbrechen.onClick = [this] { cancel(); };
    cmdLoschen.onClick = [this] { removeLine(); };
    cmdOk.onClick = [this] { unload(); };
    mode_.onEnter = [this] {
        selection_.button().setEnabled(!viewing() || hasLines());
        setCancelButton(viewing() ? cmdOk : cmdAbbrechen);
        stateShown();
    };
}

void LineEditor::connectRow() {
    row_.text(txtBEZEICHNUNG, "BEZEICHNUNG");
    row_.add({.column = "ID_WARENEINHEIT",
              .name = [this] { return ui::plainCaption(lblUnit.caption()); },
              .show =
                  [this](base::Fields& line) {
                      cboUnit.selectItemData(line.integer("ID_WARENEINHEIT"));
                      unlistedUnit_ = line.field("ID_WARENEINHEIT");
                  },
              .mine =
                  [this] {
                      return cboUnit.selected() == ui::ItemList::none ? unitText(unlistedUnit_)
                                                                      : cboUnit.selectedText();
                  },
              .theirs = [this](base::Fields& line) { return unitText(line.field("ID_WARENEINHEIT")); },
              .in = {&cboUnit}});
    row_.add({.column = selectionColumn,
              .name = [this] { return ui::plainCaption(selection_.quickSelection().caption()); },
              .show = [this](base::Fields& line) { selection_.show(line.text(selectionColumn)); },
              .mine = [this] { return selection_.text(); },
              .theirs = [this](base::Fields& line) { return selection_.textOf(line.text(selectionColumn)); },
              .in = {&selection_.quickSelection()}});
}

std::string LineEditor::unitText(const base::Value& unit) const {
    const auto* key = std::get_if<std::int64_t>(&unit);
    if (key == nullptr) return {};
    const auto listed = std::ranges::find(cboUnit.items(), *key, &ui::ItemList::Item::itemData);
    return listed == cboUnit.items().end() ? std::to_string(*key) : listed->text;
}

void LineEditor::arrange(std::vector<ui::Layout> fields, std::vector<ui::Layout> heading,
                         std::vector<ui::Layout> details, std::vector<ui::Layout> elsewhere) {
    fields.insert(fields.begin(), ui::field(lblBezeichnung, txtBEZEICHNUNG).growing());
    heading.emplace_back(UpDown1);
    std::vector<ui::Layout> all{ui::frame(frmPosition, {ui::fields(1, std::move(fields))})};
    std::ranges::move(selection_.layouts(), std::back_inserter(all));
    std::ranges::move(details, std::back_inserter(all));
    setLayout(ui::column({
        ui::sides(ui::section(frmLines, std::move(heading), {ui::Layout{MSFlexGrid1}.growing()}),
                  ui::groups(std::move(all)))
            .growing(),
        ui::bar({cmdNeu, cmdBearbeiten, ui::Layout{cmdSpeichern}.primary(), cmdAbbrechen, cmdLoschen},
                std::move(elsewhere), {cmdOk}),
    }));
    changes_.watchAll(*this, &frmPosition);
    changes_.watchAll(*this, &selection_.quickSelection());
}

std::optional<std::int64_t> LineEditor::keyInRow(int row) const {
    return row < 0 || row >= lines_.rowCount() ? std::nullopt : std::optional{lines_.keyOf(row)};
}

void LineEditor::Run(const host::TlxVar& session, std::int32_t contract, bool shown,
                     std::optional<std::int64_t> line) {
    session_ = session;
    contract_ = contract;
    list_.open({.services = &services_, .session = session_, .id = contract_});
    mode_.reset();
    newId_ = noRow;
    undo_.forget();
    if (shown) name_ = parts::contractName(services_, session_, contract_);
    parts::localizeWithTitle(services_, session_, *this, caption_, shown ? name_ : std::string{});
    prepare(shown);
    MSFlexGrid1.setEmptyText(
        base::ownText(kind_.none, session_.language, {ui::plainCaption(cmdNeu.caption())}));
    loadUnits();
    lines_.setColumns(gridColumns());
    lines_.clear();
    LoadGrid();
    if (!shown) return;
    if (line) lines_.select(*line);
    txtBEZEICHNUNG.setMaxLength(services_.columnWidth.of(session_, kind_.table, "BEZEICHNUNG"));
    showCurrentLine();
    mode_.enter(State::view);
    parts::GridLayouts layouts{services_, session_, *this};
    services_.display.showModal(*this);
    layouts.keep();
}

void LineEditor::loadUnits() {
    cboUnit.clear();
    for (auto unit = session_.connection->open(kind_.unitQuery); !unit->atEnd(); unit->moveNext())
        cboUnit.add(unit->text("EINHEIT"), unit->integer("EINHEIT_ID"));
}

void LineEditor::LoadGrid() {
    lines_.show(list_.read());
    list_.repair(lines_.rows());
    linesChanged();
}

void LineEditor::reloadLine(int row) {
    auto line = list_.read(lines_.keyOf(row));
    if (!line) return;
    lines_.replace(row, std::move(*line));
    if (row == MSFlexGrid1.currentRow()) showCurrentLine();
    linesChanged();
}

std::unique_ptr<base::Recordset> LineEditor::openCurrent() {
    const auto open = [this] { return list_.at(place()); };
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
    return requireInPlace(list_.keyAndSelectionAt(row + 1), row);
}

std::unique_ptr<base::Recordset> LineEditor::openWholeInPlace(int row) {
    return requireInPlace(list_.at(row + 1), row);
}

std::unique_ptr<base::Recordset> LineEditor::requireInPlace(std::unique_ptr<base::Recordset> line, int row) {
    if (!line->atEnd() && line->integer("ID") == lines_.keyOf(row)) return line;
    if (!viewing()) throw base::Refused{OwnText::lineIsGone};
    LoadGrid();
    showCurrentLine();
    mode_.enter(State::view);
    throw base::Refused{{{OwnText::listWasOld}, {OwnText::nothingWritten}}};
}

void LineEditor::showCurrentLine() {
    if (const auto line = openCurrent()) {
        row_.show(*line);
        lineShown(*line);
        showSelection(list_.selectionAt(place()));
    } else {
        txtBEZEICHNUNG.setText("");
        cboUnit.select(ui::ItemList::none);
        showNoLine();
        selection_.show("");
        row_.leave();
    }
    changes_.forget();
    currentLineShown();
}

void LineEditor::showSelection(const std::string& value) {
    selection_.show(value);
    row_.keep(selectionColumn, value);
}

void LineEditor::startNew() {
    newId_ = noRow;
    unlistedUnit_ = base::Null{};
    cboUnit.select(ui::ItemList::none);
    selection_.showNone();
    emptyForNewLine();
    row_.leave();
    rowBefore_ = MSFlexGrid1.currentRow();
    MSFlexGrid1.setCurrent(ui::Grid::none, MSFlexGrid1.currentColumn());
    changes_.forget();
    mode_.enter(State::fresh);
    parts::SafeSetFocus(txtBEZEICHNUNG);
}

void LineEditor::startEdit() {
    const auto line = openInPlace(MSFlexGrid1.currentRow());
    showSelection(line->text(selectionColumn));
    changes_.forget();
    mode_.enter(State::edit);
    parts::SafeSetFocus(txtBEZEICHNUNG);
}

void LineEditor::StoreSelection(const std::string& literal) {
    if (literal.empty()) return;
    if (mode_.state() != State::fresh) {
        list_.setSelectionAt(literal, place());
        row_.keep(selectionColumn, base::replaceAll(literal, "''", "'"));
        return;
    }
    if (newId_ == noRow) newId_ = list_.begin();
    list_.setSelectionOf(literal, newId_);
}

bool LineEditor::lineHasSelection() {
    const bool isNew = mode_.state() == State::fresh;
    if (isNew && newId_ == noRow) return false;
    return !base::trim(isNew ? list_.selectionOf(newId_) : list_.selectionAt(place())).empty();
}

void LineEditor::selectInDialog() {
    std::int64_t id = newId_;
    if (mode_.state() != State::fresh) {
        id = openInPlace(MSFlexGrid1.currentRow())->integer("ID");
    } else if (newId_ == noRow) {
        id = newId_ = list_.begin();
    }
    const auto chosen = selection_.choose(std::to_string(id) + kind_.dialogKey);
    if (!chosen) return;
    list_.setDialogSelectionOf(*chosen, id);
    selection_.showChosen(*chosen);
    row_.keep(selectionColumn, *chosen);
    // A new line goes with its selection.
    if (mode_.state() == State::fresh) return;
    if (!viewing()) return say(OwnText::writtenAtOnce, {ui::plainCaption(selection_.button().caption())});
    currentLineShown();
    say(OwnText::selectionSaved);
}

void LineEditor::save() {
    if (!confirmSave()) return;
    requireFields();
    static_cast<void>(selection_.literal()); // refuses what no statement can carry before anything is asked
    const bool settled = mode_.state() == State::fresh ||
                         row_.settle([this] { return openWholeInPlace(MSFlexGrid1.currentRow()); });
    if (!settled) return;
    const parts::TakenOver taken = row_.takenFromOthers();
    StoreSelection(selection_.literal());
    if (!lineHasSelection()) {
        parts::tellInvalid(services_.display, services_.localizer, session_);
        selectInDialog();
        return;
    }
    saveLine();
    mode_.enter(State::view);
    reloadLine(MSFlexGrid1.currentRow());
    parts::SafeSetFocus(MSFlexGrid1);
    undo_.say(taken.told(OwnText::saved, session_.language));
}

void LineEditor::saveLine() {
    const bool isNew = mode_.state() == State::fresh;
    const auto line = isNew ? list_.toEdit(newId_) : list_.toEditAt(place());
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
    const bool discards = changed();
    discardNewRow();
    if (mode_.state() == State::fresh) MSFlexGrid1.setCurrent(rowBefore_, MSFlexGrid1.currentColumn());
    showCurrentLine();
    mode_.enter(State::view);
    parts::SafeSetFocus(MSFlexGrid1);
    if (discards) say(OwnText::changesDiscarded);
}

void LineEditor::discardNewRow() {
    if (newId_ == noRow) return;
    list_.discard(newId_);
    newId_ = noRow;
}

void LineEditor::removeLine() {
    const int removed = place();
    auto line = list_.remove(lines_.keyOf(removed - 1), removed);
    LoadGrid();
    showCurrentLine();
    mode_.enter(State::view);
    parts::SafeSetFocus(hasLines() ? static_cast<ui::Control&>(MSFlexGrid1) : cmdNeu);
    const auto words = [this](OwnText text, const std::vector<std::string>& values = {}) {
        return base::ownText(text, session_.language, values);
    };
    if (!line) return undo_.say(words(OwnText::lineDeleted)); // by somebody else, a moment ago
    const std::string name = line->text("BEZEICHNUNG");
    undo_.offer(name.empty() ? words(OwnText::lineDeleted) : words(OwnText::namedLineDeleted, {name}),
                [this, line = std::move(*line), removed]() mutable { return restoreLine(line, removed); });
}

std::string LineEditor::restoreLine(parts::KeyedRow& line, int place) {
    if (!viewing()) throw base::Refused{OwnText::endEditingFirst};
    const std::int64_t restored = list_.restore(line, std::min(place, lines_.rowCount() + 1));
    LoadGrid();
    lines_.select(restored);
    showCurrentLine();
    mode_.enter(State::view);
    return base::ownText(OwnText::lineRestored, session_.language);
}

void LineEditor::moveLine(int step) {
    const int from = MSFlexGrid1.currentRow();
    const int to = from + step;
    if (from == ui::Grid::none || to < 0 || to >= lines_.rowCount()) return;
    openInPlace(from);
    openInPlace(to);
    try {
        list_.swap(lines_.keyOf(from), from + 1, lines_.keyOf(to), to + 1);
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
    say(OwnText::lineMoved, {std::to_string(to + 1)});
}

bool LineEditor::changed() const {
    // The row of a new line was made for something that was chosen for it.
    return !viewing() && (changes_.any() || newId_ != noRow);
}

void LineEditor::say(OwnText text, const std::vector<std::string>& values) {
    undo_.say(base::ownText(text, session_.language, values));
}

bool LineEditor::escape() {
    // The button is pressed on purpose; this key may be meant for something else.
    return viewing() || !changed() || parts::confirmed(services_, session_, OwnText::discardChanges);
}

bool LineEditor::queryUnload() {
    if (changed() && !parts::confirmed(services_, session_, OwnText::closeUnsaved)) return false;
    discardNewRow();
    return true;
}

} // namespace tellurix::lines
