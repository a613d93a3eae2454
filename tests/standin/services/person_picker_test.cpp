#include "database/tracing/TracingConnection.h"
#include "tests/standin/services/ServicesTest.h"

#include <set>

namespace tellurix::tests {
namespace {

using host::Boolean16;
using ui::Key;

class PersonPicker : public ServicesTest {
protected:
    std::int32_t choose(const std::string& mode, const ScriptedDisplay::Script& script, int accessLevel = 0,
                        std::int32_t current = 0) {
        display.onWindow("F_PersonPicker", script);
        constexpr std::int16_t standardClient = 2;
        return host.personalPicker.choose(session, mode, accessLevel, standardClient, current, confirmed);
    }

    static std::string numbers(const ui::Grid& grid) {
        std::set<std::string> sorted;
        for (const ui::Grid::Row& row : grid.rows())
            sorted.insert(row.front());
        std::string text;
        for (const std::string& number : sorted)
            text += number + " ";
        return text;
    }

    Boolean16 confirmed = Boolean16::False;
};

TEST_F(PersonPicker, EachModeOffersItsPersons) {
    struct Case {
        const char* rule;
        const char* mode;
        int accessLevel;
        std::string numbers;
    };
    std::string helpers = "3001 3002 3003 3004 3006 3007 ";
    for (int number = 3011; number <= 3070; ++number)
        helpers += std::to_string(number) + " ";
    const Case cases[] = {
        {"clients, without the disabled one", "2PVM", 0, "100 101 "},
        {"delivery addresses", "2PVAP", 0, "6001 6002 6003 6004 6005 "},
        {"customers without an access level", "2PVK", 0, "2010 2011 2012 2013 2014 "},
        {"and those of the contract's level", "2PVK", 5, "2010 2011 2012 2013 2014 2015 "},
        {"but not of another level", "2PVK", 4, "2010 2011 2012 2013 2014 "},
        {"forest owners", "2PVA1", 0, "4001 4002 4003 4004 "},
        {"forest helpers, without the disabled one", "2PVA2", 0, helpers},
        {"hauliers", "2PVA3", 0, "5001 5002 "},
        {"stumpage sellers, a clear flag is none", "2PVA6", 0, "4002 4004 "},
        {"agents", "2PVA8", 0, "5401 "},
    };
    for (const Case& c : cases) {
        choose(
            c.mode,
            [&](User& user) {
                EXPECT_EQ(numbers(user.grid("grdPersons")), c.numbers) << c.rule;
                user.key(Key::escape);
            },
            c.accessLevel);
    }
    choose("", [&](User& user) {
        EXPECT_EQ(
            std::to_string(user.grid("grdPersons").rows().size()),
            value("SELECT COUNT(*) FROM PERSONAL WHERE ISNULL(DISABLE,0) = 0 AND ID_ACCESS_LEVELS IS NULL"))
            << "an unknown contract type gives no mode: everybody is offered";
        user.key(Key::escape);
    });
    EXPECT_THROW(host.personalPicker.choose(session, "2PVA9", 0, 2, 0, confirmed), std::invalid_argument);
}

TEST_F(PersonPicker, EveryKeyNarrows) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* numbers;
    };
    const Case cases[] = {
        {"a number", "3003", "3003 "},
        {"the start of a number", "300", "3001 3002 3003 3004 3006 3007 "},
        {"not the end of a number", "004", ""},
        {"a part of a name, umlauts in any case", "ÖLL", "3003 "},
        {"a part inside a name", "linger", "3003 "},
        {"first and last name in any order", "josef huber", "3001 "},
        {"a town", "mürz", "3002 "},
        {"a word of one person and a number of another", "müller 3001", ""},
        {"a wildcard stands for itself", "%", ""},
        {"so does the one for a single character", "_", ""},
        {"and a bracket", "[a-z]", ""},
        {"a hostile text finds nobody", "' OR 1=1 --", ""},
    };
    choose("2PVA2", [&](User& user) {
        for (const Case& c : cases) {
            user.type("txtSearch", c.typed);
            EXPECT_EQ(numbers(user.grid("grdPersons")), c.numbers) << c.rule;
        }
        user.key(Key::escape);
    });
    choose("2PVK", [&](User& user) {
        user.type("txtSearch", "d'ang");
        EXPECT_EQ(numbers(user.grid("grdPersons")), "2011 ") << "an apostrophe is a character like any other";
        EXPECT_EQ(user.caption("lblCount"), "Treffer: 1");
        user.key(Key::escape);
    });
    EXPECT_TRUE(display.errors().empty());
}

TEST_F(PersonPicker, AnswersWhoIsChosen) {
    struct Case {
        const char* rule;
        const char* mode;
        std::int32_t current;
        ScriptedDisplay::Script script;
        std::int32_t answer;
        Boolean16 confirmed;
    };
    const auto enter = [](User& user) { user.key(Key::enter); };
    const Case cases[] = {
        {"starts on the current person", "2PVA2", 22, enter, 22, Boolean16::True},
        {"starts on the standard client for clients", "2PVM", 0, enter, 2, Boolean16::True},
        {"a client chosen before comes first", "2PVM", 1, enter, 1, Boolean16::True},
        {"typed, gone through, chosen", "2PVAP", 0,
         [](User& user) {
             user.type("txtSearch", "werk wolf");
             user.key(Key::enter);
         },
         50, Boolean16::True},
        {"double click", "2PVA3", 0,
         [](User& user) {
             user.select("grdPersons", 1, 3);
             user.doubleClick("grdPersons");
         },
         41, Boolean16::True},
        {"no selection", "2PVA2", 22, [](User& user) { user.alt(U'k'); }, 0, Boolean16::False},
        {"Esc is no selection either", "2PVA2", 22, [](User& user) { user.key(Key::escape); }, -1,
         Boolean16::False},
    };
    for (const Case& c : cases) {
        confirmed = Boolean16::False;
        EXPECT_EQ(choose(c.mode, c.script, 0, c.current), c.answer) << c.rule;
        EXPECT_EQ(confirmed, c.confirmed) << c.rule;
    }
}

TEST_F(PersonPicker, OpeningAsksOnce) {
    int statements = 0;
    tracing::TracingConnection traced{*session.connection, [&](const tracing::Statement& sent) {
                                          statements +=
                                              sent.text.find("FROM PERSONAL") != std::string::npos ? 1 : 0;
                                      }};
    session.connection = &traced;
    choose(
        "2PVA2", [](User& user) { user.key(Key::escape); }, 0, 22);
    EXPECT_EQ(statements, 1);
}

TEST_F(PersonPicker, ALongListShowsItsStartAndReachesTheCurrentPerson) {
    for (int i = 0; i < 210; ++i) {
        session.connection->execute("INSERT INTO PERSONAL (NUMMER,KURZBEZEICHNUNG,KUNDE) VALUES (" +
                                    std::to_string(9000 + i) + ",'Aal " + std::to_string(i) + "',1)");
    }
    constexpr std::int32_t lastByName = 12; // Zellstoff Möderbrugg
    EXPECT_EQ(choose(
                  "2PVK",
                  [](User& user) {
                      EXPECT_EQ(user.text("txtSearch"), "2012");
                      user.type("txtSearch", "");
                      EXPECT_EQ(user.caption("lblCount"), "Mehr als 200 Treffer, bitte weiter eingrenzen");
                      user.type("txtSearch", "2012");
                      user.key(Key::enter);
                  },
                  0, lastByName),
              lastByName);
}

} // namespace
} // namespace tellurix::tests
