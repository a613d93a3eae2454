#include "module/base/StatementText.h"
#include "standin/services/ErrorReporter.h"
#include "tests/support/ScriptedDisplay.h"

#include <gtest/gtest.h>

namespace tellurix::tests {
namespace {

using base::DatabaseErrorCategory;

TEST(ErrorReporter, SaysWhatTheUserCanDo) {
    const standin::TextCatalogue catalogue = standin::TextCatalogue::builtIn();
    const auto database = [](DatabaseErrorCategory category) {
        return base::DatabaseError{category, "technical text", "SELECT 1"};
    };
    const auto statement = base::StatementError{base::OwnText::textWithApostrophe, "UPDATE …", "O'Neill"};
    const auto unexpected = std::runtime_error{"out of paper"};
    const auto syntax = database(DatabaseErrorCategory::syntax);
    const auto unknownName = database(DatabaseErrorCategory::unknownName);
    const auto conversion = database(DatabaseErrorCategory::conversion);
    const auto constraint = database(DatabaseErrorCategory::constraint);
    const auto locked = database(DatabaseErrorCategory::locked);
    const auto connection = database(DatabaseErrorCategory::connection);
    const auto storageFull = database(DatabaseErrorCategory::storageFull);
    const auto readOnly = database(DatabaseErrorCategory::readOnly);
    const auto damaged = database(DatabaseErrorCategory::damaged);
    const auto missing = database(DatabaseErrorCategory::missing);
    const auto other = database(DatabaseErrorCategory::other);
    struct Case {
        const std::exception& error;
        const char* language;
        std::vector<std::string> parts;
        int icon;
    };
    const int warning = ui::box::exclamation;
    const int critical = ui::box::critical;
    const Case cases[] = {
        {statement, "de", {"„O'Neill“: Der Text enthält einen Apostroph"}, warning},
        {statement, "en", {"\"O'Neill\": The text holds an apostrophe"}, warning},
        {locked, "de", {"von jemand anderem", "noch einmal versuchen", "technical text"}, warning},
        {conversion, "de", {"passt nicht in sein Feld", "technical text"}, warning},
        {constraint, "de", {"verletzen eine Regel", "technical text"}, warning},
        {connection, "de", {"Verbindung zur Datenbank", "technical text"}, critical},
        {storageFull, "de", {"kein Platz mehr", "nichts gespeichert", "technical text"}, critical},
        {readOnly, "de", {"schreibgeschützt", "nichts gespeichert", "technical text"}, critical},
        {damaged, "de", {"ist beschädigt", "technical text"}, critical},
        {missing, "de", {"nicht mehr an ihrem Platz", "nichts gespeichert", "technical text"}, critical},
        {syntax, "de", {"nicht verstanden", "technical text"}, critical},
        {unknownName, "de", {"Tabelle oder Spalte fehlt", "technical text"}, critical},
        {other, "de", {"hat einen Fehler gemeldet", "technical text"}, critical},
        {unexpected, "de", {"Unerwarteter Fehler: out of paper"}, critical},
        {locked, "en", {"Someone else", "Technical message: technical text"}, warning},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.parts.front());
        ScriptedDisplay display;
        const host::TlxVar session{.homeCurrency = {}, .site = {}, .user = {}, .language = c.language};
        display.onMessage(c.parts.front());
        standin::ErrorReporter{display, catalogue, session}.report(c.error);
        ASSERT_EQ(display.messages().size(), 1U);
        const auto& message = display.messages().front();
        EXPECT_EQ(message.title, "Tellurix");
        EXPECT_EQ(ui::box::iconOf(message.flags), c.icon);
        for (const std::string& part : c.parts)
            EXPECT_NE(message.text.find(part), std::string::npos) << message.text;
    }
}

} // namespace
} // namespace tellurix::tests
