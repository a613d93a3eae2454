#include "module/contract/F_Vertrag.h"

#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/base/field_text.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/contract/F_HeaderVertrag.h"
#include "module/contract/contract_row.h"
#include "module/contract/header_captions.h"
#include "module/deductions/F_Abschlag.h"
#include "module/host/contract_type.h"
#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/parts/questions.h"
#include "module/parts/typed_text.h"
#include "module/ui/caption.h"

namespace tellurix::contract {

using base::OwnText;
using base::StatementText;
using ui::column;
using ui::field;
using ui::fields;
using ui::frame;
using ui::row;

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
    txtAbschlag.setLocked(true);
    btnZusatz.setToolTip("Zusatztext");
    cmdZusatzText.setToolTip("Zusatztext");
    btnDeleteMan.setToolTip("Kunde aus dem Vertrag entfernen");
    picZusatzText.setVisible(false);
    txtMessage.setVisible(false);
    // Their screens are not part of the module yet.
    const std::initializer_list<ui::Control*> later{&btnLieferprofil_WVO, &btnWord};
    for (ui::Control* control : later)
        control->setEnabled(false);
    connect();
    arrange();
}

void F_Vertrag::connect() {
    KundeButton.onClick = [this] { chooseCustomer(); };
    btnDeleteMan.onClick = [this] { removeCustomer(); };
    btnHeader.onClick = [this] { openHeader(); };
    PreisButton.onClick = [this] { showPriceLines(true); };
    PosButton.onClick = [this] { showQuantityLines(true); };
    btnAbschlag.onClick = [this] { openDeductions(); };
    btnZusatz.onClick = [this] { toggleAdditionalTexts(); };
    cmdZusatzText.onClick = [this] { toggleAdditionalTexts(); };
    btnSpeichern.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { unload(); };
    setCancelButton(btnAbbrechen);
    // A contract to take over from that is not there must not keep the window open.
    btnAbbrechen.setCausesValidation(false);
    for (AdditionalText& text : additionalTexts_) {
        text.box.setLines(2);
        text.box.onLeave = [this, &text] {
            writeAdditionalText(text);
            return true;
        };
    }
}

void F_Vertrag::arrange() {
    setLayout(column({
        row({
            frame(frmKunde, {row({txtKunde, KundeButton, btnDeleteMan}), ui::Layout{List1}.growing(),
                             row({btnHeader, btnZusatz})})
                .growing(),
            column({
                row({btnAbschlag, txtAbschlag}),
                lblOhneAbschlag,
                chkAbgeschlossen,
                chkAClEmpty,
                btnLieferprofil_WVO,
                takeOver_.layout(),
            }),
        }),
        frame(picZusatzText,
              {fields(3, {field(lblZusatz, txtZusatz), field(lblZusatzText[0], txtZusatzText[0]),
                          field(lblZusatzText[1], txtZusatzText[1])}),
               row({cmdZusatzText})}),
        row({
                frame(frmPreise, {Grid1, row({PreisButton})}).growing(),
                frame(frmMengen, {Grid2, row({PosButton})}).growing(),
            })
            .growing(),
        row({btnWord, txtMessage, btnSpeichern, btnAbbrechen}),
    }));
}

void F_Vertrag::Run(const host::TlxVar& session, std::int32_t id, const std::string& /*name*/,
                    bool newVertrag, const std::string& strCaption, const bool& enableKLR) {
    id_ = id;
    enableKLR_ = enableKLR;
    session_ = session;
    notYetSaved_ = true;
    newContract_ = newVertrag;
    picZusatzText.setVisible(false);
    btnLieferprofil_WVO.setVisible(true);
    takeOver_.open({.services = &services_, .session = session_, .id = id_});

    name_ = services_.dataAccess.readValue(session_, "VERTRAG_NAME", "VERTRAEGE",
                                           " ID_VERTRAG = " + std::to_string(id_));
    if (newContract_) {
        SetContractField("INVDATE", base::dateText(services_.clock.today()), id_);
    }
    loadContract();
    loadAdditionalTexts();
    ShowHeader();
    showPriceLines(false);
    showQuantityLines(false);
    services_.localizer.localize(session_, *this);
    setTitle(strCaption + " (" + name_ + ")");
    showDeductionModel();
    loadFlags();
    services_.display.showModal(*this);
}

