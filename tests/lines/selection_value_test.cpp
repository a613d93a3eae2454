#include "module/lines/selection_value.h"

#include <gtest/gtest.h>

namespace tellurix::lines {
namespace {

TEST(SelectionValue, TypedListsAreQuotedForALiteral) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* quoted;
    };
    const Case cases[] = {
        {"one entry", "FI", "''FI''"},
        {"blanks behind a comma go", "FI, KI,TA", "''FI'', ''KI'', ''TA''"},
        {"however many", "FI,  KI,    TA", "''FI'', ''KI'', ''TA''"},
        {"blanks before a comma stay", "FI ,KI", "''FI '', ''KI''"},
        {"blanks at both ends go", "  FI,KI ", "''FI'', ''KI''"},
        {"an entry between two commas is empty", "FI,,KI", "''FI'', '''', ''KI''"},
        {"a comma at the end adds an empty entry", "FI,", "''FI'', ''''"},
        {"a quote stays as it is", "O'F", "''O'F''"},
        {"umlauts and blanks inside", "Ä Ö", "''Ä Ö''"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(quoteList(c.typed), c.quoted) << c.rule;
}

TEST(SelectionValue, LengthsKeepTheNumbers) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* german;
        const char* english;
    };
    const Case cases[] = {
        {"what is no number goes", "4.5,x,6", "4.5, 6", "4.5, 6"},
        {"a comma separates in every locale", "4,5", "4, 5", "4, 5"},
        {"no number at all", "x,y", "", ""},
        {"two points are no number", "4..5,6", "6", "6"},
        {"the point is decimal in every locale", "1.250", "1.250", "1.250"},
        {"empty", "", "", ""},
        {"a fragment of a statement is no number", "4') OR 1=1 --,5", "5", "5"},
        {"a hexadecimal number or an exponent is none", "0x10,1e2,3", "3", "3"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(lengthsIn(c.typed, base::Locale::german()), c.german) << c.rule;
        EXPECT_EQ(lengthsIn(c.typed, base::Locale::english()), c.english) << c.rule;
    }
}

TEST(SelectionValue, TheFiveListsMakeOneLiteralInFixedOrder) {
    EXPECT_EQ(selectionLiteral({}), "");
    EXPECT_EQ(
        selectionLiteral({{"FI, KI", "L", "A,B", "2b", "4.5, 5"}}),
        "83 IN (''FI'', ''KI'') ;87 IN (''L'') ;90 IN (''A'', ''B'') ;93 IN (''2b'') ;94 IN (4.5, 5) ;");
    EXPECT_EQ(selectionLiteral({{"", "", "", "", "4"}}), "94 IN (4) ;");
    EXPECT_EQ(selectionLiteral({{"", "L", "", "1a", ""}}), "87 IN (''L'') ;93 IN (''1a'') ;");
}

TEST(SelectionValue, AStoredConditionBecomesTheTypedList) {
    struct Case {
        const char* condition;
        const char* list;
    };
    const Case cases[] = {
        {"83 IN ('FI', 'KI') ", "FI,KI"},
        {"94 IN (4.5, 5) ", "4.5,5"},
        {"83 IN ('FI ', 'KI')", "FI,KI"},
        {"no parentheses", "no parentheses"},
        {"only (one", "only (one"},
        {"a (b) c (d)", "b"},
        {") a ( b", "b"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(extractList(c.condition), c.list);
}

TEST(SelectionValue, ReadsItsOwnFormOnly) {
    struct Case {
        const char* rule;
        const char* value;
        QuickSelection lists;
        bool ticked;
    };
    const Case cases[] = {
        {"no value", "", {}, false},
        {"all five",
         "83 IN ('FI', 'KI') ;87 IN ('L') ;90 IN ('A') ;93 IN ('2b') ;94 IN (4.5, 5) ;",
         {{"FI,KI", "L", "A", "2b", "4.5,5"}},
         true},
        {"without the last semicolon", "83 IN ('FI')", {{"FI", "", "", "", ""}}, true},
        {"the later of two conditions wins", "83 IN ('FI') ;83 IN ('KI') ;", {{"KI", "", "", "", ""}}, true},
        {"in another order", "94 IN (4) ;83 IN ('FI') ;", {{"FI", "", "", "", "4"}}, true},
        {"blank pieces are skipped", "83 IN ('FI') ; ; ;87 IN ('L') ;", {{"FI", "L", "", "", ""}}, true},
        {"the dialog's form", "83 NOT IN ('LA', 'BU') ;94 BETWEEN 4 AND 6 ;", {}, true},
        {"empties what was filled before it", "83 IN ('FI') ;94 BETWEEN 4 AND 6 ;", {}, true},
        {"a blank before the code is another form", " 83 IN ('FI') ;", {}, true},
        {"an unknown attribute", "84 IN ('X') ;", {}, true},
        {"nothing before the first semicolon", ";83 IN ('FI') ;", {{"FI", "", "", "", ""}}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        EXPECT_EQ(readSelection(c.value), c.lists);
        EXPECT_EQ(hasSelection(c.value), c.ticked);
    }
}

} // namespace
} // namespace tellurix::lines
