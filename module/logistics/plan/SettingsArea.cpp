#include "module/logistics/plan/SettingsArea.h"

#include "module/base/Refused.h"
#include "module/base/text.h"
#include "module/logistics/plan/original_document.h"
#include "module/parts/Assignments.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/date_box.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"
#include "module/ui/input/time_box.h"

namespace tellurix::logistics {

using base::OwnText;
using base::StatementText;
using ui::column;
using ui::field;
using ui::frame;
using ui::row;

namespace {

constexpr const char* settingsTable = "WVO_VERTRAG";
constexpr const char* timeFormat = "(Uhrzeit im Format 00:00)";
constexpr const char* percentMask = "#####0.00";
/// The title of a picker is what the box is called.
std::function<std::string()> captionOf(const ui::Label& label) {
    return [&label] { return ui::plainCaption(label.caption()); };
}

} // namespace

SettingsArea::SettingsArea(ui::Form& form, host::HostServices& services, parts::UndoOffers& undo)
    : services_(services),
      undo_(undo),
      frmSchalter(form, "frmSchalter", "Schalter"),
      chkAngemeldeteMenge(form, "chkAngemeldeteMenge", "Angemeldete Menge wird sofort zugesagt"),
      chkGesperrt(form, "chkGesperrt", "Vertrag gesperrt"),
      chkMengenauf(form, "chkMengenauf", "Mengenaufstockung möglich"),
      chkErforderlich(form, "chkErforderlich", "Längenangabe erforderlich"),
      chkAktive(form, "chkAktive", "Aktive Erinnerung an Lieferprofil"),
      chkVermarktung(form, "chkVermarktung", "Vermarktungsauftrag abgeschlossen"),
      chkSichtbar(form, "chkSichtbar", "Planmenge sichtbar"),
      chkHandabmas(form, "chkHandabmas", "Handabmaß gilt als Verrechnungsmaß"),
      chkVertragMGSichtbar(form, "chkVertragMGSichtbar", "Vertragsdokument für Mitglied sichtbar"),
      chkGeschaeftsfeldNeu(form, "chkGeschaeftsfeldNeu", "Vertrag wird im \"Geschäftsfeld Neu\" abgewickelt"),
      chkVorvertrag(form, "chkVorvertrag", "Vorvertrag"),
      chkKeine_Mengenmeldung_Auf_WB(form, "chkKeine_Mengenmeldung_Auf_WB",
                                    "Keine Mengenmeldung auf Waldbesitzer notwendig"),
      chkLieferungAusserhalbmoeglich(form, "chkLieferungAusserhalbmoeglich",
                                     "Lieferung auch ausserhalb Vertragszeitraum möglich"),
      frmEinstellungen(form, "frmEinstellungen", "Einstellungen"),
      lblAngemeldete(form, "lblAngemeldete", "Angemeldete Menge wird zugesagt am"),
      txtAngemeldete(form, "txtAngemeldete", 11),
      lblMengenmeldung(form, "lblMengenmeldung", "Mengenmeldung bis zum"),
      txtMengenmeldung(form, "txtMengenmeldung", 11),
      lblUberlieferung(form, "lblUberlieferung", "Überlieferung in %"),
      txtUberlieferung(form, "txtUberlieferung", 11),
      lblBereitstellung(form, "lblBereitstellung", "Bereitstellungsmeldung bis"),
      txtBereitstellung(form, "txtBereitstellung", 16),
      txtBereitstellungTime(form, "txtBereitstellungTime", 8),
      lblBereitstellungTime(form, "lblBereitstellungTime", timeFormat),
      lblBelieferung(form, "lblBelieferung", "Belieferung"),
      txtBelieferung(form, "txtBelieferung", 34),
      lblLieferparitat(form, "lblLieferparitat", "Lieferparität"),
      txtLieferparitat(form, "txtLieferparitat", 34),
      frmBemerkung(form, "frmBemerkung", "Bemerkung"),
      txtBemerkung(form, "txtBemerkung", 60),
      frmOriginal(form, "frmOriginal", "Original-Verkaufsdokument wählen"),
      txtOriginal(form, "txtOriginal", 44),
      btnOriginal(form, "btnOriginal", "..."),
      frmFhpLogistik(form, "frmFhpLogistik", "FHP Logistik"),
      chkFHPLogistikVerweden(form, "chkFHPLogistikVerweden", "FHP Logistikprozess verwenden"),
      chkWaldverbandLogistikkoordinator(form, "chkWaldverbandLogistikkoordinator",
                                        "Waldverband ist Logistikkoordinator (Frei Werk Lieferungen)"),
      chkWaldhelferKannFraechterAendern(
          form, "chkWaldhelferKannFraechterAendern",
          "Waldhelfer (Logistikansprechpartner) kann vor dem Senden des Transportauftrages den Frächter "
          "ändern"),
      chkWaldhelferKannTransportauftraegeTeilen(
          form, "chkWaldhelferKannTransportauftraegeTeilen",
          "Waldhelfer (Logistikansprechpartner) kann eine Anfuhr auf mehrere Transportaufträge (max3) "
          "teilen"),
      lblTransportauftraege(form, "lblTransportauftraege",
                            "Nicht versandte Transportaufträge automatisch versenden am:"),
      txtTransportauftraege(form, "txtTransportauftraege", 16),
      txtTransportauftragTime(form, "txtTransportauftragTime", 8),
      lblTransportauftragTime(form, "lblTransportauftragTime", timeFormat),
      btnBearbeiten(form, "btnBearbeiten", "&Bearbeiten"),
      btnSpeichern(form, "btnSpeichern", "&Speichern"),
      btnAbbrechen(form, "btnAbbrechen", "Bearb. &Abbr."),
      uberlieferung_(txtUberlieferung, percentMask, services.locale),
      belieferung_(txtBelieferung, services, contract_.session, captionOf(lblBelieferung),
                   parts::named("WVO_T_BELIEFERUNG")),
      lieferparitat_(txtLieferparitat, services, contract_.session, captionOf(lblLieferparitat),
                     parts::named("WVO_T_LIEFERPARITAT")),
      bereitstellung_(txtBereitstellung, services, contract_.session, captionOf(lblBereitstellung),
                      parts::named("WVO_T_BEREITSELLUNGS")),
      transportauftraege_(txtTransportauftraege, services, contract_.session,
                          captionOf(lblTransportauftraege), parts::named("WVO_T_BEREITSELLUNGS")),
      row_(services, contract_.session),
      mode_({.edit = &btnBearbeiten, .save = &btnSpeichern, .cancel = &btnAbbrechen},
            {.whileEdited = {&frmSchalter, &frmEinstellungen, &frmBemerkung, &frmOriginal, &frmFhpLogistik},
             .changes = &changes_},
            [] { return true; }) {
    txtBemerkung.setLines(2);
    connect();
    connectRow();
}

void SettingsArea::connect() {
    const auto time = [this](ui::TextBox& box, const ui::Label& label) {
        ui::makeTimeBox(box, [this, &box, &label] {
            box.setError(base::ownText(OwnText::timeFormat, contract_.session.language,
                                       {ui::plainCaption(label.caption())}));
            parts::tellInvalid(services_.display, services_.localizer, contract_.session, &label);
        });
    };
    parts::makeDateBox(txtAngemeldete, services_, contract_.session, captionOf(lblAngemeldete));
    parts::makeDateBox(txtMengenmeldung, services_, contract_.session, captionOf(lblMengenmeldung));
    time(txtBereitstellungTime, lblBereitstellung);
    time(txtTransportauftragTime, lblTransportauftraege);
    chkFHPLogistikVerweden.onClick = [this] {
        if (!chkFHPLogistikVerweden.checked()) forgetLogisticsProcess();
    };
    btnOriginal.onClick = [this] { chooseDocument(); };
    btnBearbeiten.onClick = [this] { startEdit(); };
    btnSpeichern.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { cancel(); };
    for (ui::CheckBox* box :
         {&chkAngemeldeteMenge, &chkGesperrt, &chkMengenauf, &chkErforderlich, &chkAktive, &chkVermarktung,
          &chkSichtbar, &chkHandabmas, &chkVertragMGSichtbar, &chkGeschaeftsfeldNeu, &chkVorvertrag,
          &chkKeine_Mengenmeldung_Auf_WB, &chkLieferungAusserhalbmoeglich, &chkFHPLogistikVerweden,
          &chkWaldverbandLogistikkoordinator, &chkWaldhelferKannFraechterAendern,
          &chkWaldhelferKannTransportauftraegeTeilen})
        changes_.watch(*box);
    for (ui::TextBox* box : {&txtAngemeldete, &txtMengenmeldung, &txtUberlieferung, &txtBereitstellung,
                             &txtBereitstellungTime, &txtBelieferung, &txtLieferparitat, &txtBemerkung,
                             &txtOriginal, &txtTransportauftraege, &txtTransportauftragTime})
        changes_.watch(*box);
}

void SettingsArea::connectRow() {
    row_.flag(chkAngemeldeteMenge, "ANGEMELDETEMENGE");
    row_.flag(chkGesperrt, "GESPERRT");
    row_.flag(chkMengenauf, "MENGENAUF");
    row_.flag(chkErforderlich, "ERFORDERLICH");
    row_.flag(chkAktive, "AKTIVE");
    row_.flag(chkVermarktung, "VERMARKTUNG");
    row_.flag(chkSichtbar, "SICHTBAR");
    row_.flag(chkHandabmas, "HANDABMAS");
    row_.flag(chkVertragMGSichtbar, "VERTRAG_MG_SICHTBAR");
    row_.flag(chkGeschaeftsfeldNeu, "GESCHAEFTSFELD_NEU");
    row_.flag(chkVorvertrag, "VORVERTRAG");
    row_.flag(chkKeine_Mengenmeldung_Auf_WB, "KEINE_MENGENMELDUNG_AUF_WB");
    row_.flag(chkLieferungAusserhalbmoeglich, "LIEFERUNGAUSSERHALBMOEGLICH");
    row_.flag(chkFHPLogistikVerweden, "FHP_LOGISTIK_VERWENDEN");
    row_.flag(chkWaldverbandLogistikkoordinator, "FHP_WALDVERBAND_KOORDINATOR");
    row_.flag(chkWaldhelferKannFraechterAendern, "FHP_WH_FR_AENDERN");
    row_.flag(chkWaldhelferKannTransportauftraegeTeilen, "FHP_WH_TA_TEILEN");

    row_.date(txtAngemeldete, "ANGEMELDETE");
    row_.date(txtMengenmeldung, "MENGENMELDUNG");
    row_.number(uberlieferung_, "UBERLIEFERUNG");
    row_.text(txtBemerkung, "BEMERKUNG");
    row_.text(txtOriginal, "ORIGINAL");
    row_.lookup(belieferung_, "ID_WVO_T_BELIEFERUNG", "WVO_T_BELIEFERUNGLONG");
    row_.lookup(lieferparitat_, "ID_WVO_T_LIEFERPARITAT", "WVO_T_LIEFERPARITATLONG");
    connectWeekday(bereitstellung_, "BEREITSELLUNGS");
    row_.text(txtBereitstellungTime, "BEREITSELLUNGSTIME");
    connectWeekday(transportauftraege_, "FHP_TA_SENDETAG");
    row_.text(txtTransportauftragTime, "FHP_TA_SENDETIME");
}

void SettingsArea::connectWeekday(parts::LookupBox& box, const char* column) {
    row_.add({.column = column,
              .name = [&box] { return parts::nameOf(box.box()); },
              .show =
                  [this, &box, column](base::Fields& row) {
                      const std::string day = weekdayIn(row, column);
                      box.show(day, day.empty() ? "" : row.text(column));
                  },
              .mine = [&box] { return box.box().text(); },
              .theirs = [this, column](base::Fields& row) { return weekdayIn(row, column); },
              .in = {&box.box()}});
}

std::string SettingsArea::weekdayIn(base::Fields& row, std::string_view column) const {
    // 0 stands for no day, where others write NULL.
    const std::int64_t day = row.integer(column);
    return day == 0 ? std::string{} : weekdayName(day, services_.locale);
}

ui::Layout SettingsArea::layout() {
    return column({
        row({
                ui::groups(
                    {frame(frmSchalter, {chkAngemeldeteMenge, chkGesperrt, chkMengenauf, chkErforderlich,
                                         chkAktive, chkVermarktung, chkSichtbar, chkHandabmas,
                                         chkVertragMGSichtbar, chkGeschaeftsfeldNeu, chkVorvertrag,
                                         chkKeine_Mengenmeldung_Auf_WB, chkLieferungAusserhalbmoeglich})}),
                ui::groups({
                    frame(frmEinstellungen,
                          {ui::fields(1, {field(lblAngemeldete, txtAngemeldete),
                                          field(lblMengenmeldung, txtMengenmeldung),
                                          field(lblUberlieferung, txtUberlieferung),
                                          field(lblBereitstellung, txtBereitstellung),
                                          field(lblBereitstellungTime, txtBereitstellungTime),
                                          field(lblBelieferung, txtBelieferung),
                                          field(lblLieferparitat, txtLieferparitat)})}),
                    frame(frmOriginal, {row({txtOriginal, btnOriginal})}),
                }),
                column({
                           frame(frmFhpLogistik, {chkFHPLogistikVerweden, chkWaldverbandLogistikkoordinator,
                                                  chkWaldhelferKannFraechterAendern,
                                                  chkWaldhelferKannTransportauftraegeTeilen,
                                                  field(lblTransportauftraege, txtTransportauftraege,
                                                        txtTransportauftragTime, lblTransportauftragTime)}),
                           frame(frmBemerkung, {ui::Layout{txtBemerkung}.growing()}).growing(),
                       })
                    .growing(),
            })
            .growing(),
        ui::bar({btnBearbeiten, ui::Layout{btnSpeichern}.primary(), btnAbbrechen}),
    });
}

void SettingsArea::open(const LogisticsContract& contract) {
    contract_ = contract;
    period_.reset();
    changes_.forget();
    mode_.reset();
    const auto width = [this](const char* columnName) {
        return services_.columnWidth.of(contract_.session, settingsTable, columnName);
    };
    txtBemerkung.setMaxLength(width("BEMERKUNG"));
    txtOriginal.setMaxLength(width("ORIGINAL"));
}

void SettingsArea::reload(std::optional<std::int64_t> /*key*/) {
    LoadSettings();
}

std::unique_ptr<base::Recordset> SettingsArea::readRow() {
    // clang-format off
    StatementText query{"SELECT "
        "WVO_VERTRAG.ANGEMELDETEMENGE,WVO_VERTRAG.GESPERRT,WVO_VERTRAG.MENGENAUF,WVO_VERTRAG.ERFORDERLICH,WVO_VERTRAG.AKTIVE,WVO_VERTRAG.VERMARKTUNG,WVO_VERTRAG.SICHTBAR,WVO_VERTRAG.HANDABMAS,WVO_VERTRAG.VORVERTRAG,"
        "WVO_VERTRAG.ANGEMELDETE,WVO_VERTRAG.MENGENMELDUNG,WVO_VERTRAG.UBERLIEFERUNG,WVO_VERTRAG.BEMERKUNG,WVO_VERTRAG.ORIGINAL,WVO_VERTRAG.KEINE_MENGENMELDUNG_AUF_WB,WVO_VERTRAG.BEREITSELLUNGSTIME,"
        "ID_WVO_T_BELIEFERUNG,WVO_T_BELIEFERUNG.SHORT AS WVO_T_BELIEFERUNGSHORT,WVO_T_BELIEFERUNG.LONG AS WVO_T_BELIEFERUNGLONG,"
        "ID_WVO_T_LIEFERPARITAT,WVO_T_LIEFERPARITAT.SHORT AS WVO_T_LIEFERPARITATSHORT,WVO_T_LIEFERPARITAT.LONG AS WVO_T_LIEFERPARITATLONG,"
        "VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,"
        "WVO_VERTRAG.BEREITSELLUNGS, WVO_VERTRAG.LIEFERUNGAUSSERHALBMOEGLICH, WVO_VERTRAG.VERTRAG_MG_SICHTBAR, "
        "WVO_VERTRAG.GESCHAEFTSFELD_NEU, "
        "WVO_VERTRAG.FHP_LOGISTIK_VERWENDEN, WVO_VERTRAG.FHP_WALDVERBAND_KOORDINATOR, WVO_VERTRAG.FHP_WH_FR_AENDERN, WVO_VERTRAG.FHP_WH_TA_TEILEN, WVO_VERTRAG.FHP_TA_SENDETAG, WVO_VERTRAG.FHP_TA_SENDETIME"
        " FROM VERTRAEGE"
        " INNER JOIN WVO_VERTRAG ON WVO_VERTRAG.ID_VERTRAEGE = VERTRAEGE.ID_VERTRAG"
        " LEFT JOIN WVO_T_BELIEFERUNG ON WVO_T_BELIEFERUNG.ID = WVO_VERTRAG.ID_WVO_T_BELIEFERUNG"
        " LEFT JOIN WVO_T_LIEFERPARITAT ON WVO_T_LIEFERPARITAT.ID = WVO_VERTRAG.ID_WVO_T_LIEFERPARITAT"
        " WHERE VERTRAEGE.ID_VERTRAG = "};
    // clang-format on
    return contract_.connection().open(query.number(contract_.id).text());
}

void SettingsArea::LoadSettings() {
    const auto row = readRow();
    if (row->atEnd()) throw base::Refused{OwnText::contractIsGone};

    row_.show(*row);
    period_ = deliveryPeriodOf(row->field("LIEFERVON"), row->field("LIEFERBIS"));
    changes_.forget();
}

void SettingsArea::startEdit() {
    // What a colleague has saved meanwhile is what is edited.
    LoadSettings();
    mode_.enter(parts::EditMode::State::edit);
    parts::SafeSetFocus(chkAngemeldeteMenge);
}

void SettingsArea::cancel() {
    const bool discards = changed();
    LoadSettings();
    mode_.enter(parts::EditMode::State::view);
    parts::SafeSetFocus(btnBearbeiten);
    if (discards) undo_.say(base::ownText(OwnText::changesDiscarded, contract_.session.language));
}

void SettingsArea::save() {
    if (!datesAreThere()) return;
    const std::string document = txtOriginal.text();
    std::string path = original();
    static_cast<void>(updateStatement(path)); // refuses what no statement can carry before anything is asked
    warnOfMissingUnit();
    if (!row_.settle([this] { return readRow(); })) return;
    const parts::TakenOver taken = row_.takenFromOthers();
    // What came from a colleague can need a date that is not here.
    if (!datesAreThere()) return;
    if (txtOriginal.text() != document) path = original();
    contract_.connection().execute(updateStatement(path));
    // Tells as well whether there still is a record that was written to.
    LoadSettings();
    mode_.enter(parts::EditMode::State::view);
    parts::SafeSetFocus(btnBearbeiten);
    undo_.say(taken.told(OwnText::saved, contract_.session.language));
}

bool SettingsArea::datesAreThere() {
    if (chkAngemeldeteMenge.checked()) return true;
    if (txtAngemeldete.text().empty())
        return parts::missing(services_, contract_.session, lblAngemeldete, txtAngemeldete);
    if (txtMengenmeldung.text().empty())
        return parts::missing(services_, contract_.session, lblMengenmeldung, txtMengenmeldung);
    return true;
}

void SettingsArea::warnOfMissingUnit() {
    StatementText query{"SELECT ISNULL(VERTRAG_MENGEN.ID_WARENEINHEIT,0) AS EH FROM VERTRAG_MENGEN"
                        " WHERE ID_VERTRAG = "};
    const auto line = contract_.connection().open(query.number(contract_.id).text());
    if (line->atEnd() || line->integer("EH") == 0) {
        tell("Achtung!\n"
             "Im Vertrag wurde bei den Mengen keine Mengeneinheit definiert!\n"
             "Bitte geben Sie die Mengeneinheit bei den Vertragsmengen ein!");
    }
}

void SettingsArea::chooseDocument() {
    const auto path = chooseOriginal(services_, contract_.session);
    if (!path) return;
    txtOriginal.setText(*path);
    changes_.note(txtOriginal);
}

std::string SettingsArea::original() {
    return pathForAll(services_, contract_.session, parts::typedText(txtOriginal));
}

std::string SettingsArea::updateStatement(const std::string& original) {
    if (!txtUberlieferung.text().empty()) static_cast<void>(uberlieferung_.value()); // refuses what is none
    StatementText statement{"UPDATE WVO_VERTRAG SET "};
    parts::Assignments assign{statement, services_, contract_.session};
    const auto text = [&](std::string_view assignment, const std::string& value) {
        statement.fixed(assignment).quotedAsItStandsOrNull(value);
    };
    assign.flagOrNull("ANGEMELDETEMENGE = ", chkAngemeldeteMenge);
    assign.flagOrNull(",GESPERRT = ", chkGesperrt);
    assign.flagOrNull(",MENGENAUF = ", chkMengenauf);
    assign.flagOrNull(",ERFORDERLICH = ", chkErforderlich);
    assign.flagOrNull(",AKTIVE = ", chkAktive);
    assign.flagOrNull(",VERMARKTUNG = ", chkVermarktung);
    assign.flagOrNull(",SICHTBAR = ", chkSichtbar);
    assign.flagOrNull(",HANDABMAS = ", chkHandabmas);
    assign.flagOrNull(",VERTRAG_MG_SICHTBAR = ", chkVertragMGSichtbar);
    assign.flagOrNull(",GESCHAEFTSFELD_NEU = ", chkGeschaeftsfeldNeu);
    assign.flagOrNull(",VORVERTRAG = ", chkVorvertrag);
    assign.date(",ANGEMELDETE = ", txtAngemeldete);
    assign.date(",MENGENMELDUNG = ", txtMengenmeldung);
    assign.number(",UBERLIEFERUNG = ", uberlieferung_);
    // Whoever reads the remark on the web takes a single quote for its end.
    text(",BEMERKUNG = ", base::replaceAll(txtBemerkung.text(), "'", "´"));
    text(",ORIGINAL = ", original);
    assign.key(",BEREITSELLUNGS = ", bereitstellung_.key());
    assign.text(",BEREITSELLUNGSTIME = ", txtBereitstellungTime);
    assign.key(",ID_WVO_T_BELIEFERUNG = ", belieferung_.key());
    assign.key(",ID_WVO_T_LIEFERPARITAT = ", lieferparitat_.key());
    assign.flagOrNull(",KEINE_MENGENMELDUNG_AUF_WB = ", chkKeine_Mengenmeldung_Auf_WB);
    assign.flagOrNull(",LIEFERUNGAUSSERHALBMOEGLICH = ", chkLieferungAusserhalbmoeglich);
    assign.flagOrNull(",FHP_LOGISTIK_VERWENDEN  = ", chkFHPLogistikVerweden);
    assign.flagOrNull(",FHP_WALDVERBAND_KOORDINATOR  = ", chkWaldverbandLogistikkoordinator);
    assign.flagOrNull(",FHP_WH_FR_AENDERN  = ", chkWaldhelferKannFraechterAendern);
    assign.flagOrNull(",FHP_WH_TA_TEILEN = ", chkWaldhelferKannTransportauftraegeTeilen);
    assign.key(",FHP_TA_SENDETAG  = ", transportauftraege_.key());
    assign.text(",FHP_TA_SENDETIME  = ", txtTransportauftragTime);
    return statement.fixed(" WHERE ID_VERTRAEGE = ").number(contract_.id).text();
}

void SettingsArea::forgetLogisticsProcess() {
    chkWaldverbandLogistikkoordinator.setChecked(false);
    chkWaldhelferKannFraechterAendern.setChecked(false);
    chkWaldhelferKannTransportauftraegeTeilen.setChecked(false);
    transportauftraege_.show("", "");
    txtTransportauftragTime.setText("");
}

void SettingsArea::warnOnClosing() {
    if (chkAngemeldeteMenge.checked() || !txtAngemeldete.text().empty()) return;
    tell("Achtung!\n"
         "Bei zugeordneten Waldhelfern müssen die Eingaben im Reiter Vertragsoptionen gefüllt werden.\n"
         "Bitte ergänzen Sie ihre Eingaben, sonst kann es in der Webapplikation zu Anzeigeproblemen kommen.");
}

void SettingsArea::tell(const std::string& message) {
    parts::ShowMessage(services_.display, message, ui::box::exclamation);
}

} // namespace tellurix::logistics
