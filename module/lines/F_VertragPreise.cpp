#include "module/lines/F_VertragPreise.h"

#include "module/base/Decimal.h"
#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "module/parts/meanwhile/TakenOver.h"
#include "module/ui/controls/caption.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/number_box.h"

namespace tellurix::lines {

using base::StatementText;

namespace {

constexpr const char* priceMask = "-#######0.00";
constexpr const char* secondPriceMask = "#####0.00";
constexpr const char* exactPriceMask = "0.00##";
constexpr int euroEntry = 0;
constexpr int homeCurrencyEntry = 1;

/// The grid columns that can be edited in place; their numbers do not follow the layout.
constexpr std::size_t editedPriceColumn = 2;
constexpr std::size_t editedSecondPriceColumn = 5;

const char* fieldOf(int editedColumn) {
    return editedColumn == static_cast<int>(editedPriceColumn) ? "PREIS" : "PREIS_ABR2";
}

// clang-format off
const LineKind priceLines{
    .table = "VERTRAG_PREISE",
    .dialogKey = "VERTP",
    .unitQuery = "SELECT EINHEIT_ID,EINHEIT FROM WARENEINHEIT WHERE HOLZ =1 ORDER BY ISNULL(LDNR,0) ",
    .lineColumns =
        "SELECT VERTRAG_PREISE.ID,VERTRAG_PREISE.ID_VERTRAG,VERTRAG_PREISE.ORDNUNG,VERTRAG_PREISE.BEZEICHNUNG,VERTRAG_PREISE.MSZ_PERCENT,VERTRAG_PREISE.PREIS,"
        "(SELECT WARENEINHEIT.EINHEIT FROM WARENEINHEIT WHERE WARENEINHEIT.EINHEIT_ID = VERTRAG_PREISE.ID_WARENEINHEIT) AS EINHEIT,"
        "VERTRAG_PREISE.EURO,VERTRAG_PREISE.ID_WARENEINHEIT,VERTRAG_PREISE.PREIS_ABR2"
        " FROM VERTRAG_PREISE",
    .contractColumn = "ID_VERTRAG",
    .keyColumn = "ID",
    .placeColumn = "ORDNUNG",
    .none = base::OwnText::noPrices,
};
// clang-format on

} // namespace

F_VertragPreise::F_VertragPreise(host::HostServices& services)
    : LineEditor(services, priceLines, "F_VertragPreise", "Preise"),
      percent_(txtMsz, "-####0.0#", services.locale),
      price_(txtPreis, priceMask, services.locale),
      secondPrice_(txtPreis_Abr2, secondPriceMask, services.locale),
      cellEditor_(MSFlexGrid1, txtEdit),
      priceChange_(*this, services.locale, [this](int count) {
          LoadGrid();
          showCurrentLine();
          say(count == 1 ? base::OwnText::onePriceChanged : base::OwnText::pricesChanged,
              {std::to_string(count)});
      }) {
    connectFields();
    chkEdit.onClick = [this] { openCells(); };
    txtEdit.setRightAligned(true);
    cellEditor_.prepare = [this](ui::TextBox& box, int) {
        ui::takeNumbers(box, priceMask, services_.locale);
    };
    cellEditor_.write = [this](int row, int column, const std::string& typed) {
        return CommitCellEdit(row, column, typed);
    };
    arrange({ui::field(lblMsz, txtMsz), ui::field(lblPreis, txtPreis), ui::field(lblUnit, cboUnit),
             ui::field(lblGeld, cboGeld), ui::field(lblPreis_Abr2, txtPreis_Abr2)},
            {chkEdit}, {priceChange_.layout()}, {priceChange_.button()});
}

void F_VertragPreise::prepare(bool /*shown*/) {
    const auto setting = base::Decimal::parse(base::trim(services_.settings.text(session_, "MESZAHL")));
    showsPercent_ = setting && *setting == base::Decimal{1};
    site_ = Site::standard;
    if (session_.site == "WVO") site_ = Site::logistics;
    if (session_.site == "UELZEN" && host::moduleState().context.StrVer_Type == "A6") {
        site_ = Site::stockPrice;
    }

    if (site_ == Site::stockPrice) lblPreis_Abr2.setCaption("Stockpreis");
    lblMsz.setVisible(showsPercent_);
    txtMsz.setVisible(showsPercent_);
    lblPreis_Abr2.setVisible(site_ != Site::standard);
    txtPreis_Abr2.setVisible(site_ != Site::standard);

    cboGeld.clear();
    cboGeld.add(host::euro);
    cboGeld.add(session_.homeCurrency);
    chkEdit.setChecked(false);
    cellEditor_.close();
    priceChange_.open({.services = &services_, .session = session_, .id = contract_});
}

std::vector<parts::KeyedGrid::Column> F_VertragPreise::gridColumns() const {
    std::vector<parts::KeyedGrid::Column> columns{
        {.width = 4}, {.caption = lblBezeichnung.caption(), .width = 34, .field = "BEZEICHNUNG"}};
    const auto number = [&columns](const ui::Label& label, const char* field, const char* mask) {
        columns.push_back(
            {.caption = label.caption(), .width = 14, .field = field, .mask = mask, .rightAligned = true});
    };
    if (showsPercent_) number(lblMsz, "MSZ_PERCENT", "0.0");
    number(lblPreis, "PREIS", site_ == Site::standard ? "##0.00" : "0.00");
    columns.push_back({.caption = lblUnit.caption(), .width = 10, .field = "EINHEIT"});
    columns.push_back({.caption = lblGeld.caption(), .width = 10, .shown = [this](base::Fields& line) {
                           return line.flag("EURO") ? host::euro : session_.homeCurrency;
                       }});
    if (hasSecondPriceColumn()) number(lblPreis_Abr2, "PREIS_ABR2", secondPriceMask);
    for (const std::size_t column : {editedPriceColumn, editedSecondPriceColumn})
        if (column < columns.size()) columns[column].editable = true;
    return columns;
}

void F_VertragPreise::connectFields() {
    row_.number(percent_, "MSZ_PERCENT");
    row_.number(price_, "PREIS");
    row_.number(secondPrice_, "PREIS_ABR2");
    row_.add(
        {.column = "EURO",
         .name = [this] { return ui::plainCaption(lblGeld.caption()); },
         .show =
             [this](base::Fields& line) {
                 cboGeld.select(line.flag("EURO") ? euroEntry : homeCurrencyEntry);
             },
         .mine = [this] { return cboGeld.selectedText(); },
         .theirs =
             [this](base::Fields& line) { return line.flag("EURO") ? host::euro : session_.homeCurrency; },
         .in = {&cboGeld}});
}

void F_VertragPreise::showNoLine() {
    percent_.show(base::Null{});
    secondPrice_.show(base::Null{});
    emptyForNewLine();
}

void F_VertragPreise::emptyForNewLine() {
    price_.show(base::Null{});
    cboGeld.select(ui::ItemList::none);
    // A second price that nobody can see must not go over into the new line.
    if (site_ == Site::standard) secondPrice_.show(base::Null{});
}

bool F_VertragPreise::confirmSave() {
    if (txtPreis.text() != base::formatNumber(base::Decimal{}, "0.00", services_.locale)) return true;
    const std::string question =
        "Wollen Sie die Position mit dem Preis von " + txtPreis.text() + " Euro speichern?";
    return parts::ShowMessage(services_.display, question, ui::box::yesNo, "Vertrag Preise") ==
           ui::Answer::yes;
}

void F_VertragPreise::requireFields() {
    for (const parts::NumberField* field : {&percent_, &price_, &secondPrice_})
        static_cast<void>(field->value());
}

void F_VertragPreise::writeFields(base::UpdatableRecordset& line) {
    line.setField("MSZ_PERCENT", percent_.value());
    line.setField("PREIS", price_.value());
    line.setField("Euro", cboGeld.selected() == euroEntry);
    line.setField("PREIS_ABR2", secondPrice_.value());
}

bool F_VertragPreise::changed() const {
    return LineEditor::changed() || (cellEditor_.open() && txtEdit.touched());
}

bool F_VertragPreise::escape() {
    // While a line is edited the frame waits, and the line is what Esc means.
    return !(viewing() && priceChange_.close()) && LineEditor::escape();
}

void F_VertragPreise::stateShown() {
    chkEdit.setEnabled(viewing() && hasLines());
    openCells();
    priceChange_.setEnabled(viewing() && hasLines());
}

void F_VertragPreise::openCells() {
    lines_.openCells(viewing() && chkEdit.checked());
}

void F_VertragPreise::linesChanged() {
    priceChange_.linesChanged();
}

std::unique_ptr<base::Recordset> F_VertragPreise::openForCell(int row, const std::string& typed) {
    try {
        return openWholeInPlace(row);
    } catch (const base::Refused& moved) {
        // The cell belongs to another line now.
        cellEditor_.close();
        parts::SafeSetFocus(MSFlexGrid1);
        std::vector<base::Refused::Sentence> message = moved.sentences();
        message.push_back({base::OwnText::typedWas, {typed}});
        throw base::Refused{std::move(message)};
    }
}

bool F_VertragPreise::mayWriteCell(int row, int column, const std::string& typed) {
    const char* field = fieldOf(column);
    while (true) {
        const base::Value now = openForCell(row, typed)->field(field);
        const auto there = base::numberIn(now);
        if (there == base::numberIn(lines_.row(row).field(field)) ||
            there == base::parseNumber(txtEdit.text(), services_.locale))
            return true;
        const auto& caption = MSFlexGrid1.columns()[static_cast<std::size_t>(column)].caption;
        switch (parts::ConflictQuestion{services_, session_}.ask(
            {{caption, txtEdit.text(), base::numberText(now, exactPriceMask, services_.locale)}})) {
        case parts::ConflictQuestion::Answer::theirs:
            return false;
        case parts::ConflictQuestion::Answer::back:
            throw ui::RefusedInput{txtEdit, {{base::OwnText::nothingWritten}}};
        case parts::ConflictQuestion::Answer::mine:
            lines_.row(row).refresh(field, now);
        }
    }
}

std::string F_VertragPreise::CommitCellEdit(int row, int column, const std::string& typed) {
    const bool fits =
        base::isNumeric(typed, services_.locale) && base::fitsNumberMask(typed, priceMask, services_.locale);
    if (!fits) txtEdit.setText(base::formatNumber(base::Decimal{}, "0.00", services_.locale));
    if (!mayWriteCell(row, column, typed)) {
        reloadLine(row);
        return MSFlexGrid1.cell(row, column);
    }
    StatementText statement{"UPDATE VERTRAG_PREISE SET "};
    statement.identifier(fieldOf(column))
        .fixed(" = ")
        .number(txtEdit.text())
        .fixed(" WHERE ORDNUNG = ")
        .number(row + 1)
        .fixed(" AND ID_VERTRAG = ")
        .number(contract_);
    session_.connection->execute(statement.text());
    // Where the layout has moved the columns, the price stands in another cell than the edited one.
    reloadLine(row);
    say(base::OwnText::saved);
    return MSFlexGrid1.cell(row, column);
}

} // namespace tellurix::lines
