#include "module/base/Refused.h"
#include "module/lines/selection_value.h"
#include "standin/services/selection/SelectionExpression.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using lines::Attribute;
using lines::QuickSelection;
using standin::SelectionExpression;

std::string printed(std::string_view value) {
    return SelectionExpression::parse(value).print();
}

TEST(SelectionExpression, IsWrittenInItsOneForm) {
    struct Case {
        const char* rule;
        const char* value;
        const char* printed;
    };
    const Case cases[] = {
        {"nothing is nothing", "", ""},
        {"empty pieces are nothing", " ; ;", ""},
        {"the quick form as it is", "83 IN ('FI', 'KI') ;87 IN ('L') ;94 IN (4.5, 5) ;",
         "83 IN ('FI', 'KI') ;87 IN ('L') ;94 IN (4.5, 5) ;"},
        {"in the order of the attributes, as the quick selection writes it", "94 IN (5) ;83 IN ('FI') ;",
         "83 IN ('FI') ;94 IN (5) ;"},
        {"words in any case, blanks as they come", " 83 in('fi' ,'KI');and 94\tIn ( 4 )",
         "83 IN ('fi', 'KI') ;94 IN (4) ;"},
        {"the extended form as the sample data have it", "83 NOT IN ('LA', 'BU', 'EI') ;94 BETWEEN 4 AND 6 ;",
         "83 NOT IN ('LA', 'BU', 'EI') ;94 BETWEEN 4 AND 6 ;"},
        {"ranges of classes and lengths", "93 >= '2b' ;94 <= 6.25 ;", "93 >= '2b' ;94 <= 6.25 ;"},
        {"or stands before its condition", "94 IN (4) ;or 83 IN ('FI') ;93 <= '3a' ;",
         "94 IN (4) ;OR 83 IN ('FI') ;93 <= '3a' ;"},
        {"digits stay as they are", "94 IN (4.50, -1, +7, .5, 3.) ;", "94 IN (4.50, -1, 7, 0.5, 3) ;"},
        {"a number beyond what a double holds", "94 IN (123456789012345.678) ;",
         "94 IN (123456789012345.678) ;"},
        {"one attribute twice cannot be shown in one box", "83 IN ('FI') ;83 IN ('KI') ;",
         "AND 83 IN ('FI') ;AND 83 IN ('KI') ;"},
        {"nor a comma in a code", "83 IN ('A,B') ;94 IN (4) ;", "AND 83 IN ('A,B') ;AND 94 IN (4) ;"},
        {"nor a quote", "83 IN ('O''X') ;", "AND 83 IN ('O''X') ;"},
        {"nor a blank", "83 IN ('FI ', 'KI') ;", "AND 83 IN ('FI ', 'KI') ;"},
        {"a semicolon in a code ends nothing", "83 IN ('A;83 IN (''B') ;", "AND 83 IN ('A;83 IN (''B') ;"},
        {"nor can an empty code be shown", "83 IN ('', 'KI') ;", "AND 83 IN ('', 'KI') ;"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(printed(c.value), c.printed) << c.rule;
        EXPECT_EQ(printed(c.printed), c.printed) << c.rule << ", read back";
    }
}

TEST(SelectionExpression, TheQuickSelectionShowsAllOfItOrNothing) {
    struct Case {
        const char* rule;
        const char* value;
        QuickSelection shown;
    };
    const Case cases[] = {
        {"what it can say",
         "94 in (4.50,5) ;87 in ('L') ;83 in ('FI','KI')",
         {{"FI,KI", "L", "", "", "4.50,5"}}},
        {"the last attributes alone", "93 IN ('2b') ;90 IN ('CX', 'C') ;", {{"", "", "CX,C", "2b", ""}}},
        {"one attribute twice", "83 IN ('FI') ;83 IN ('KI') ;", {}},
        {"a code with a comma", "87 IN ('L') ;83 IN ('A,B') ;", {}},
        {"a code that holds a whole condition", "83 IN ('X') ;90 IN ('') ;94 IN (4) ;", {}},
        {"an alternative", "83 IN ('FI') ;OR 87 IN ('L') ;", {}},
        {"an exclusion behind a list", "83 IN ('FI') ;87 NOT IN ('L') ;", {}},
        {"a range", "94 >= 4 ;", {}},
    };
    for (const Case& c : cases)
        EXPECT_EQ(lines::readSelection(printed(c.value)), c.shown) << c.rule;
}

TEST(SelectionExpression, ReadsWhatTheQuickSelectionWrote) {
    const QuickSelection typed{{"FI, KI", "", "A", "", "4.5, 6"}};
    std::string stored = lines::selectionLiteral(typed);
    for (auto at = stored.find("''"); at != std::string::npos; at = stored.find("''", at + 1))
        stored.erase(at, 1);
    EXPECT_EQ(printed(stored), stored);
}

TEST(SelectionExpression, NamesThePieceThatItCannotRead) {
    struct Case {
        const char* rule;
        const char* value;
        const char* piece;
    };
    const Case cases[] = {
        {"an unknown comparison", "87 IN ('L') ;83 LIKE 'F%' ;94 IN (4) ;", "„83 LIKE 'F%'“"},
        {"an unknown attribute", "83 IN ('FI') ;99 IN ('X') ;", "„99 IN ('X')“"},
        {"an attribute that is no whole number", "83.5 IN ('X') ;", "„83.5 IN ('X')“"},
        {"no attribute", "IN ('FI') ;", "„IN ('FI')“"},
        {"an open bracket", "83 IN ('FI' ;", "„83 IN ('FI'“"},
        {"an open quote takes all the rest", "94 IN (4) ;83 IN ('FI) ;87 IN (4) ;",
         "„83 IN ('FI) ;87 IN (4) ;“"},
        {"an open quote at the very end", "93 >= '2b", "„93 >= '2b“"},
        {"a quote that the quick selection left alone", "83 IN ('O'X') ;", "„83 IN ('O'X') ;“"},
        {"an empty list", "94 IN () ;", "„94 IN ()“"},
        {"a list that ends with a comma", "94 IN (4, ) ;", "„94 IN (4, )“"},
        {"a code without quotes", "83 IN (FI) ;", "„83 IN (FI)“"},
        {"a length in quotes", "94 IN ('4') ;", "„94 IN ('4')“"},
        {"a length that is no number", "94 IN (4.5.6) ;", "„94 IN (4.5.6)“"},
        {"a length of more digits than can be exact", "94 IN (1234567890123456789) ;",
         "„94 IN (1234567890123456789)“"},
        {"species have no size", "83 BETWEEN 'A' AND 'F' ;", "„83 BETWEEN 'A' AND 'F'“"},
        {"half a range", "94 BETWEEN 4 ;83 IN ('FI') ;", "„94 BETWEEN 4“"},
        {"NOT belongs to IN", "94 NOT BETWEEN 4 AND 5 ;", "„94 NOT BETWEEN 4 AND 5“"},
        {"two conditions in one piece", "83 IN ('FI') 87 IN ('B') ;", "„83 IN ('FI') 87 IN ('B')“"},
        {"or before anything", "OR 83 IN ('FI') ;", "„OR 83 IN ('FI')“"},
        {"a condition that was smuggled in", "94 IN (5) OR 1 = 1", "„94 IN (5) OR 1 = 1“"},
        {"a statement that was smuggled in", "83 IN ('FI') ; DROP TABLE LOGS", "„DROP TABLE LOGS“"},
        {"a comment", "83 IN ('FI') ;--", "„--“"},
    };
    for (const Case& c : cases) {
        try {
            SelectionExpression::parse(c.value);
            ADD_FAILURE() << c.rule << " was read";
        } catch (const base::Refused& error) {
            EXPECT_NE(std::string{error.what()}.find(c.piece), std::string::npos)
                << c.rule << ": " << error.what();
        }
    }
}

} // namespace
} // namespace tellurix::tests
