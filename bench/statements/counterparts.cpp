#include "bench/statements/screen_statements.h"

#include <array>
#include <stdexcept>

namespace tellurix::bench {

namespace {

// clang-format off
constexpr std::array counterparts{
    Counterpart{"contract name", "SELECT VERTRAG_NAME FROM",
        "SELECT VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG=?1", "i", "t"},
    Counterpart{"contract", "SELECT * FROM VERTRAEGE WHERE ID_VERTRAG",
        "SELECT * FROM VERTRAEGE WHERE ID_VERTRAG=?1",
        "i", "ittidddddd" "tttttttttt" "4444444444" "iib" "iiii" "bb" "ttt"},
    Counterpart{"customer", "SELECT KURZBEZEICHNUNG FROM PERSONAL",
        "SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL=?1", "i", "t"},
    Counterpart{"additional texts", "SELECT ZUSATZTEXT, ZUSATZTEXT_1",
        "SELECT ZUSATZTEXT,ZUSATZTEXT_1,ZUSATZTEXT_2 FROM VERTRAEGE WHERE ID_VERTRAG=?1", "i", "ttt"},
    Counterpart{"header, summary", "RECHNUNGSART.RECHNUNGSART,BUCHNR.BUCHUNGSTEXT,ISNULL",
        "SELECT V.INVDATE,V.DATE1,V.DATE2,V.DATE3,V.LIEFERVON,V.LIEFERBIS,"
        "V.KOPF1,V.KOPF2,V.KOPF3,V.KOPF4,V.KOPF5,V.KOPF6,V.KOPF7,V.KOPF8,V.KOPF9,V.KOPF10,"
        "V.NUMM1,V.NUMM2,V.NUMM3,V.NUMM4,V.NUMM5,V.NUMM6,V.NUMM7,V.NUMM8,V.NUMM9,V.NUMM10,"
        "R.RECHNUNGSART,B.BUCHUNGSTEXT,IFNULL(V.EURO,0),P.NUMMER,P.KURZBEZEICHNUNG"
        " FROM VERTRAEGE V LEFT JOIN RECHNUNGSART R ON R.RART_ID=V.RART_ID"
        " LEFT JOIN BUCHNR B ON B.BUCHNR_ID=V.BUCHNR_ID"
        " LEFT JOIN PERSONAL P ON P.ID_PERSONAL=V.ID_PERSONAL_LIEFERADRESSE AND P.ID_PERSONAL>0"
        " WHERE V.ID_VERTRAG=?1",
        "--i", "dddddd" "tttttttttt" "4444444444" "ttbit"},
    Counterpart{"setting", "FROM WORKBENCH_SETTING",
        "SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME=?1", "t", "t"},
    Counterpart{"units in their order", "WARENEINHEIT WHERE HOLZ =1 ORDER BY",
        "SELECT EINHEIT_ID,EINHEIT FROM WARENEINHEIT WHERE HOLZ=1 ORDER BY IFNULL(LDNR,0)", "--", "it"},
    Counterpart{"units", "WARENEINHEIT WHERE HOLZ =1",
        "SELECT EINHEIT_ID,EINHEIT FROM WARENEINHEIT WHERE HOLZ=1", "-", "it"},
    Counterpart{"price lines", "SELECT VERTRAG_PREISE.ID,",
        "SELECT ID,ID_VERTRAG,ORDNUNG,BEZEICHNUNG,MSZ_PERCENT,PREIS,"
        "(SELECT EINHEIT FROM WARENEINHEIT WHERE EINHEIT_ID=ID_WARENEINHEIT),EURO,ID_WARENEINHEIT,PREIS_ABR2"
        " FROM VERTRAG_PREISE WHERE ID_VERTRAG=?1 ORDER BY ORDNUNG",
        "i", "iiit24tbi4"},
    Counterpart{"quantity lines", "SELECT VERTRAG_MENGEN.ID,",
        "SELECT ID,ID_VERTRAG,ORDNUNG,BEZEICHNUNG,MENGE,"
        "(SELECT EINHEIT FROM WARENEINHEIT WHERE EINHEIT_ID=ID_WARENEINHEIT),ID_WARENEINHEIT"
        " FROM VERTRAG_MENGEN WHERE ID_VERTRAG=?1 ORDER BY ORDNUNG",
        "i", "iiit3ti"},
    Counterpart{"deduction model", "SELECT ABS_MODEL FROM ABSCHLAG",
        "SELECT ABS_MODEL FROM ABSCHLAG WHERE RECH_NAME=?1 AND VER_TYPE=?2", "tt", "t"},
    Counterpart{"flags", "SELECT ISNULL(ABGESCHLOSSEN,0) AS ABGESCHLOSSEN",
        "SELECT IFNULL(ABGESCHLOSSEN,0),IFNULL(ACL_EMPTY,0) FROM VERTRAEGE WHERE ID_VERTRAG=?1", "--i", "bb"},
    Counterpart{"access level", "SELECT ID_ACCESS_LEVELS FROM VERTRAEGE",
        "SELECT ID_ACCESS_LEVELS FROM VERTRAEGE WHERE ID_VERTRAG=?1", "i", "i"},
    Counterpart{"header", "VERTRAEGE.ID_MANDANTEN,MANDANTEN.NUMMER",
        "SELECT V.INVDATE,V.DATE1,V.DATE2,V.DATE3,V.LIEFERVON,V.LIEFERBIS,"
        "V.KOPF1,V.KOPF2,V.KOPF3,V.KOPF4,V.KOPF5,V.KOPF6,V.KOPF7,V.KOPF8,V.KOPF9,V.KOPF10,"
        "V.NUMM1,V.NUMM2,V.NUMM3,V.NUMM4,V.NUMM5,V.NUMM6,V.NUMM7,V.NUMM8,V.NUMM9,V.NUMM10,"
        "V.RART_ID,R.RECHNUNGSART,V.BUCHNR_ID,B.BUCHUNGSTEXT,IFNULL(V.EURO,0),V.ID_ACCESS_LEVELS,"
        "V.ID_MANDANTEN,M.NUMMER,M.KURZBEZEICHNUNG,V.ID_PERSONAL_LIEFERADRESSE,P.NUMMER,P.KURZBEZEICHNUNG"
        " FROM VERTRAEGE V LEFT JOIN RECHNUNGSART R ON R.RART_ID=V.RART_ID"
        " LEFT JOIN BUCHNR B ON B.BUCHNR_ID=V.BUCHNR_ID"
        " LEFT JOIN PERSONAL M ON M.ID_PERSONAL=V.ID_MANDANTEN"
        " LEFT JOIN PERSONAL P ON P.ID_PERSONAL=V.ID_PERSONAL_LIEFERADRESSE"
        " WHERE V.ID_VERTRAG=?1",
        "-i", "dddddd" "tttttttttt" "4444444444" "ititbiiitiit"},
    Counterpart{"save the header", "UPDATE VERTRAEGE SET INVDATE = '20",
        "UPDATE VERTRAEGE SET INVDATE=?1,DATE1=?2,DATE2=?3,DATE3=?4,LIEFERVON=?5,LIEFERBIS=?6,"
        "NUMM1=?7,NUMM2=?8,NUMM3=?9,NUMM4=?10,NUMM5=?11,NUMM6=?12,NUMM7=?13,NUMM8=?14,NUMM9=?15,NUMM10=?16,"
        "KOPF1=?17,KOPF2=?18,KOPF3=?19,KOPF4=?20,KOPF5=?21,KOPF6=?22,KOPF7=?23,KOPF8=?24,KOPF9=?25,KOPF10=?26,"
        "RART_ID=?27,BUCHNR_ID=?28,ID_MANDANTEN=?29,ID_PERSONAL_LIEFERADRESSE=?30,EURO=?31 WHERE ID_VERTRAG=?32",
        "dddddd" "4444444444" "tttttttttt" "iiiib" "i", "",
        "UPDATE VERTRAEGE SET INVDATE=NULL,NUMM1=NULL,KOPF1='Lieferung' WHERE ID_VERTRAG=%"},
    Counterpart{"save the editor", "UPDATE VERTRAEGE SET ABGESCHLOSSEN",
        "UPDATE VERTRAEGE SET ABGESCHLOSSEN=?1,ACL_EMPTY=?2,ID_ACCESS_LEVELS=CASE WHEN ?3=0 THEN NULL ELSE ?3 END"
        " WHERE ID_VERTRAG=?4",
        "bbi---i", "",
        "UPDATE VERTRAEGE SET ABGESCHLOSSEN=NULL WHERE ID_VERTRAG=%"},
    Counterpart{"write an additional text", "UPDATE VERTRAEGE SET ZUSATZTEXT = 'Abf",
        "UPDATE VERTRAEGE SET ZUSATZTEXT=?1 WHERE ID_VERTRAG=?2", "ti", "",
        "UPDATE VERTRAEGE SET ZUSATZTEXT='Abfuhr' WHERE ID_VERTRAG=%"},
    Counterpart{"write the first further text", "UPDATE VERTRAEGE SET ZUSATZTEXT_1 =",
        "UPDATE VERTRAEGE SET ZUSATZTEXT_1=?1 WHERE ID_VERTRAG=?2", "ti", "",
        "UPDATE VERTRAEGE SET ZUSATZTEXT_1=NULL WHERE ID_VERTRAG=%"},
    Counterpart{"write the second further text", "UPDATE VERTRAEGE SET ZUSATZTEXT_2 =",
        "UPDATE VERTRAEGE SET ZUSATZTEXT_2=?1 WHERE ID_VERTRAG=?2", "ti", "",
        "UPDATE VERTRAEGE SET ZUSATZTEXT_2=NULL WHERE ID_VERTRAG=%"},
    Counterpart{"empty an additional text", "UPDATE VERTRAEGE SET ZUSATZTEXT = NULL",
        "UPDATE VERTRAEGE SET ZUSATZTEXT=?1 WHERE ID_VERTRAG=?2", "ti", "",
        "UPDATE VERTRAEGE SET ZUSATZTEXT='Abfuhr' WHERE ID_VERTRAG=%"},
    Counterpart{"write the customer", "UPDATE VERTRAEGE SET ID_PERSONAL =",
        "UPDATE VERTRAEGE SET ID_PERSONAL=?1 WHERE ID_VERTRAG=?2", "ii", "",
        "UPDATE VERTRAEGE SET ID_PERSONAL=NULL WHERE ID_VERTRAG=%"},
    Counterpart{"remove the customer in place", "[update] id_personal of",
        "SELECT * FROM VERTRAEGE WHERE ID_VERTRAG=?1;"
        "UPDATE VERTRAEGE SET ID_PERSONAL=NULL WHERE ID_VERTRAG=?1",
        "i", "ittidddddd" "tttttttttt" "4444444444" "iib" "iiii" "bb" "ttt",
        "UPDATE VERTRAEGE SET ID_PERSONAL=10 WHERE ID_VERTRAG=%"},
    Counterpart{"choose a customer", "AND KUNDE = 1",
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG,NAME,VORNAME,STRASSE,PLZ,ORT FROM PERSONAL"
        " WHERE IFNULL(DISABLE,0)=0 AND IFNULL(ID_ACCESS_LEVELS,0) IN (0,0) AND KUNDE=1"
        " ORDER BY KURZBEZEICHNUNG,ID_PERSONAL",
        "------", "iitttttt"},
    Counterpart{"choose a client", "AND MANDANT = 1 ORDER BY",
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG,NAME,VORNAME,STRASSE,PLZ,ORT FROM PERSONAL"
        " WHERE IFNULL(DISABLE,0)=0 AND IFNULL(ID_ACCESS_LEVELS,0) IN (0,0) AND MANDANT=1"
        " ORDER BY KURZBEZEICHNUNG,ID_PERSONAL",
        "------", "iitttttt"},
    Counterpart{"choose a delivery address", "AND LIEFERADRESSE = 1",
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG,NAME,VORNAME,STRASSE,PLZ,ORT FROM PERSONAL"
        " WHERE IFNULL(DISABLE,0)=0 AND IFNULL(ID_ACCESS_LEVELS,0) IN (0,0) AND LIEFERADRESSE=1"
        " ORDER BY KURZBEZEICHNUNG,ID_PERSONAL",
        "------", "iitttttt"},
    Counterpart{"number of a person", "SELECT NUMMER FROM PERSONAL",
        "SELECT NUMMER FROM PERSONAL WHERE ID_PERSONAL=?1", "i", "i"},
    Counterpart{"find a client", "WHERE NUMMER = 1",
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM PERSONAL WHERE NUMMER=?1"
        " AND IFNULL(DISABLE,0)=0 AND IFNULL(ID_ACCESS_LEVELS,0) IN (0,0) AND MANDANT=1",
        "i------", "iit"},
    Counterpart{"find a delivery address", "WHERE NUMMER = 6",
        "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM PERSONAL WHERE NUMMER=?1"
        " AND IFNULL(DISABLE,0)=0 AND IFNULL(ID_ACCESS_LEVELS,0) IN (0,0)",
        "i-----", "iit"},
    Counterpart{"choose an invoice kind", "SELECT RECHNUNGSART AS SHORT",
        "SELECT RECHNUNGSART FROM RECHNUNGSART", "", "t"},
    Counterpart{"find an invoice kind", "SELECT RART_ID,RECHNUNGSART",
        "SELECT RART_ID,RECHNUNGSART FROM RECHNUNGSART WHERE RECHNUNGSART=?1", "t", "it"},
    Counterpart{"choose a booking kind", "SELECT BUCHUNGSTEXT AS SHORT",
        "SELECT BUCHUNGSTEXT FROM BUCHNR", "", "t"},
    Counterpart{"find a booking kind", "SELECT BUCHNR_ID,BUCHUNGSTEXT",
        "SELECT BUCHNR_ID,BUCHUNGSTEXT FROM BUCHNR WHERE BUCHUNGSTEXT=?1", "t", "it"},
    Counterpart{"choose a currency", "SELECT 'EUR' AS SHORT",
        "SELECT ?1 UNION ALL SELECT ?2", "tt", "t"},
    Counterpart{"date a new contract", "UPDATE VERTRAEGE SET INVDATE = '05",
        "UPDATE VERTRAEGE SET INVDATE=?1 WHERE ID_VERTRAG=?2", "di", "",
        "INSERT OR REPLACE INTO VERTRAEGE(ID_VERTRAG,VERTRAG_NAME,VER_TYPE) VALUES(%,'Messung','R')"},
    Counterpart{"discard: price lines", "DELETE FROM VERTRAG_PREISE",
        "DELETE FROM VERTRAG_PREISE WHERE ID_VERTRAG=?1", "i", "",
        "INSERT INTO VERTRAG_PREISE(ID_VERTRAG,ORDNUNG,BEZEICHNUNG,PREIS) VALUES(%,1,'Fichte',900000),(%,2,'Kiefer',800000)"},
    Counterpart{"discard: quantity lines", "DELETE FROM VERTRAG_MENGEN",
        "DELETE FROM VERTRAG_MENGEN WHERE ID_VERTRAG=?1", "i", "",
        "INSERT INTO VERTRAG_MENGEN(ID_VERTRAG,ORDNUNG,BEZEICHNUNG,MENGE) VALUES(%,1,'Fichte',900000),(%,2,'Kiefer',800000)"},
    Counterpart{"discard: calendar", "DELETE FROM WVO_VERTAG_KALENDER",
        "DELETE FROM WVO_VERTAG_KALENDER WHERE ID_WVO_VERTRAG IN (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE=?1)",
        "i", "",
        "INSERT OR IGNORE INTO WVO_VERTRAG(ID,ID_VERTRAEGE) VALUES(900,%);"
        "INSERT INTO WVO_VERTAG_KALENDER(ID_WVO_VERTRAG,JAHR,WOCHE) VALUES(900,2025,23),(900,2025,24)"},
    Counterpart{"discard: helpers", "DELETE FROM WVO_VERTRAG_WALDHELFER",
        "DELETE FROM WVO_VERTRAG_WALDHELFER WHERE ID_WVO_VERTRAG IN (SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE=?1)",
        "i", "",
        "INSERT OR IGNORE INTO WVO_VERTRAG(ID,ID_VERTRAEGE) VALUES(900,%);"
        "INSERT INTO WVO_VERTRAG_WALDHELFER(ID_WVO_VERTRAG,ID_PERSONAL) VALUES(900,20)"},
    Counterpart{"discard: logistics", "DELETE FROM WVO_VERTRAG WHERE",
        "DELETE FROM WVO_VERTRAG WHERE ID_VERTRAEGE=?1", "i", "",
        "INSERT OR IGNORE INTO WVO_VERTRAG(ID,ID_VERTRAEGE) VALUES(900,%)"},
    Counterpart{"discard: contract", "DELETE FROM VERTRAEGE",
        "DELETE FROM VERTRAEGE WHERE ID_VERTRAG=?1", "i", "",
        "INSERT OR IGNORE INTO VERTRAEGE(ID_VERTRAG,VERTRAG_NAME,VER_TYPE) VALUES(%,'Messung','R')"},
};
// clang-format on

} // namespace

const Counterpart* findCounterpart(const std::string& statement) {
    const Counterpart* found = nullptr;
    for (const Counterpart& counterpart : counterparts) {
        const bool edits = counterpart.in.starts_with('[');
        if (edits != statement.starts_with('[') || statement.find(counterpart.in) == std::string::npos)
            continue;
        if (found == nullptr || counterpart.in.size() > found->in.size()) found = &counterpart;
    }
    return found;
}

const Counterpart& counterpartOf(const std::string& statement) {
    const Counterpart* const found = findCounterpart(statement);
    if (found == nullptr) throw std::runtime_error{"no counterpart: " + statement};
    return *found;
}

} // namespace tellurix::bench
