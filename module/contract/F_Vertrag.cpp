#include "module/contract/F_Vertrag.h"

#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/contract/F_HeaderVertrag.h"
#include "module/contract/contract_row.h"
#include "module/contract/head_summary.h"
#include "module/deductions/F_Abschlag.h"
#include "module/host/contract_type.h"
#include "module/host/text_numbers.h"
#include "module/logistics/plan/F_Vertrag_WVO.h"
#include "module/parts/M_Common.h"
#include "module/parts/grids/grid_layout.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"

namespace tellurix::contract {

using base::OwnText;
using base::StatementText;
using ui::column;
using ui::row;
using ui::section;

namespace {

constexpr const char* priceScreen = "F_VertragPreise";
constexpr const char* quantityScreen = "F_VertragMengen";
/// What the host is told that an article was chosen for: a contract.
constexpr std::int16_t deductionsOfContract = 0;

} // namespace

F_Vertrag::F_Vertrag(host::HostServices& services)
    : Form("F_Vertrag"), services_(services), takeOver_(*this, [this] {
          showQuantityLines(false);
          showPriceLines(false);
      }) {
    txtKunde.setLocked(true);
    List1.setPairs(true);
    txtAbschlag.setLocked(true);
    btnDeleteMan.setToolTip("Kunde aus dem Vertrag entfernen");
    txtMessage.setVisible(false);
    btnWord.setEnabled(false); // its document is not part of the module yet
    connect();
    arrange();
}

void F_Vertrag::connect() {
    flags_.flag(chkAbgeschlossen, "ABGESCHLOSSEN");
    flags_.flag(chkAClEmpty, "ACL_EMPTY");
    for (ui::CheckBox* flag : {&chkAbgeschlossen, &chkAClEmpty})
        enteredFlags_.watch(*flag);
    KundeButton.onClick = [this] { chooseCustomer(); };
    btnDeleteMan.onClick = [this] { removeCustomer(); };
    btnHeader.onClick = [this] { openHeader(); };
    PreisButton.onClick = [this] { showPriceLines(true); };
    PosButton.onClick = [this] { showQuantityLines(true); };
    List1.onDoubleClick = [this] { openHeader(); };
    Grid1.onDoubleClick = [this] { showPriceLines(true, priceLines().keyInRow(Grid1.currentRow())); };
    Grid2.onDoubleClick = [this] { showQuantityLines(true, quantityLines().keyInRow(Grid2.currentRow())); };
    btnAbschlag.onClick = [this] { openDeductions(); };
    btnLieferprofil_WVO.onClick = [this] { openLogistics(); };
    btnSpeichern.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { unload(); };
    setCancelButton(btnAbbrechen);
    // A contract to take over from that is not there must not keep the window open.
    btnAbbrechen.setCausesValidation(false);
}

void F_Vertrag::arrange() {
    setLayout(column({
        row({
            section(frmKunde, {btnHeader, btnZusatz},
                    {row({txtKunde, KundeButton, btnDeleteMan}), ui::Layout{List1}.growing()})
                .growing(),
            ui::groups({
                row({btnAbschlag, txtAbschlag}),
                lblOhneAbschlag,
                chkAbgeschlossen,
                chkAClEmpty,
                btnLieferprofil_WVO,
                takeOver_.layout(),
            }),
        }),
        additionalTexts_.layout(),
        row({
                section(frmPreise, {PreisButton}, {ui::Layout{Grid1}.growing()}).growing(),
                section(frmMengen, {PosButton}, {ui::Layout{Grid2}.growing()}).growing(),
            })
            .growing(),
        ui::bar({ui::Layout{btnSpeichern}.primary(), btnAbbrechen}, {}, {txtMessage, btnWord}),
    }));
}

void F_Vertrag::Run(const host::TlxVar& session, std::int32_t id, const std::string& /*name*/,
                    bool newVertrag, const std::string& strCaption, const bool& enableKLR) {
    id_ = id;
    enableKLR_ = enableKLR;
    session_ = session;
    notYetSaved_ = true;
    newContract_ = newVertrag;
    btnLieferprofil_WVO.setVisible(true);

    name_ = parts::contractName(services_, session_, id_);
    additionalTexts_.open(openContract());
    takeOver_.open(openContract());
    if (newContract_) {
        SetContractField("INVDATE", base::dateText(services_.clock.today()), id_);
    }
    loadContract();
    additionalTexts_.load();
    ShowHeader();
    showPriceLines(false);
    showQuantityLines(false);
    services_.localizer.localize(session_, *this);
    const auto opens = [this](OwnText none, const ui::Button& button) {
        return base::ownText(none, session_.language, {ui::plainCaption(button.caption())});
    };
    Grid1.setEmptyText(opens(OwnText::noPricesYet, PreisButton));
    Grid2.setEmptyText(opens(OwnText::noQuantitiesYet, PosButton));
    setTitle(strCaption + " (" + name_ + ")");
    showDeductionModel();
    loadFlags();
    parts::GridLayouts layouts{services_, session_, *this};
    services_.display.showModal(*this);
    layouts.keep();
}

void F_Vertrag::SetContractField(const std::string& column, const std::string& value, std::int32_t contract) {
    setContractField(*session_.connection, column, value, contract);
}

void F_Vertrag::say(OwnText text, const std::vector<std::string>& values) {
    status().say(base::ownText(text, session_.language, values));
}

parts::OpenContract F_Vertrag::openContract() const {
    return {.services = &services_, .session = session_, .id = id_, .name = name_};
}

void F_Vertrag::loadContract() {
    StatementText query{"SELECT * FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto contract = session_.connection->open(query.number(id_).text());
    requireContract(*contract);
    customer_ = static_cast<std::int32_t>(contract->integer("ID_PERSONAL"));
    accessLevel_ = contract->integer("ID_ACCESS_LEVELS");
    showCustomer();
}

void F_Vertrag::showCustomer() {
    StatementText query{"SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = "};
    const auto person = session_.connection->open(query.number(customer_).text());
    txtKunde.setText(person->atEnd() ? std::string{} : person->text("KURZBEZEICHNUNG"));
}

void F_Vertrag::ShowHeader() {
    const HeadSummary summary = headSummary(openContract());
    List1.clear();
    for (const std::string& line : summary.lines)
        List1.add(line);
    period_ = summary.period;
}

std::string F_Vertrag::subject() const {
    return txtKunde.text() + (txtKunde.text().empty() || period_.empty() ? "" : " · ") + period_;
}

void F_Vertrag::CopyGrid(const ui::Grid& source, ui::Grid& target) {
    std::vector<ui::Grid::Column> columns = source.columns();
    // The column that marks the current line says nothing in an overview.
    for (ui::Grid::Column& column : columns)
        column.visible = column.visible && !column.caption.empty();
    // As wide as the user has made it here, not there.
    if (columns.size() == target.columns().size()) {
        for (std::size_t i = 0; i < columns.size(); ++i) {
            columns[i].width = target.columns()[i].width;
            columns[i].sized = target.columns()[i].sized;
        }
    }
    target.setColumns(std::move(columns));
    target.setRows(source.rows());
}

lines::F_VertragPreise& F_Vertrag::priceLines() {
    return host::moduleState().screen<lines::F_VertragPreise>(
        priceScreen, [this] { return std::make_unique<lines::F_VertragPreise>(services_); });
}

lines::F_VertragMengen& F_Vertrag::quantityLines() {
    return host::moduleState().screen<lines::F_VertragMengen>(
        quantityScreen, [this] { return std::make_unique<lines::F_VertragMengen>(services_); });
}

void F_Vertrag::showPriceLines(bool openScreen, std::optional<std::int64_t> line) {
    priceLines().Run(session_, id_, openScreen, line);
    CopyGrid(priceLines().lines(), Grid1);
}

void F_Vertrag::showQuantityLines(bool openScreen, std::optional<std::int64_t> line) {
    quantityLines().Run(session_, id_, openScreen, line);
    CopyGrid(quantityLines().lines(), Grid2);
}

void F_Vertrag::releaseLineScreens() {
    host::moduleState().release(priceScreen);
    host::moduleState().release(quantityScreen);
}

std::string F_Vertrag::GetAbschlagValue(const std::string& column) {
    StatementText query{"SELECT "};
    query.identifier(column)
        .fixed(" FROM ABSCHLAG WHERE RECH_NAME = ")
        .quotedAsItStands(name_)
        .fixed(" AND VER_TYPE = ")
        .quotedAsItStands(base::toUpper(host::moduleState().context.VerType));
    const auto model = session_.connection->open(query.text());
    return model->atEnd() ? std::string{} : model->text(column);
}

void F_Vertrag::showDeductionModel() {
    std::string reason;
    try {
        txtAbschlag.setText(GetAbschlagValue("ABS_MODEL"));
    } catch (const base::StatementError&) {
        // The name goes into the statement as it stands, and with an apostrophe in it there is none to send.
        txtAbschlag.setText("");
        reason = base::ownText(OwnText::noDeductionModel, session_.language);
    }
    lblOhneAbschlag.setVisible(!reason.empty());
    lblOhneAbschlag.setCaption(std::move(reason));
}

void F_Vertrag::openDeductions() {
    if (lblOhneAbschlag.visible()) throw base::Refused{OwnText::noDeductionModel};
    auto& deductions = host::moduleState().screen<deductions::F_Abschlag>(
        "F_Abschlag", [this] { return std::make_unique<deductions::F_Abschlag>(services_); });
    txtAbschlag.setText(deductions.Run(session_, deductionsOfContract, name_));
    if (host::moduleState().context.blnOK == host::Boolean16::True)
        status().say(parts::savedText(OwnText::deductionsSaved, deductions.takenOver(), session_.language));
}

void F_Vertrag::openLogistics() {
    // The form makes a record for whatever contract it is given.
    openContract().requirePresent();
    host::moduleState()
        .screen<logistics::F_Vertrag_WVO>(
            "F_Vertrag_WVO", [this] { return std::make_unique<logistics::F_Vertrag_WVO>(services_); })
        .Run(id_, session_);
}

void F_Vertrag::loadFlags() {
    chkAbgeschlossen.setChecked(false);
    chkAClEmpty.setChecked(false);
    StatementText query{
        "SELECT ISNULL(ABGESCHLOSSEN,0) AS ABGESCHLOSSEN,ISNULL(ACL_EMPTY,0) AS ACL_EMPTY   FROM VERTRAEGE"
        " WHERE ID_VERTRAG = "};
    flags_.show(*session_.connection->open(query.number(id_).text()));
    enteredFlags_.forget();
}

bool F_Vertrag::settleFlags() {
    return flags_.settle([this] {
        // clang-format off
        StatementText query{
            "SELECT ISNULL(ABGESCHLOSSEN,0) AS ABGESCHLOSSEN,ISNULL(ACL_EMPTY,0) AS ACL_EMPTY,ID_ACCESS_LEVELS FROM VERTRAEGE"
            " WHERE ID_VERTRAG = "};
        // clang-format on
        auto flags = session_.connection->open(query.number(id_).text());
        // Nobody can change the level here: the one that is there is written.
        if (!flags->atEnd()) accessLevel_ = flags->integer("ID_ACCESS_LEVELS");
        return flags;
    });
}

std::string F_Vertrag::GetRightsCode(const std::string& typeCode) {
    const int type = host::contractTypeNumber(base::toUpper(typeCode));
    if (type < 0) return {};
    return type == 0 ? "2PVK" : "2PVA" + std::to_string(type);
}

void F_Vertrag::chooseCustomer() {
    host::HostContext& context = host::moduleState().context;
    services_.moduleService.request(session_, "2PVK", base::toUpper(context.StrVer_Type),
                                    context.strServiceOut1, context.strServiceOut2);
    const std::int32_t chosen = services_.personalPicker.choose(
        session_, GetRightsCode(context.StrVer_Type),
        accessLevel_ == 0 ? session_.accessLevel : static_cast<int>(accessLevel_),
        context.g_intStandardMandanten, customer_, context.blnOK);
    if (chosen <= 0) return;
    // The one that is shown is written, too: a colleague may have removed it meanwhile.
    SetContractField("ID_PERSONAL", std::to_string(chosen), id_);
    customer_ = chosen;
    showCustomer();
    say(OwnText::writtenAtOnce, {base::ownText(OwnText::customerSaved, session_.language)});
}

void F_Vertrag::removeCustomer() {
    StatementText query{"SELECT * FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto contract = session_.connection->openUpdatable(query.number(id_).text());
    requireContract(*contract);
    contract->setField("id_personal", base::Null{});
    contract->update();
    customer_ = 0;
    txtKunde.setText("");
    say(OwnText::writtenAtOnce, {base::ownText(OwnText::customerRemoved, session_.language)});
}

void F_Vertrag::openHeader() {
    auto& header = host::moduleState().screen<F_HeaderVertrag>(
        "F_HeaderVertrag", [this] { return std::make_unique<F_HeaderVertrag>(services_); });
    header.Run(session_, id_);
    if (header.saved())
        status().say(parts::savedText(OwnText::headSaved, header.takenOver(), session_.language));
    ShowHeader();
    StatementText query{"SELECT ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG = "};
    accessLevel_ = session_.connection->open(query.number(id_).text())->integer("ID_ACCESS_LEVELS");
}

void F_Vertrag::save() {
    additionalTexts_.write();
    if (!settleFlags()) return;
    StatementText statement{"UPDATE VERTRAEGE SET ABGESCHLOSSEN = "};
    statement.fixed(chkAbgeschlossen.checked() ? "1" : "0");
    if (chkAClEmpty.checked()) {
        statement.fixed(",ACL_EMPTY = 1,ID_ACCESS_LEVELS = NULL");
    } else {
        statement.fixed(",ACL_EMPTY = 0,ID_ACCESS_LEVELS = CASE WHEN ")
            .number(accessLevel_)
            .fixed(" = 0 THEN NULL ELSE ")
            .number(accessLevel_)
            .fixed(" END");
    }
    statement.fixed(" WHERE ID_VERTRAG = ").number(id_);
    updateContract(*session_.connection, statement.text(), id_);
    notYetSaved_ = false;
    // The window closes: nobody would read it in the status line.
    if (const std::string taken = flags_.takenOver(); !taken.empty())
        parts::ShowMessage(services_.display, taken, ui::box::information);
    unload();
}

bool F_Vertrag::queryUnload() {
    if (newContract_ && notYetSaved_) {
        const std::string question = services_.localizer.text(host::textNumber::discardContract, session_);
        if (!parts::confirmed(services_.display, question, 0)) return false;
        const ui::BusyPointer busy{services_.display};
        discardContract(*session_.connection, id_);
        releaseLineScreens();
        return true;
    }
    // The window's close box leaves no field; what was typed last is written all the same.
    if (additionalTexts_.keepsRefused()) return false;
    releaseLineScreens();
    return true;
}

} // namespace tellurix::contract
