#include "tests/support/SampleDatabase.h"

#include "database/embedded/script.h"
#include "module/base/date_format.h"
#include "tests/support/StandingClock.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <tuple>
#include <vector>

namespace tellurix::tests {

namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& file) {
    std::ifstream stream{file, std::ios::binary};
    if (!stream) throw std::runtime_error{"cannot read " + file.string()};
    return {std::istreambuf_iterator<char>{stream}, {}};
}

/// A row of the database, and the contract that it belongs to: 0 for none.
struct Row {
    std::string table;
    std::string text;
    std::int64_t contract = 0;

    bool operator<(const Row& other) const {
        return std::tie(table, text) < std::tie(other.table, other.text);
    }
};

/// Knows which contract a row belongs to, by the column that names it.
class Owners {
public:
    explicit Owners(base::Connection& connection) {
        for (auto row = connection.open("SELECT ID_VERTRAG,VERTRAG_NAME FROM VERTRAEGE"); !row->atEnd();
             row->moveNext())
            byName_[row->text("VERTRAG_NAME")] = row->integer("ID_VERTRAG");
        for (auto row = connection.open("SELECT ID,ID_VERTRAEGE FROM WVO_VERTRAG"); !row->atEnd();
             row->moveNext())
            byLogistics_[row->integer("ID")] = row->integer("ID_VERTRAEGE");
    }
    std::int64_t of(base::Recordset& row) const {
        for (std::size_t i = 0; i < row.fieldCount(); ++i) {
            const std::string column = row.fieldName(i);
            if (column == "ID_VERTRAG" || column == "ID_VERTRAEGE") return row.integer(column);
            if (column == "ID_WVO_VERTRAG") return found(byLogistics_, row.integer(column));
            if (column == "RECH_NAME") return found(byName_, row.text(column));
        }
        return 0;
    }

private:
    template <typename Key>
    static std::int64_t found(const std::map<Key, std::int64_t>& contracts, const Key& key) {
        const auto entry = contracts.find(key);
        return entry == contracts.end() ? 0 : entry->second;
    }

    std::map<std::string, std::int64_t> byName_;
    std::map<std::int64_t, std::int64_t> byLogistics_;
};

std::multiset<Row> contentsOf(base::Connection& connection) {
    static const std::set<std::string> tables = tableNames();
    const Owners owners{connection};
    std::multiset<Row> contents;
    for (const std::string& table : tables) {
        for (auto row = connection.open("SELECT * FROM " + table); !row->atEnd(); row->moveNext())
            contents.insert({table, literalRow(*row), owners.of(*row)});
    }
    return contents;
}

/// The sample trade, loaded once a program: each test gets a copy of the file.
class Template {
public:
    Template() {
        const auto connection = embedded::Database{file, testClock(), {.create = true}}.connect();
        for (const char* script :
             {"schema.sql", "sample_reference.sql", "sample_contracts.sql", "sample_logistics.sql"}) {
            const std::string text = textOf(fs::path{TELLURIX_DATA_FOLDER} / script);
            // Without the indexes: they would put lines in order that a query has not asked for.
            embedded::runScript(*connection, text.substr(0, text.find("-- Indexes")));
        }
        contents = contentsOf(*connection);
    }

    const TestFolder folder;
    const fs::path file = folder / "sample.db";
    std::multiset<Row> contents;
};

const Template& sample() {
    static const Template sample;
    return sample;
}

} // namespace

SampleDatabase::SampleDatabase() {
    fs::copy_file(sample().file, file_);
    database_ = std::make_unique<embedded::Database>(file_, testClock());
}

std::string SampleDatabase::changesBeside(const std::set<std::int32_t>& contracts,
                                          const std::set<std::string>& tables) const {
    std::string changes;
    const auto add = [&](const char* sign, const std::multiset<Row>& rows, const std::multiset<Row>& others) {
        std::vector<Row> different;
        std::set_difference(rows.begin(), rows.end(), others.begin(), others.end(),
                            std::back_inserter(different));
        for (const Row& row : different) {
            if (!contracts.contains(static_cast<std::int32_t>(row.contract)) && !tables.contains(row.table))
                changes += sign + row.table + row.text + "\n";
        }
    };
    const std::multiset<Row> now = contentsOf(*connect());
    add("- ", sample().contents, now);
    add("+ ", now, sample().contents);
    return changes;
}

std::set<std::string> tableNames() {
    const std::string schema = textOf(fs::path{TELLURIX_DATA_FOLDER} / "schema.sql");
    static const std::regex created{"CREATE TABLE (\\w+)"};
    std::set<std::string> names;
    for (std::sregex_iterator found{schema.begin(), schema.end(), created}, end; found != end; ++found)
        names.insert((*found)[1]);
    return names;
}

std::string literalRow(base::Recordset& row) {
    std::string line;
    for (std::size_t i = 0; i < row.fieldCount(); ++i) {
        const base::Value field = row.field(i);
        const bool text = std::holds_alternative<std::string>(field);
        line += " | " + (text ? "'" + written(field) + "'" : written(field));
    }
    return line;
}

std::string written(const base::Value& field) {
    struct Writer {
        std::string operator()(base::Null) const { return "NULL"; }
        std::string operator()(bool flag) const { return flag ? "true" : "false"; }
        std::string operator()(std::int64_t number) const { return std::to_string(number); }
        std::string operator()(const base::Decimal& number) const { return number.toString(); }
        std::string operator()(double number) const {
            std::ostringstream text;
            text << number;
            return text.str();
        }
        std::string operator()(const std::string& text) const { return text; }
        std::string operator()(base::DateTime moment) const {
            const bool midnight = moment == base::startOf(base::dayOf(moment));
            return base::formatDate(moment, midnight ? "yyyy-mm-dd" : "yyyy-mm-dd hh:mm:ss",
                                    base::Locale::german());
        }
    };
    return std::visit(Writer{}, field);
}

std::string firstRow(base::Connection& connection, const std::string& query) {
    const auto rows = connection.open(query);
    if (rows->atEnd()) return "no row";
    std::string text;
    for (std::size_t i = 0; i < rows->fieldCount(); ++i)
        text += (i == 0 ? "" : " | ") + written(rows->field(i));
    return text;
}

} // namespace tellurix::tests
