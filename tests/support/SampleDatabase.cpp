#include "support/SampleDatabase.h"

#include "common/date_format.h"
#include "embedded/script.h"
#include "support/StandingClock.h"

#include <fstream>
#include <sstream>

namespace tellurix::tests {

namespace {

namespace fs = std::filesystem;

std::string contentsOf(const fs::path& file) {
    std::ifstream stream{file, std::ios::binary};
    if (!stream) throw std::runtime_error{"cannot read " + file.string()};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

/// The sample trade, loaded once a program: each test gets a copy of the file.
class Template {
public:
    Template() {
        const auto connection = embedded::Database{file, testClock(), {.create = true}}.connect();
        for (const char* script :
             {"schema.sql", "sample_reference.sql", "sample_contracts.sql", "sample_logistics.sql"}) {
            embedded::runScript(*connection, contentsOf(fs::path{TELLURIX_DATA_FOLDER} / script));
        }
    }

    const TestFolder folder;
    const fs::path file = folder / "sample.db";
};

} // namespace

SampleDatabase::SampleDatabase() {
    static const Template sample;
    fs::copy_file(sample.file, file_);
    database_ = std::make_unique<embedded::Database>(file_, testClock());
}

std::string written(const common::Value& field) {
    struct Writer {
        std::string operator()(common::Null) const { return "NULL"; }
        std::string operator()(bool flag) const { return flag ? "true" : "false"; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(const common::Decimal& number) const { return number.toString(); }
        std::string operator()(double number) const {
            std::ostringstream text;
            text << number;
            return text.str();
        }
        std::string operator()(const std::string& text) const { return text; }
        std::string operator()(common::DateTime moment) const {
            const bool midnight = moment == common::startOf(common::dayOf(moment));
            return common::formatDate(moment, midnight ? "yyyy-mm-dd" : "yyyy-mm-dd hh:mm:ss",
                                      common::Locale::german());
        }
    };
    return std::visit(Writer{}, field);
}

std::string firstRow(common::Connection& connection, const std::string& query) {
    const auto rows = connection.open(query);
    if (rows->atEnd()) return "no row";
    std::string text;
    for (std::size_t i = 0; i < rows->fieldCount(); ++i)
        text += (i == 0 ? "" : " | ") + written(rows->field(i));
    return text;
}

} // namespace tellurix::tests
