#include "module/ui/controls/CheckBox.h"
#include "tests/logistics/LogisticsTest.h"

namespace tellurix::tests {
namespace {

class LogisticsSettings : public LogisticsTest {};

TEST_F(LogisticsSettings, OpeningReadsInTheGivenOrderAndShowsWhatItRead) {
    open(fibreWood, [&](User& user) {
        ASSERT_GE(host.statements.size(), 6u);
        EXPECT_EQ(host.statements[1],
                  "IF NOT EXISTS(SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3) INSERT INTO WVO_VERTRAG "
                  "(ID_VERTRAEGE,KEINE_MENGENMELDUNG_AUF_WB,GESCHAEFTSFELD_NEU) VALUES (3,1,1)");
        EXPECT_EQ(host.statements[2], "SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = 3");
        EXPECT_EQ(host.statements[3], "SELECT VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG = 3");
        EXPECT_EQ(host.statements[4],
                  "SELECT WARENEINHEIT.EINHEIT FROM VERTRAG_MENGEN INNER JOIN WARENEINHEIT ON "
                  "WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT WHERE ID_VERTRAG = 3");
        EXPECT_EQ(user.window().title(), "Lieferprofil Vertragsdefinition");
        EXPECT_EQ(user.caption("lblEinheit"), "atro-t");
        std::string ticked;
        for (ui::Control* control : user.window().controls())
            if (const auto* box = ui::as<ui::CheckBox>(control); box != nullptr && box->checked())
                ticked += box->name() + " ";
        EXPECT_EQ(ticked, "chkMengenauf chkSichtbar chkGeschaeftsfeldNeu chkKeine_Mengenmeldung_Auf_WB "
                          "chkFHPLogistikVerweden chkWaldverbandLogistikkoordinator "
                          "chkWaldhelferKannTransportauftraegeTeilen ");
        EXPECT_EQ(user.text("txtAngemeldete"), "25.04.2025");
        EXPECT_EQ(user.text("txtMengenmeldung"), "30.04.2025");
        EXPECT_EQ(user.text("txtUberlieferung"), "10,00");
        EXPECT_EQ(user.text("txtBereitstellung") + "/" + user.tag("txtBereitstellung"), "Donnerstag/5");
        EXPECT_EQ(user.text("txtBereitstellungTime"), "12:00");
        EXPECT_EQ(user.text("txtBelieferung") + "/" + user.tag("txtBelieferung"),
                  "Gleichmäßig nach Kalenderwochen/2");
        EXPECT_EQ(user.text("txtLieferparitat") + "/" + user.tag("txtLieferparitat"), "Frei Werk/2");
        EXPECT_EQ(user.text("txtBemerkung"), "Zufuhr nur auf Abruf, Zufahrt über Möderbrugg");
        EXPECT_EQ(user.text("txtOriginal"), "c:\\VertragsdokumenteOriginal\\R-2025-003.pdf");
        EXPECT_EQ(user.text("txtTransportauftraege") + "/" + user.tag("txtTransportauftraege"), "Montag/2");
        EXPECT_EQ(user.text("txtTransportauftragTime"), "06:30");
        user.close();
    });
}

TEST_F(LogisticsSettings, SavingWritesEverySettingInOneStatement) {
    editSettings(fibreWood, [&](User& user) {
        user.click("chkAngemeldeteMenge");
        user.click("chkMengenauf");
        user.click("chkErforderlich");
        user.type("txtAngemeldete", "13.6.25");
        user.type("txtMengenmeldung", "");
        user.type("txtUberlieferung", "7,5");
        user.type("txtBemerkung", "Rampe bei D'Angelo");
        user.type("txtBereitstellungTime", "7:5");
        user.type("txtBelieferung", "");
        user.click("chkFHPLogistikVerweden");
        host.statements.clear();
        user.click("btnSpeichern");
        EXPECT_EQ(
            host.statements.at(1),
            "UPDATE WVO_VERTRAG SET ANGEMELDETEMENGE = 1,GESPERRT = NULL,MENGENAUF = NULL,ERFORDERLICH = "
            "1,AKTIVE = NULL,VERMARKTUNG = NULL,SICHTBAR = 1,HANDABMAS = NULL,VERTRAG_MG_SICHTBAR = "
            "NULL,GESCHAEFTSFELD_NEU = 1,VORVERTRAG = NULL,ANGEMELDETE = '20250613',MENGENMELDUNG = "
            "NULL,UBERLIEFERUNG = 7.50,BEMERKUNG = 'Rampe bei D´Angelo',ORIGINAL = "
            "'c:\\VertragsdokumenteOriginal\\R-2025-003.pdf',BEREITSELLUNGS = 5,BEREITSELLUNGSTIME = "
            "'07:05',ID_WVO_T_BELIEFERUNG = NULL,ID_WVO_T_LIEFERPARITAT = 2,KEINE_MENGENMELDUNG_AUF_WB = "
            "1,LIEFERUNGAUSSERHALBMOEGLICH = NULL,FHP_LOGISTIK_VERWENDEN  = NULL,"
            "FHP_WALDVERBAND_KOORDINATOR  = NULL,FHP_WH_FR_AENDERN  = NULL,FHP_WH_TA_TEILEN = "
            "NULL,FHP_TA_SENDETAG  = NULL,FHP_TA_SENDETIME  = NULL WHERE ID_VERTRAEGE = 3");
        EXPECT_EQ(user.text("txtBemerkung"), "Rampe bei D´Angelo") << "read again";
        EXPECT_FALSE(user.usable("btnSpeichern"));
        EXPECT_EQ(user.focused(), "btnBearbeiten");
    });
}

} // namespace
} // namespace tellurix::tests
