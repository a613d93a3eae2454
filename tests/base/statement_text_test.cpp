#include "module/base/StatementText.h"

#include <gtest/gtest.h>

#include <limits>

namespace tellurix::base {
namespace {

using Put = StatementText& (*)(StatementText&, std::string_view);

StatementText& number(StatementText& text, std::string_view value) {
    return text.number(value);
}
StatementText& quoted(StatementText& text, std::string_view value) {
    return text.quoted(value);
}
StatementText& asItStands(StatementText& text, std::string_view value) {
    return text.quotedAsItStands(value);
}
StatementText& inLike(StatementText& text, std::string_view value) {
    return text.fixed("'%").insideLiteral(value).fixed("%'");
}
StatementText& inList(StatementText& text, std::string_view value) {
    return text.fixed("'83 IN (''").insideInnerLiteral(value).fixed("'')'");
}
StatementText& identifier(StatementText& text, std::string_view value) {
    return text.identifier(value);
}

TEST(StatementText, PutsAValueInItsPlace) {
    struct Row {
        const char* rule;
        Put put;
        const char* value;
        const char* expected;
    };
    for (const auto& row : std::vector<Row>{
             {"a comma becomes a point", number, "12,5", "12.5"},
             {"a negative number", number, "-1,5", "-1.5"},
             {"a number stays as typed", number, "+007.50", "+007.50"},
             {"digits on one side are enough", number, "5,", "5."},
             {"decimals alone", number, ",5", ".5"},
             {"an exponent is a number for the server", number, "1e2", "1e2"},
             {"more digits than a decimal has", number, "12345678901234567890", "12345678901234567890"},
             {"quotes are doubled", quoted, "D'Angelo's", "'D''Angelo''s'"},
             {"doubled quotes are doubled again", quoted, "''", "''''''"},
             {"an empty text", quoted, "", "''"},
             {"a text as it stands", asItStands, "frei Säge; -- [x] \"y\" \\",
              "'frei Säge; -- [x] \"y\" \\'"},
             {"doubled quotes as they stand", asItStands, "D''Angelo", "'D''Angelo'"},
             {"two doubled quotes in a row", asItStands, "''''", "''''''"},
             {"an empty text as it stands", asItStands, "", "''"},
             {"a filter inside a literal", inLike, "50%", "'%50%%'"},
             {"doubled quotes inside a literal", inLike, "''", "'%''%'"},
             {"a code inside a literal inside a literal", inList, "FI", "'83 IN (''FI'')'"},
             {"a name", identifier, "A1_VERTRAG", "A1_VERTRAG"},
         }) {
        StatementText text("SET X = ");
        row.put(text, row.value).fixed(" WHERE ID = 1");
        EXPECT_EQ(text.text(), std::string("SET X = ") + row.expected + " WHERE ID = 1") << row.rule;
    }
}

TEST(StatementText, RefusesAValueThatWouldChangeTheStatement) {
    struct Row {
        const char* rule;
        Put put;
        const char* value;
    };
    for (const auto& row : std::vector<Row>{
             {"an empty number", number, ""},
             {"a sign is no number", number, "-"},
             {"a point is no number", number, ","},
             {"grouped thousands", number, "1.250,00"},
             {"a second statement", number, "1; DELETE FROM VERTRAEGE"},
             {"a column", number, "PREIS"},
             {"an expression", number, "1+1"},
             {"a comment", number, "1--"},
             {"a double sign", number, "--1"},
             {"a hexadecimal number", number, "0x1F"},
             {"a quote", number, "1'"},
             {"a blank", number, "1 2"},
             {"a single apostrophe", asItStands, "D'Angelo"},
             {"an apostrophe at the start", asItStands, "'"},
             {"an apostrophe at the end", asItStands, "x'"},
             {"three in a row", asItStands, "a'''b"},
             {"two that are not together", asItStands, "' OR '"},
             {"a doubled one and a single one", asItStands, "''x'"},
             {"an apostrophe in a filter", inLike, "' OR 1=1 --"},
             {"an apostrophe in a code", inList, "O'X"},
             {"a doubled one, which would end the inner literal", inList, "''"},
             {"an empty name", identifier, ""},
             {"a name with a blank", identifier, "ID FROM X"},
             {"a name with a point", identifier, "X.ID"},
             {"a name with a bracket", identifier, "X]"},
             {"a number is no name", identifier, "1"},
             {"a name with an umlaut", identifier, "MENGÄ"},
         }) {
        StatementText text("UPDATE T SET X = ");
        row.put(text, row.value).fixed(" WHERE ID = ").number(1);
        try {
            EXPECT_EQ(text.text(), "refused") << row.rule;
        } catch (const StatementError& error) {
            EXPECT_EQ(error.value(), row.value) << row.rule;
            EXPECT_TRUE(error.statement().ends_with(" WHERE ID = 1"))
                << row.rule << ": " << error.statement();
            EXPECT_NE(std::string(error.what()).find(row.value), std::string::npos) << row.rule;
        }
    }
}

TEST(StatementText, TellsTheUserWhichTextAndWhatToDo) {
    StatementText text("UPDATE VERTRAEGE SET KOPF1 = ");
    text.quotedAsItStands("D'Angelo").fixed(",NUMM1 = ").number("abc");
    try {
        text.text();
        FAIL() << "an apostrophe was let through";
    } catch (const StatementError& error) {
        EXPECT_STREQ(error.what(),
                     "„D'Angelo“: Der Text enthält einen Apostroph ('), den dieses Feld nicht speichern "
                     "kann. Bitte den Apostroph weglassen oder durch ´ ersetzen. Die Anweisung wurde "
                     "nicht an die Datenbank gesendet.");
        EXPECT_EQ(error.value(), "D'Angelo") << "the first refused value is named";
        EXPECT_EQ(error.statement(), "UPDATE VERTRAEGE SET KOPF1 = 'D'Angelo',NUMM1 = abc");
    }
}

TEST(StatementText, CutsALongValueOnlyInTheMessageAndNotWithinACharacter) {
    const std::string value = "'" + std::string(78, 'x') + "ä und noch viel mehr Text";
    try {
        StatementText().quotedAsItStands(value).text();
        FAIL() << "an apostrophe was let through";
    } catch (const StatementError& error) {
        EXPECT_TRUE(std::string_view(error.what()).starts_with("„'" + std::string(78, 'x') + "…“: "))
            << error.what();
        EXPECT_EQ(error.value(), value);
    }
}

TEST(StatementText, NeverWritesACommentByTwoMinusSigns) {
    EXPECT_EQ(StatementText("PREIS -").number("-1,5").text(), "PREIS - -1.5");
    EXPECT_EQ(StatementText("PREIS -").number(-1).text(), "PREIS - -1");
    EXPECT_EQ(StatementText("PREIS  + ").number("-1,5").text(), "PREIS  + -1.5");
}

TEST(StatementText, WritesKeysAndNull) {
    EXPECT_EQ(StatementText("ID =").number(17).fixed(",X = ").null().text(), "ID =17,X = NULL");
    EXPECT_EQ(StatementText().quotedOrNull("").quotedAsItStandsOrNull("").text(), "NULLNULL");
    EXPECT_EQ(StatementText().quotedOrNull("a'b").quotedAsItStandsOrNull("a''b").text(), "'a''b''a''b'");
    EXPECT_EQ(StatementText().number(std::numeric_limits<std::int64_t>::min()).text(),
              "-9223372036854775808");
}

} // namespace
} // namespace tellurix::base
