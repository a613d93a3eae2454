#include "host/HostOptions.h"

#include <array>
#include <charconv>

namespace tellurix::windows {

namespace {

struct Option {
    const char* name;
    const char* value; ///< what stands behind the name, nullptr for an option without a value
    const char* meaning;
    void (*set)(HostOptions& options, const std::string& value);
};

using Options = HostOptions;
using Text = const std::string;

void setAccessLevel(Options& options, Text& value) {
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), options.accessLevel);
    if (error != std::errc{} || end != value.data() + value.size() || options.accessLevel < 0)
        throw std::invalid_argument{"--access-level braucht eine Zahl, nicht \"" + value + "\""};
}

void setLanguage(Options& options, Text& value) {
    if (value != "de" && value != "en") throw std::invalid_argument{"--language ist de oder en"};
    options.language = value;
}

// clang-format off
constexpr std::array known{
    Option{"--database", "DATEI", "die Datenbank; wird angelegt, wenn sie fehlt", [](Options& o, Text& v) { o.database = v; }},
    Option{"--connection", "TEXT", "ADO-Verbindung statt einer Datei", [](Options& o, Text& v) { o.connection = v; }},
    Option{"--language", "de|en", "Sprache", setLanguage},
    Option{"--site", "TEXT", "Standort, etwa WVO", [](Options& o, Text& v) { o.site = v; }},
    Option{"--currency", "TEXT", "Landeswährung neben EUR (CHF)", [](Options& o, Text& v) { o.homeCurrency = v; }},
    Option{"--user", "NAME", "Name des Benutzers", [](Options& o, Text& v) { o.user = v; }},
    Option{"--access-level", "N", "Zugriffsebene des Benutzers", setAccessLevel},
    Option{"--register", nullptr, "die beiden Bibliotheken neben dem Programm anmelden", [](Options& o, Text&) { o.task = Options::Task::registerLibraries; }},
    Option{"--unregister", nullptr, "sie wieder abmelden", [](Options& o, Text&) { o.task = Options::Task::unregisterLibraries; }},
};
// clang-format on

std::string listOfOptions() {
    std::string text = "\n\nOptionen:\n";
    for (const Option& option : known) {
        text += std::string{option.name} + (option.value == nullptr ? "" : std::string{" "} + option.value) +
                ": " + option.meaning + "\n";
    }
    return text;
}

} // namespace

HostOptions HostOptions::parse(std::span<const std::string> arguments) {
    HostOptions options;
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const Option* found = nullptr;
        for (const Option& option : known) {
            if (arguments[i] == option.name) found = &option;
        }
        if (found == nullptr)
            throw std::invalid_argument{"Unbekannte Option " + arguments[i] + listOfOptions()};
        if (found->value != nullptr && i + 1 == arguments.size())
            throw std::invalid_argument{arguments[i] + " braucht einen Wert" + listOfOptions()};
        found->set(options, found->value == nullptr ? std::string{} : arguments[++i]);
    }
    return options;
}

} // namespace tellurix::windows
