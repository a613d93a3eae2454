#include "module/lines/PriceChange.h"

#include "module/base/text.h"
#include "tests/lines/LinesTest.h"

namespace tellurix::tests {
namespace {

using base::Decimal;
using lines::ChangeKind;
using ui::Answer;

class PriceChangeOfAContract : public LinesTest {
protected:
    void onQuestion(const std::string& containing, Answer answer) {
        host.display.onMessage(containing, answer, "Vertrag Preisänderung");
    }
};

TEST_F(PriceChangeOfAContract, PreviewAndDatabaseAgreeToTheCent) {
    struct Case {
        const char* price;
        const char* amount;
        bool percent;
        const char* after;
    };
    const Case cases[] = {
        {"12.34", "10", true, "13,57"},    {"12.345", "10", true, "13,58"},
        {"12.345", "-10", true, "11,11"},  {"98.5", "2,5", true, "100,96"},
        {"41", "2,5", true, "42,03"},      {"-41", "2,5", true, "-42,03"},
        {"0.005", "0,01", true, "0,01"},   {"12", "-20", false, "-8,00"},
        {"12.345", "1,5", false, "13,85"}, {"12.345", "-1,5", false, "10,85"},
        {"11.8", "0,01", false, "11,81"},  {"9999999.99", "150", true, "24.999.999,98"},
        {"100", "-100", true, "0,00"},     {"100", "-250", true, "-150,00"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string{c.price} + " by " + c.amount);
        host.database.execute(std::string{"UPDATE VERTRAG_PREISE SET PREIS = "} + c.price +
                              ", PREIS_ABR2 = 3, MSZ_PERCENT = 1.75 WHERE ID = 14");
        onQuestion("Wollen Sie die Preise des Vertrages um", Answer::yes);
        // The preview is only read; the lines are shown as given, without points between thousands.
        const std::string plain = base::replaceAll(c.after, ".", "");
        editPrices(8, [&](User& user) {
            user.click("btnPreiseAendern");
            EXPECT_EQ(user.focused(), "txtWert");
            user.type("txtWert", c.amount);
            user.select("cmbFixProzent", c.percent ? 1 : 0);
            EXPECT_EQ(user.grid("grdVorschau").cell(0, 2), c.after);
            user.click("btnPreiseAendern");
            EXPECT_EQ(user.grid("MSFlexGrid1").cell(0, 2), plain) << "reloaded from the database";
            EXPECT_FALSE(user.usable("txtWert")) << "the frame is hidden after a change";
            user.click("cmdOk");
        });
        std::string stored = value("SELECT PREIS FROM VERTRAG_PREISE WHERE ID = 14");
        EXPECT_EQ(Decimal::parse(stored).value(), Decimal::parse(base::replaceAll(plain, ",", ".")).value());
        EXPECT_EQ(row("SELECT PREIS_ABR2,MSZ_PERCENT FROM VERTRAG_PREISE WHERE ID = 14"), "3.0000 | 1.75");
    }
}

TEST_F(PriceChangeOfAContract, AsksBeforeItTestsTheAmount) {
    struct Case {
        const char* rule;
        const char* typed;
        int kind;
        const char* question;
        Answer answer;
        bool changed;
    };
    const Case cases[] = {
        {"No changes nothing", "10", 1, "um 10,00 Prozent verändern?", Answer::no, false},
        {"nothing typed", "", 0, "um  verändern?", Answer::yes, false},
        {"zero", "0", 1, "um 0,00 Prozent verändern?", Answer::yes, false},
        {"an amount", "-1,5", 0, "um -1,50 verändern?", Answer::yes, true},
        {"a percentage", "10", 1, "um 10,00 Prozent verändern?", Answer::yes, true},
    };
    editPrices(16, [](User& user) { user.close(); }); // puts the places in order
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        const std::string before = prices("*", 16);
        onQuestion(c.question, c.answer);
        editPrices(16, [&](User& user) {
            user.click("btnPreiseAendern");
            user.type("txtWert", c.typed);
            user.select("cmbFixProzent", c.kind);
            user.click("btnPreiseAendern");
            user.click("cmdOk");
        });
        EXPECT_EQ(prices("*", 16) != before, c.changed);
    }
    EXPECT_EQ(prices("PREIS", 16), "[11.9200][11.9400][86.3500]");
}

TEST_F(PriceChangeOfAContract, TheFrameIsHiddenWhenTheScreenOpens) {
    for (int time = 0; time < 2; ++time) {
        editPrices(1, [&](User& user) {
            EXPECT_FALSE(user.usable("txtWert"));
            user.click("btnPreiseAendern");
            EXPECT_EQ(user.text("txtWert"), "");
            EXPECT_EQ(user.control<ui::ComboBox>("cmbFixProzent").selectedText(), "+/-");
            EXPECT_EQ(user.grid("grdVorschau").cell(0, 1), "98,50");
            EXPECT_EQ(user.grid("grdVorschau").cell(0, 2), "") << "no amount, no new price";
            user.type("txtWert", "1");
            user.click("cmdOk");
        });
    }
    EXPECT_THROW(lines::changedPrice(Decimal{Decimal::maxUnits}, Decimal{10}, ChangeKind::percent),
                 std::out_of_range);
}

TEST_F(PriceChangeOfAContract, ThePreviewShowsTheLinesAsTheyAre) {
    editPrices(1, [&](User& user) {
        const ui::Grid& preview = user.grid("grdVorschau");
        user.click("btnPreiseAendern");
        user.type("txtWert", "10");
        user.click("chkEdit");
        user.select("MSFlexGrid1", 0, 2);
        user.type("200");
        user.key(ui::Key::enter);
        EXPECT_EQ(cells(preview, 0), "Fichte Blochholz A/B|200,00|210,00") << "edited in its cell";
        user.focus("UpDown1");
        user.key(ui::Key::down);
        EXPECT_EQ(preview.cell(1, 2), "210,00") << "moved";
        user.click("cmdLoschen");
        EXPECT_EQ(preview.rows().size(), 2u) << "deleted";
        host.database.execute("UPDATE VERTRAG_PREISE SET PREIS = 1 WHERE ID = 3");
        onQuestion("um 10,00 verändern?", Answer::no);
        user.click("btnPreiseAendern");
        EXPECT_EQ(preview.cell(1, 2), "11,00") << "changed by somebody else before the question";
        user.click("cmdOk");
    });
}

} // namespace
} // namespace tellurix::tests
