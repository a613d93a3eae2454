#include "standin/home/SessionOptions.h"

#include "standin/home/database_file.h"

#include <limits>

namespace tellurix::standin {

Option SessionOptions::databaseOption() {
    return {"--database", "FILE",
            "the database; made when missing. Default: tellurix.db in the\nuser's data folder",
            [this](const std::string& value) {
                if (isConnectionString(value))
                    throw UsageError{"--database takes a database file, not a connection to a SQL Server"};
                database = notEmpty("--database", value);
            }};
}

Options SessionOptions::sessionOptions() {
    using Text = const std::string;
    const auto setLanguage = [this](Text& value) {
        if (value != "de" && value != "en") throw UsageError{"--language is de or en, not \"" + value + "\""};
        language = value;
    };
    const auto addSetting = [this](Text& value) {
        const std::size_t equals = value.find('=');
        if (equals == 0 || equals == std::string::npos)
            throw UsageError{"--setting needs NAME=VALUE, not \"" + value + "\""};
        settings[value.substr(0, equals)] = value.substr(equals + 1);
    };
    const auto setAccessLevel = [this](Text& value) {
        accessLevel = numberOf("--access-level", value, std::numeric_limits<int>::max());
    };
    // clang-format off
    return {
        {"--language", "de|en", "the language to start in (default: de)", setLanguage},
        {"--site", "TEXT", "the site, such as WVO (default: none)", [this](Text& value) { site = value; }},
        {"--currency", "TEXT", "the home currency beside EUR (default: CHF)", [this](Text& value) { homeCurrency = notEmpty("--currency", value); }},
        {"--setting", "NAME=VALUE", "a host setting instead of the stored one, such as MESZAHL=1;\ncan be given several times", addSetting},
        {"--access-level", "N", "the user's access level (default: 0, none)", setAccessLevel},
        {"--user", "NAME", "the user's name (default: who is signed on)", [this](Text& value) { user = notEmpty("--user", value); }},
    };
    // clang-format on
}

} // namespace tellurix::standin
