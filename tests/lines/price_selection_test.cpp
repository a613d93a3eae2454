#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

/// Which timber a price line is for, and what a line refuses to take.
class PriceSelection : public LinesTest {};

TEST_F(PriceSelection, ALineNeedsASelection) {
    host.display.onMessage("Text 223");
    host.display.onMessage("Text 223");
    editPrices(
        17,
        [&](User& user) {
            user.click("cmdNeu");
            user.type("txtPreis", "5");
            user.click("cmdSpeichern");
            EXPECT_EQ(host.selections, std::vector<std::string>{"28VERTP/A1"}) << "the dialog made the row";
            EXPECT_TRUE(user.usable("cmdSpeichern")) << "cancelled: the save has ended";
            host.onSelectionDialog = [](const std::string&) { return " 83 <> 'O''X' "; };
            user.click("cmdSpeichern");
            EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 28"), "83 <> 'O''X'");
            EXPECT_TRUE(user.checked("chkSelektion"));
            user.click("cmdSpeichern");
            EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAG_PREISE WHERE ID_VERTRAG = 17"), "1")
                << "one row only";
            host.onSelectionDialog = [](const std::string&) { return "  "; };
            user.click("cmdSelect");
            EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 28"), "NULL");
            EXPECT_FALSE(user.checked("chkSelektion"));
            user.click("cmdOk");
        },
        "a1");
    EXPECT_EQ(row("SELECT ORDNUNG,PREIS,EURO,ID_WARENEINHEIT FROM VERTRAG_PREISE WHERE ID = 28"),
              "1 | 5.0000 | false | NULL");
}

TEST_F(PriceSelection, QuickSelectionAndDialogReplaceEachOther) {
    editPrices(2, [&](User& user) {
        user.select("MSFlexGrid1", 1, 1);
        user.click("cmdBearbeiten");
        user.click("cmdSpeichern");
        EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 5"),
                  "83 NOT IN ('LA', 'BU', 'EI') ;94 BETWEEN 4 AND 6 ;")
            << "empty boxes do not destroy what the dialog wrote";
        user.click("cmdBearbeiten");
        host.onSelectionDialog = [](const std::string& key) { return key; };
        user.click("cmdSelect");
        EXPECT_EQ(user.status(), "Selection – schon gespeichert, „Abbrechen“ nimmt es nicht zurück");
        user.type("txtHa", "FI ,KI");
        user.click("cmdSpeichern");
        EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 5"), "83 IN ('FI ', 'KI') ;");
        host.onSelectionDialog = [](const std::string& key) { return key + "!"; };
        user.click("cmdSelect");
        EXPECT_EQ(value("SELECT SELEKTION_VALUE FROM VERTRAG_PREISE WHERE ID = 5"), "5VERTP!");
        EXPECT_EQ(user.text("txtHa"), "");
        user.click("cmdOk");
    });
}

TEST_F(PriceSelection, TheQuickSelectionCompletesAndOffersCodes) {
    struct Case {
        const char* box;
        const char* pick;
        const char* bound;
    };
    const Case cases[] = {
        {"txtHa", "layout of HOLZART_GRID/Ha//01",
         "txtHa/HA/SELECT ID,HA FROM HOLZART WHERE ISNULL(DISABLE,0)=0"},
        {"txtHs", "layout of HOLZSORTE_GRID/Hs//01",
         "txtHs/HS/SELECT ID,HS FROM HOLZSORTE WHERE ISNULL(DISABLE,0)=0"},
        {"txtGKL", "layout of GUETEKLASSE_GRID/GKL//01",
         "txtGKL/GKL/SELECT ID,GKL FROM GUETEKLASSE WHERE ISNULL(DISABLE,0)=0"},
        {"txtStkl", "layout of STKL_GRID/Stkl//01",
         "txtStkl/STKL/SELECT ID,STKL FROM STKL WHERE ISNULL(DISABLE,0)=0"},
    };
    editPrices(1, [&](User& user) {
        user.click("cmdBearbeiten");
        for (const Case& c : cases) {
            user.type(c.box, "X");
            EXPECT_EQ(host.typeAheads.back(), c.bound);
            user.ctrl();
            EXPECT_EQ(host.picks.back(), c.pick);
            EXPECT_EQ(user.text(c.box), "X") << "cancelling the list changes nothing";
            user.key(Key::enter);
            EXPECT_NE(user.focused(), c.box) << "Enter goes on";
        }
        host.pickedText = "FI,TA";
        user.focus("txtHa");
        user.ctrl();
        EXPECT_EQ(user.text("txtHa"), "FI,TA");
        user.click("cmdAbbrechen");
        user.close();
    });
}

TEST_F(PriceSelection, WhatLooksLikeAStatementIsText) {
    const std::string others = prices("*", 2);
    editPrices(1, [&](User& user) {
        user.click("cmdNeu");
        user.type("txtHa", "FI");
        user.type("txtLange", "4); DELETE FROM VERTRAG_PREISE --");
        user.type("txtBEZEICHNUNG", "x'; DELETE FROM VERTRAG_PREISE --");
        user.click("cmdSpeichern");
        EXPECT_EQ(user.text("txtLange"), "") << "no number, so it is dropped";
        EXPECT_EQ(user.grid("MSFlexGrid1").cell(3, 1), "x'; DELETE FROM VERTRAG_PREISE --");
        user.click("cmdOk");
    });
    EXPECT_EQ(prices("ID", 1), "[1][2][3][28]");
    EXPECT_EQ(prices("*", 2), others);
}

} // namespace
} // namespace tellurix::tests
