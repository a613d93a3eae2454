#include "bench/statements/translation_times.h"

#include "bench/statements/screen_statements.h"
#include "bench/support/SampleFile.h"
#include "bench/support/measure.h"
#include "bench/support/report.h"
#include "database/embedded/execution/Batch.h"
#include "database/embedded/sqlite/SqliteConnection.h"
#include "database/embedded/translation/Catalogue.h"
#include "database/embedded/translation/Translator.h"

#include <ostream>
#include <set>
#include <stdexcept>

namespace tellurix::bench {

namespace {

constexpr int runs = 1000;
constexpr std::chrono::seconds patience{5};

struct Parts {
    Durations parse;
    Durations bind;
    Durations prepare;
    Durations translation; ///< parse and bind
    Durations all;
};

embedded::Translation translated(embedded::Translator& translator, const embedded::Statement& statement) {
    using namespace embedded;
    if (auto* const* const select = std::get_if<SelectStatement*>(&statement))
        return translator.query(**select);
    if (auto* const* const update = std::get_if<UpdateStatement*>(&statement))
        return translator.update(**update);
    if (auto* const* const deletion = std::get_if<DeleteStatement*>(&statement))
        return translator.remove(**deletion);
    if (auto* const* const insert = std::get_if<InsertStatement*>(&statement))
        return translator.insert(**insert);
    throw std::logic_error{"no statement that is translated"};
}

Parts measure(embedded::SqliteConnection& connection, embedded::Catalogue& catalogue,
              const std::string& text) {
    Parts parts;
    for (int i = 0; i < runs; ++i) {
        const Clock::time_point start = Clock::now();
        embedded::Batch batch{text};
        const Clock::time_point parsed = Clock::now();
        embedded::Translator translator{catalogue, batch.variables()};
        const embedded::Translation translation = translated(translator, batch.block().statements.front());
        const Clock::time_point bound = Clock::now();
        const embedded::SqliteStatement statement = connection.prepare(translation.sql, true);
        const Clock::time_point prepared = Clock::now();
        parts.parse.add(parsed - start);
        parts.bind.add(bound - parsed);
        parts.prepare.add(prepared - bound);
        parts.translation.add(bound - start);
        parts.all.add(prepared - start);
    }
    return parts;
}

} // namespace

void measureTranslation(const std::vector<std::string>& statements, std::ostream& out) {
    const SampleFile file;
    embedded::SqliteConnection connection{file.path(), false, patience, standingClock};
    embedded::Catalogue catalogue{connection};
    catalogue.refresh();
    heading(out, "A new text, in microseconds (medians of " + std::to_string(runs) +
                     " runs; translation is parsing and binding)");
    Report report{{"", "bytes", "parse", "bind", "translation", "95 %", "SQLite's prepare", "all"}};
    std::set<std::string_view> measured;
    for (const std::string& statement : statements) {
        const std::string_view name = counterpartOf(statement).name;
        if (statement.starts_with('[') || !measured.insert(name).second) continue;
        const Parts parts = measure(connection, catalogue, statement);
        report.add({std::string{name}, std::to_string(statement.size()), fixed(parts.parse.median(), 1),
                    fixed(parts.bind.median(), 1), fixed(parts.translation.median(), 1),
                    fixed(parts.translation.percentile(95), 1), fixed(parts.prepare.median(), 1),
                    fixed(parts.all.median(), 1)});
    }
    report.print(out);
}

} // namespace tellurix::bench
