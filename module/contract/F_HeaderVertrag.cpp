#include "module/contract/F_HeaderVertrag.h"

#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/contract/contract_row.h"
#include "module/contract/header_captions.h"
#include "module/parts/Assignments.h"
#include "module/parts/contract_title.h"
#include "module/parts/fields/date_box.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"

namespace tellurix::contract {

using base::StatementText;
using ui::column;
using ui::field;
using ui::fields;
using ui::frame;
using ui::row;

namespace {

constexpr const char* screenCaption = "Kopf";
constexpr const char* numberMask = "#########0.00";

std::string numbered(const std::string& base, std::size_t index) {
    return base + std::to_string(index + 1);
}

} // namespace

F_HeaderVertrag::F_HeaderVertrag(host::HostServices& services)
    : Form("F_HeaderVertrag", screenCaption),
      services_(services),
      rechnungsart_(
          txtRechn, services, session_, [this] { return ui::plainCaption(lblRechnungsArt.caption()); },
          parts::queried("SELECT RECHNUNGSART AS SHORT FROM RECHNUNGSART",
                         "SELECT RART_ID,RECHNUNGSART  FROM RECHNUNGSART WHERE RECHNUNGSART = '")),
      buchungsart_(
          txtBuchn, services, session_, [this] { return ui::plainCaption(lblBuchnungsArt.caption()); },
          parts::queried("SELECT BUCHUNGSTEXT AS SHORT FROM BUCHNR",
                         "SELECT BUCHNR_ID,BUCHUNGSTEXT  FROM BUCHNR WHERE BUCHUNGSTEXT = '")),
      mandant_(txtMandant[0], txtMandant[1], services, session_,
               {.pickerMode = "2PVM",
                .validFilter = "PERSONAL_VALID_MANDANTEN",
                .accessLevel = [this] { return accessLevel_; }}),
      lieferadresse_(txtLieferadresse[0], txtLieferadresse[1], services, session_,
                     {.pickerMode = "2PVAP", .validFilter = "PERSONAL_VALID", .accessLevel = [this] {
                          return accessLevel_;
                      }}) {
    connectDates();
    for (ui::TextBox& box : txtNumber)
        numbers_.emplace_back(box, numberMask, services_.locale);
    connectCurrency();
    connectRow();
    btnOk.onClick = [this] { save(); };
    btnCancel.onClick = [this] { cancel(); };
    btnCancel.setCausesValidation(false);
    arrange();
    changes_.watchAll(*this);
}

void F_HeaderVertrag::connectDates() {
    const auto connect = [this](ui::TextBox& box, std::function<std::string()> title) {
        parts::makeDateBox(box, services_, session_, std::move(title));
    };
    connect(txtDate1, [this] { return lblVertragsDatum.caption(); });
    connect(txtDate2, [this] { return lblDate2.caption(); });
    connect(txtDate3, [this] { return lblDate3.caption(); });
    connect(txtDate4, [this] { return lblDate4.caption(); });
    connect(txtLieferVon, [this] { return frmLieferVon.caption() + " " + lblLieferVon.caption(); });
    connect(txtLieferBis, [this] { return frmLieferVon.caption() + " " + lblLieferBis.caption(); });
    for (ui::TextBox* box : {&txtLieferVon, &txtLieferBis}) {
        box->onLeave = [this, takesDate = std::move(box->onLeave)] {
            const bool taken = takesDate();
            markPeriod();
            return taken;
        };
    }
}

/// Mostly a slip of the year, which would leave the contract without weeks to plan.
void F_HeaderVertrag::markPeriod() {
    const auto from = base::parseDate(txtLieferVon.text());
    const auto to = base::parseDate(txtLieferBis.text());
    const bool reversed = from && to && *to < *from;
    txtLieferBis.setWarning(
        reversed ? base::ownText(base::OwnText::periodEndsEarly, session_.language, {base::dateText(*from)})
                 : "");
}

void F_HeaderVertrag::connectCurrency() {
    txtWahrung.onPick = [this] {
        StatementText query{"SELECT 'EUR' AS SHORT UNION ALL SELECT '"};
        query.insideLiteral(homeCurrency_).fixed("'");
        txtWahrung.setText(
            services_.listPicker.choose(session_, query.text(), lblWahrung.caption(), txtWahrung.text()));
    };
    txtWahrung.onLeave = [this] {
        leaveCurrency();
        return true;
    };
}

void F_HeaderVertrag::connectRow() {
    row_.date(txtDate1, "INVDATE");
    row_.date(txtDate2, "DATE1");
    row_.date(txtDate3, "DATE2");
    row_.date(txtDate4, "DATE3");
    row_.date(txtLieferVon, "LIEFERVON");
    row_.date(txtLieferBis, "LIEFERBIS",
              [this] { return ui::plainCaption(frmLieferVon.caption() + " " + lblLieferBis.caption()); });
    for (std::size_t i = 0; i < numbers_.size(); ++i) {
        row_.number(numbers_[i], numbered("NUMM", i));
        row_.text(txtKopf[i], numbered("KOPF", i));
    }
    row_.lookup(rechnungsart_, "RART_ID", "RECHNUNGSART");
    row_.lookup(buchungsart_, "BUCHNR_ID", "BUCHUNGSTEXT");
    const auto currency = [this](base::Fields& row) { return row.flag("EURO") ? host::euro : homeCurrency_; };
    row_.add({.column = "EURO",
              .name = [this] { return ui::plainCaption(lblWahrung.caption()); },
              .show =
                  [this, currency](base::Fields& row) {
                      txtWahrung.show(currency(row));
                      txtWahrung.setTag(row.flag("EURO") ? "1" : "0");
                  },
              .mine = [this] { return txtWahrung.text(); },
              .theirs = currency,
              .in = {&txtWahrung}});
    row_.person(mandant_, "ID_MANDANTEN", "MANDANTENNUMMER", "MANDANTENKURZBEZEICHNUNG");
    row_.person(lieferadresse_, "ID_PERSONAL_LIEFERADRESSE", "PLANUMMER", "PLAKURZBEZEICHNUNG");
}

void F_HeaderVertrag::arrange() {
    std::vector<ui::Layout> numbers;
    std::vector<ui::Layout> texts;
    for (std::size_t i = 0; i < txtNumber.size(); ++i) {
        numbers.push_back(field(lblNumber[i], txtNumber[i]));
        texts.push_back(field(LabelKopf[i], txtKopf[i]).growing());
    }
    setLayout(column({
        row({
                ui::groups({
                    frame(frmDates, {fields(1, {field(lblVertragsDatum, txtDate1), field(lblDate2, txtDate2),
                                                field(lblDate3, txtDate3), field(lblDate4, txtDate4)})}),
                    frame(frmLieferVon, {fields(1, {field(lblLieferVon, txtLieferVon),
                                                    field(lblLieferBis, txtLieferBis)})}),
                    frame(frmRechnung,
                          {fields(1, {field(lblRechnungsArt, txtRechn), field(lblBuchnungsArt, txtBuchn),
                                      field(lblWahrung, txtWahrung)})}),
                    frame(Frame1, {field(lblMandant, txtMandant[0], txtMandant[1])}),
                    frame(Frame2, {field(Label1, txtLieferadresse[0], txtLieferadresse[1])}),
                }),
                ui::groups({frame(frmNumbers, {fields(1, std::move(numbers))})}),
                ui::groups({frame(frmKopfs, {fields(1, std::move(texts))})}).growing(),
            })
            .growing(),
        ui::bar({ui::Layout{btnOk}.primary(), btnCancel}),
    }));
}

int F_HeaderVertrag::Run(const host::TlxVar& session, std::int32_t contract) {
    session_ = session;
    contract_ = contract;
    takenOver_.clear();
    saved_ = false;
    for (std::size_t i = 0; i < txtKopf.size(); ++i)
        txtKopf[i].setMaxLength(services_.columnWidth.of(session_, "VERTRAEGE", numbered("KOPF", i)));
    homeCurrency_ = session.homeCurrency;
    host::moduleState().context.blnOK = host::Boolean16::False;
    setCaptions();
    LoadHeader();
    services_.display.showModal(*this);
    return 0;
}

void F_HeaderVertrag::setCaptions() {
    const std::string name = parts::contractName(services_, session_, contract_);
    parts::localizeWithTitle(services_, session_, *this, screenCaption, name);
    const HeaderCaptions captions = headerCaptions(host::moduleState().context.StrVer_Type);
    const auto caption = [this](ui::Label& label, int number) {
        label.setCaption(services_.localizer.text(number, session_));
    };
    for (std::size_t i = 0; i < LabelKopf.size(); ++i) {
        caption(LabelKopf[i], captions.kopf[i]);
        caption(lblNumber[i], captions.numbers[i]);
    }
    caption(lblDate2, captions.dates[0]);
    caption(lblDate3, captions.dates[1]);
    caption(lblDate4, captions.dates[2]);
    caption(lblRechnungsArt, captions.rechnungsart);
    caption(lblBuchnungsArt, captions.buchungsart);
    caption(lblWahrung, captions.wahrung);
}

std::unique_ptr<base::Recordset> F_HeaderVertrag::readRow() {
    // clang-format off
    StatementText query{"SELECT "
        "VERTRAEGE.INVDATE,VERTRAEGE.DATE1,VERTRAEGE.DATE2,VERTRAEGE.DATE3,VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,"
        "VERTRAEGE.KOPF1,VERTRAEGE.KOPF2,VERTRAEGE.KOPF3,VERTRAEGE.KOPF4,VERTRAEGE.KOPF5,VERTRAEGE.KOPF6,VERTRAEGE.KOPF7,VERTRAEGE.KOPF8,VERTRAEGE.KOPF9,VERTRAEGE.KOPF10,"
        "VERTRAEGE.NUMM1,VERTRAEGE.NUMM2,VERTRAEGE.NUMM3,VERTRAEGE.NUMM4,VERTRAEGE.NUMM5,VERTRAEGE.NUMM6,VERTRAEGE.NUMM7,VERTRAEGE.NUMM8,VERTRAEGE.NUMM9,VERTRAEGE.NUMM10,"
        "VERTRAEGE.RART_ID,RECHNUNGSART.RECHNUNGSART,"
        "VERTRAEGE.BUCHNR_ID,BUCHNR.BUCHUNGSTEXT,"
        "ISNULL(VERTRAEGE.EURO,0) AS EURO,"
        "VERTRAEGE.ID_ACCESS_LEVELS,"
        "VERTRAEGE.ID_MANDANTEN,MANDANTEN.NUMMER AS MANDANTENNUMMER,MANDANTEN.KURZBEZEICHNUNG AS MANDANTENKURZBEZEICHNUNG, "
        "VERTRAEGE.ID_PERSONAL_LIEFERADRESSE,PLA.NUMMER AS PLANUMMER,PLA.KURZBEZEICHNUNG AS PLAKURZBEZEICHNUNG"
        " FROM VERTRAEGE"
        " LEFT JOIN RECHNUNGSART ON RECHNUNGSART.RART_ID = VERTRAEGE.RART_ID"
        " LEFT JOIN BUCHNR ON BUCHNR.BUCHNR_ID = VERTRAEGE.BUCHNR_ID"
        " LEFT JOIN PERSONAL MANDANTEN ON MANDANTEN.ID_PERSONAL = VERTRAEGE.ID_MANDANTEN"
        " LEFT JOIN PERSONAL PLA ON PLA.ID_PERSONAL = VERTRAEGE.ID_PERSONAL_LIEFERADRESSE "
        " WHERE VERTRAEGE.ID_VERTRAG = "};
    // clang-format on
    return session_.connection->open(query.number(contract_).text());
}

void F_HeaderVertrag::LoadHeader() {
    const auto row = readRow();
    requireContract(*row);
    row_.show(*row);
    markPeriod();
    accessLevel_ = static_cast<int>(row->integer("ID_ACCESS_LEVELS", session_.accessLevel));
    changes_.forget();
}

void F_HeaderVertrag::leaveCurrency() {
    const bool home =
        txtWahrung.text().empty() || base::toUpper(txtWahrung.text()) == base::toUpper(homeCurrency_);
    txtWahrung.setText(home ? homeCurrency_ : host::euro);
    txtWahrung.setTag(home ? "0" : "1");
}

std::string F_HeaderVertrag::updateStatement() {
    StatementText statement{"UPDATE VERTRAEGE SET "};
    parts::Assignments assign{statement, services_, session_};
    const auto person = [this](const parts::PersonBox& box) {
        return base::isNumeric(box.key(), services_.locale) ? box.key() : std::string{};
    };

    assign.date("INVDATE = ", txtDate1);
    assign.date(",DATE1 = ", txtDate2);
    assign.date(",DATE2 = ", txtDate3);
    assign.date(",DATE3 = ", txtDate4);
    assign.date(",LIEFERVON = ", txtLieferVon);
    assign.date(",LIEFERBIS = ", txtLieferBis);
    for (std::size_t i = 0; i < numbers_.size(); ++i)
        assign.number(numbered(",NUMM", i) + " = ", numbers_[i]);
    for (std::size_t i = 0; i < txtKopf.size(); ++i)
        assign.text(numbered(",KOPF", i) + " = ", txtKopf[i]);
    assign.key(",RART_ID = ", rechnungsart_.key());
    assign.key(",BUCHNR_ID = ", buchungsart_.key());
    assign.key(",ID_MANDANTEN = ", person(mandant_));
    assign.key(",ID_PERSONAL_LIEFERADRESSE = ", person(lieferadresse_));
    statement.fixed(",EURO = ").fixed(txtWahrung.tag() == "1" ? "1" : "0");
    statement.fixed(" WHERE ID_VERTRAG = ").number(contract_);
    return statement.text();
}

void F_HeaderVertrag::save() {
    static_cast<void>(updateStatement()); // refuses what no statement can carry before anything is asked
    if (!row_.settle([this] { return readRow(); })) return;
    updateContract(*session_.connection, updateStatement(), contract_);
    takenOver_ = row_.takenOver();
    saved_ = true;
    changes_.forget();
    unload();
}

void F_HeaderVertrag::cancel() {
    changes_.forget();
    unload();
}

bool F_HeaderVertrag::queryUnload() {
    return !changes_.any() || parts::confirmed(services_, session_, base::OwnText::closeChanged);
}

} // namespace tellurix::contract
