#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

/// Deleted lines are put back.
class UndoneLines : public LinesTest {
protected:
    static constexpr const char* priceColumns =
        "ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,MSZ_PERCENT,PREIS,EURO,ID_WARENEINHEIT,PREIS_ABR2";

    std::string order() { return prices("BEZEICHNUNG", 1); }
    static void remove(User& user, int row) {
        user.select("MSFlexGrid1", row);
        user.click("cmdLoschen");
    }
};

TEST_F(UndoneLines, ALineComesBackAsItWasToWhereItWas) {
    host.database.execute(
        "UPDATE VERTRAG_PREISE SET PREIS = 76.2545,PREIS_ABR2 = 1.0001,MSZ_PERCENT = 2.25,EURO = 0,"
        "ID_WARENEINHEIT = 4711 WHERE ID = 2");
    const std::string columns = "ORDNUNG,BEZEICHNUNG,SELEKTION_VALUE,MENGE,ID_WARENEINHEIT";
    const std::string prices1 = prices(priceColumns, 1);
    const std::string quantities1 = rows("VERTRAG_MENGEN", columns, 1);
    for (const int place : {0, 1, 2}) {
        SCOPED_TRACE(place);
        editPrices(1, [&](User& user) {
            const auto before = user.grid("MSFlexGrid1").rows();
            remove(user, place);
            EXPECT_EQ(user.status(), "Zeile gelöscht: „" + before.at(static_cast<std::size_t>(place)).at(1) +
                                         "“.|&Rückgängig");
            host.statements.clear();
            user.pressStatus();
            EXPECT_EQ(user.status(), "Zeile wiederhergestellt.");
            EXPECT_EQ(sent("INSERT INTO VERTRAG_PREISE (ID_VERTRAG) VALUES (1)"), 1);
            EXPECT_EQ(user.grid("MSFlexGrid1").rows(), before);
            EXPECT_EQ(user.grid("MSFlexGrid1").currentRow(), place);
            EXPECT_EQ(user.text("txtBEZEICHNUNG"), before.at(static_cast<std::size_t>(place)).at(1));
            user.click("cmdOk");
        });
        EXPECT_EQ(prices(priceColumns, 1), prices1);
        editQuantities(1, [&](User& user) {
            remove(user, std::min(place, 1));
            user.alt(U'R');
            user.click("cmdOk");
        });
        EXPECT_EQ(rows("VERTRAG_MENGEN", columns, 1), quantities1);
    }
    EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID IN (1,2,3)"), "0") << "new keys";
}

TEST_F(UndoneLines, SeveralComeBackTheLastFirst) {
    const std::string before = order();
    editPrices(1, [&](User& user) {
        remove(user, 1);
        remove(user, 0);
        remove(user, 0);
        EXPECT_FALSE(user.usable("cmdBearbeiten"));
        user.pressStatus();
        EXPECT_EQ(user.status(),
                  "Zeile wiederhergestellt. Zeile gelöscht: „Fichte Blochholz A/B“.|&Rückgängig");
        EXPECT_TRUE(user.usable("cmdBearbeiten"));
        user.pressStatus();
        user.pressStatus();
        EXPECT_EQ(user.status(), "Zeile wiederhergestellt.");
        user.click("cmdOk");
    });
    EXPECT_EQ(order(), before);
}

TEST_F(UndoneLines, TheOfferStaysWhateverIsDoneUntilTheScreenIsLeft) {
    const std::string before = order();
    editPrices(1, [&](User& user) {
        remove(user, 2);
        user.click("cmdBearbeiten");
        user.type("txtPreis", "12");
        user.pressStatus();
        EXPECT_EQ(host.display.errors(),
                  std::vector<std::string>{"Bitte zuerst die Bearbeitung speichern oder abbrechen."});
        user.click("cmdSpeichern");
        user.pressStatus();
        user.select("MSFlexGrid1", 2);
        user.click("cmdBearbeiten");
        user.type("txtPreis", "13");
        user.click("cmdSpeichern");
        remove(user, 0);
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("PREIS", 1), "[12.0000][13.0000]") << "undone, then saved";
    editPrices(1, [&](User& user) {
        EXPECT_EQ(user.status(), "") << "what was done in the last visit stays done";
        user.click("cmdOk");
    });
}

TEST_F(UndoneLines, WhatOthersHaveDoneMeanwhile) {
    editPrices(1, [&](User& user) {
        remove(user, 2);
        host.database.execute("DELETE FROM VERTRAG_PREISE WHERE ID IN (1,2)");
        user.pressStatus();
        EXPECT_EQ(user.grid("MSFlexGrid1").rows().size(), 1U);
        EXPECT_EQ(user.text("txtBEZEICHNUNG"), "Kiefer Langholz");
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ORDNUNG,BEZEICHNUNG", 1), "[1 | Kiefer Langholz]");
}

TEST_F(UndoneLines, NothingIsMadeForAContractThatIsGone) {
    editPrices(1, [&](User& user) {
        remove(user, 0);
        host.database.execute("DELETE FROM VERTRAEGE WHERE ID_VERTRAG = 1");
        for (int i = 0; i < 2; ++i) {
            user.pressStatus();
            EXPECT_EQ(host.display.errors().back().find("Diesen Vertrag gibt es nicht mehr."), 0U);
        }
        EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 1"), "2");
        user.click("cmdOk");
    });
}

TEST_F(UndoneLines, AFailureLeavesNothingHalfDoneAndCanBeRepeated) {
    const std::string before = prices(priceColumns, 1);
    for (const char* statement : {"INSERT INTO VERTRAG_PREISE", "SET ORDNUNG = ORDNUNG + 1",
                                  "SELECT * FROM VERTRAG_PREISE WHERE ID ="}) {
        SCOPED_TRACE(statement);
        editPrices(1, [&](User& user) {
            remove(user, 1);
            const std::string without = prices(priceColumns, 1);
            host.database.failOn(statement);
            user.pressStatus();
            host.database.failOn("");
            EXPECT_EQ(host.display.errors().back(), "connection lost");
            EXPECT_EQ(prices(priceColumns, 1), without);
            user.pressStatus();
            user.click("cmdOk");
        });
        EXPECT_EQ(prices(priceColumns, 1), before);
    }
}

} // namespace
} // namespace tellurix::tests
