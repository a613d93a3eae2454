#include "tests/standin/services/ServicesTest.h"

#include <stdexcept>

namespace tellurix::tests {
namespace {

class SelectionTranslating : public ServicesTest {
protected:
    std::string translated(const std::string& selection) {
        return host.selectionTranslator.translate(session, "1LV", "1LV", selection, "R", "");
    }

    /// The logs that a selection takes, as the quantity lines ask for them.
    std::string logs(const std::string& selection) {
        const auto rows =
            session.connection->open("SELECT ID_LOG FROM LOGS WHERE ID_LOG IN (SELECT LOGS.ID_LOG " +
                                     translated(selection) + ") ORDER BY ID_LOG");
        std::string numbers;
        for (; !rows->atEnd(); rows->moveNext())
            numbers += rows->text("ID_LOG") + " ";
        return numbers;
    }
};

TEST_F(SelectionTranslating, TakesTheLogsThatAreMeant) {
    struct Case {
        const char* rule;
        const char* selection;
        const char* logs;
    };
    const Case cases[] = {
        {"all conditions hold together", "83 IN ('FI') ;87 IN ('B') ;90 IN ('A', 'B') ;", "1 2 40 50 60 "},
        {"lengths are exact numbers", "94 IN (4.50, 5) ;", "2 3 6 61 "},
        {"codes in any case", "83 in ('fi') ;87 in ('w') ;", "20 21 "},
        {"an exclusion and a range with both ends", "83 NOT IN ('LA', 'BU', 'EI') ;94 BETWEEN 4 AND 6 ;",
         "1 2 3 4 6 40 50 60 "},
        {"a log without a class is in none of the classes", "90 NOT IN ('A', 'B', 'D') ;",
         "4 20 21 22 30 31 32 33 "},
        {"classes from one on", "93 >= '3a' ;", "1 3 4 6 50 "},
        {"classes up to one", "93 <= '1b' ;", "5 10 30 31 32 33 60 "},
        {"classes from one to another", "93 BETWEEN '1b' AND '2a' ;", "5 10 11 12 33 40 60 61 "},
        {"one alternative or the other", "87 IN ('W') ;OR 83 IN ('BU') ;", "20 21 22 62 "},
        {"and binds closer than or", "83 IN ('KI') ;94 >= 4 ;OR 87 IN ('ST') ;94 <= 2.5 ;", "3 32 "},
        {"one attribute twice is both at once", "83 IN ('FI') ;83 IN ('KI') ;", ""},
        {"an empty list of conditions takes every log", ";",
         "1 2 3 4 5 6 10 11 12 20 21 22 30 31 32 33 40 50 60 61 62 "},
        {"a code that looks like a statement is a code", "83 IN ('FI''); DELETE FROM LOGS;--') ;", ""},
        {"a code that looks like a condition is a code", "83 IN (''' OR ''1''=''1') ;", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(logs(c.selection), c.logs) << c.rule;
    EXPECT_EQ(value("SELECT COUNT(*) FROM LOGS"), "21");
}

TEST_F(SelectionTranslating, AConditionBehindItNarrowsEveryAlternative) {
    EXPECT_EQ(
        value("SELECT COUNT(*)" + translated("87 IN ('W') ;OR 83 IN ('BU') ;") + " AND LOGS.ID_LOG = 22"),
        "1");
}

TEST_F(SelectionTranslating, RefusesWhatItDoesNotKnow) {
    const auto message = [&](const std::string& kind, const std::string& selection) -> std::string {
        try {
            host.selectionTranslator.translate(session, kind, kind, selection, "R", "");
        } catch (const std::exception& error) {
            return error.what();
        }
        return "translated";
    };
    EXPECT_NE(message("1LV", "83 IN ('FI') ;83 SOUNDS ('KI') ;").find("83 SOUNDS ('KI')"), std::string::npos);
    EXPECT_NE(message("2PVK", "83 IN ('FI') ;").find("2PVK"), std::string::npos);
}

} // namespace
} // namespace tellurix::tests