void F_Vertrag::SetContractField(const std::string& column, const std::string& value, std::int32_t contract) {
    StatementText statement{"UPDATE VERTRAEGE SET "};
    statement.identifier(column).fixed(" = ").quotedAsItStandsOrNull(value);
    statement.fixed(" WHERE ID_VERTRAG = ").number(contract);
    updateContract(*session_.connection, statement.text());
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

void F_Vertrag::loadAdditionalTexts() {
    StatementText query{"SELECT ZUSATZTEXT, ZUSATZTEXT_1, ZUSATZTEXT_2 FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto texts = session_.connection->open(query.number(id_).text());
    for (AdditionalText& text : additionalTexts_) {
        text.written = texts->text(text.column);
        text.box.setText(text.written);
    }
}

void F_Vertrag::ShowHeader() {
    // clang-format off
    StatementText query{"SELECT "
        "VERTRAEGE.INVDATE,VERTRAEGE.DATE1,VERTRAEGE.DATE2,VERTRAEGE.DATE3,VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,"
        "VERTRAEGE.KOPF1,VERTRAEGE.KOPF2,VERTRAEGE.KOPF3,VERTRAEGE.KOPF4,VERTRAEGE.KOPF5,VERTRAEGE.KOPF6,VERTRAEGE.KOPF7,VERTRAEGE.KOPF8,VERTRAEGE.KOPF9,VERTRAEGE.KOPF10,"
        "VERTRAEGE.NUMM1,VERTRAEGE.NUMM2,VERTRAEGE.NUMM3,VERTRAEGE.NUMM4,VERTRAEGE.NUMM5,VERTRAEGE.NUMM6,VERTRAEGE.NUMM7,VERTRAEGE.NUMM8,VERTRAEGE.NUMM9,VERTRAEGE.NUMM10,"
        "RECHNUNGSART.RECHNUNGSART,BUCHNR.BUCHUNGSTEXT,"
        "ISNULL(VERTRAEGE.EURO,0) AS EURO,"
        "PLA.NUMMER AS PLANUMMER,PLA.KURZBEZEICHNUNG AS PLAKURZBEZEICHNUNG"
        " FROM VERTRAEGE"
        " LEFT JOIN RECHNUNGSART ON RECHNUNGSART.RART_ID = VERTRAEGE.RART_ID"
        " LEFT JOIN BUCHNR ON BUCHNR.BUCHNR_ID = VERTRAEGE.BUCHNR_ID"
        " LEFT JOIN PERSONAL PLA ON PLA.ID_PERSONAL = VERTRAEGE.ID_PERSONAL_LIEFERADRESSE AND PLA.ID_PERSONAL > 0"
        " WHERE VERTRAEGE.ID_VERTRAG = "};
    // clang-format on
    const auto header = session_.connection->open(query.number(id_).text());
    requireContract(*header);
    List1.clear();
    const auto add = [this](const std::string& caption, const std::string& value) {
        if (!value.empty()) List1.add(ui::plainCaption(caption) + ": " + value);
    };
    const auto caption = [this](int number) { return services_.localizer.text(number, session_); };
    const auto ownText = [this](OwnText text) { return base::ownText(text, session_.language); };
    const HeaderCaptions captions = headerCaptions(host::moduleState().context.StrVer_Type);

    add(ownText(OwnText::contractDate), base::dateText(header->field("INVDATE")));
    const std::string from = base::dateText(header->field("LIEFERVON"));
    const std::string to = base::dateText(header->field("LIEFERBIS"));
    if (!from.empty() || !to.empty()) add(ownText(OwnText::deliveryPeriod), from + " – " + to);
    for (std::size_t i = 0; i < captions.dates.size(); ++i) {
        add(caption(captions.dates[i]), base::dateText(header->field("DATE" + std::to_string(i + 1))));
    }
    add(ownText(OwnText::deliveryAddress), header->text("PLAKURZBEZEICHNUNG"));
    add(caption(captions.rechnungsart), header->text("RECHNUNGSART"));
    add(caption(captions.buchungsart), header->text("BUCHUNGSTEXT"));
    add(caption(captions.wahrung), header->flag("EURO") ? host::euro : session_.homeCurrency);
    for (std::size_t i = 0; i < captions.kopf.size(); ++i) {
        add(caption(captions.kopf[i]), header->text("KOPF" + std::to_string(i + 1)));
    }
    for (std::size_t i = 0; i < captions.numbers.size(); ++i) {
        const base::Value number = header->field("NUMM" + std::to_string(i + 1));
        add(caption(captions.numbers[i]), base::numberText(number, "0.00", services_.locale));
    }
}

void F_Vertrag::CopyGrid(const ui::Grid& source, ui::Grid& target) {
    std::vector<ui::Grid::Column> columns = source.columns();
    // The column that marks the current line says nothing in an overview.
    for (ui::Grid::Column& column : columns)
        column.visible = column.visible && !column.caption.empty();
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

void F_Vertrag::showPriceLines(bool openScreen) {
    priceLines().Run(session_, id_, openScreen);
    CopyGrid(priceLines().lines(), Grid1);
}

void F_Vertrag::showQuantityLines(bool openScreen) {
    quantityLines().Run(session_, id_, openScreen);
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
}

void F_Vertrag::loadFlags() {
    chkAbgeschlossen.setChecked(false);
    chkAClEmpty.setChecked(false);
    StatementText query{
        "SELECT ISNULL(ABGESCHLOSSEN,0) AS ABGESCHLOSSEN,ISNULL(ACL_EMPTY,0) AS ACL_EMPTY   FROM VERTRAEGE"
        " WHERE ID_VERTRAG = "};
    const auto flags = session_.connection->open(query.number(id_).text());
    chkAbgeschlossen.setChecked(flags->integer("ABGESCHLOSSEN") != 0);
    chkAClEmpty.setChecked(flags->integer("ACL_EMPTY") != 0);
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
}

void F_Vertrag::removeCustomer() {
    StatementText query{"SELECT * FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto contract = session_.connection->openUpdatable(query.number(id_).text());
    requireContract(*contract);
    contract->setField("id_personal", base::Null{});
    contract->update();
    customer_ = 0;
    txtKunde.setText("");
}

void F_Vertrag::openHeader() {
    auto& header = host::moduleState().screen<F_HeaderVertrag>(
        "F_HeaderVertrag", [this] { return std::make_unique<F_HeaderVertrag>(services_); });
    header.Run(session_, id_);
    ShowHeader();
    StatementText query{"SELECT ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG = "};
    accessLevel_ = session_.connection->open(query.number(id_).text())->integer("ID_ACCESS_LEVELS");
}

void F_Vertrag::toggleAdditionalTexts() {
    picZusatzText.setVisible(!picZusatzText.visible());
    parts::SafeSetFocus(picZusatzText.visible() ? static_cast<ui::Control&>(txtZusatz) : btnZusatz);
}

void F_Vertrag::writeAdditionalText(AdditionalText& text) {
    if (text.box.text() == text.written) return;
    SetContractField(text.column, parts::typedText(text.box), id_);
    text.written = text.box.text();
}

bool F_Vertrag::keepsRefusedText() {
    ui::TextBox* refused = nullptr;
    for (AdditionalText& text : additionalTexts_) {
        try {
            writeAdditionalText(text);
        } catch (const std::exception&) {
            if (refused == nullptr) refused = &text.box;
        }
    }
    if (refused == nullptr) return false;
    const std::string question = base::ownText(OwnText::textNotSaved, session_.language);
    if (parts::confirmed(services_.display, question, ui::box::exclamation)) return false;
    picZusatzText.setVisible(true);
    parts::SafeSetFocus(*refused);
    return true;
}

void F_Vertrag::save() {
    for (AdditionalText& text : additionalTexts_)
        writeAdditionalText(text);
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
    updateContract(*session_.connection, statement.text());
    notYetSaved_ = false;
    unload();
}

bool F_Vertrag::queryUnload() {
    if (newContract_ && notYetSaved_) {
        const std::string question = services_.localizer.text(host::textNumber::discardContract, session_);
        if (parts::ShowMessage(services_.display, question, ui::box::yesNo) != ui::Answer::yes) return false;
        discard();
        releaseLineScreens();
        return true;
    }
    // The window's close box leaves no field; what was typed last is written all the same.
    if (keepsRefusedText()) return false;
    releaseLineScreens();
    return true;
}

void F_Vertrag::discard() {
    const ui::BusyPointer busy{services_.display};
    const auto run = [this](std::string_view before, std::string_view after = {}) {
        StatementText statement{before};
        session_.connection->execute(statement.number(id_).fixed(after).text());
    };
    run("DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG = ");
    run("DELETE FROM VERTRAG_MENGEN WHERE ID_VERTRAG = ");
    run("DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ",
        ")");
    run("DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG in (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ",
        ")");
    run("DELETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ");
    run("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = ");
}

} // namespace tellurix::contract
