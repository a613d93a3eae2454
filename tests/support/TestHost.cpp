#include "support/TestHost.h"

#include "common/date_format.h"
#include "common/text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>

namespace tellurix::tests {

void FaultyConnection::check(std::string_view statement) const {
    if (part_.empty() || statement.find(part_) == std::string_view::npos) return;
    throw common::DatabaseError{common::DatabaseErrorCategory::connection, "connection lost",
                                std::string{statement}};
}

common::ExecuteResult FaultyConnection::execute(std::string_view statement) {
    check(statement);
    return inner_.execute(statement);
}

std::unique_ptr<common::UpdatableRecordset> FaultyConnection::openUpdatable(std::string_view query) {
    check(query);
    return inner_.openUpdatable(query);
}

TestHost::TestHost(common::Connection& inner)
    : database(inner),
      services{.display = display,
               .errors = display,
               .clock = testClock(),
               .locale = common::Locale::german(),
               .dataAccess = *this,
               .moduleService = *this,
               .localizer = *this,
               .personalPicker = *this,
               .listPicker = *this,
               .lookupValidation = *this,
               .keyedLists = *this,
               .personQuery = *this,
               .dateConverter = *this,
               .settings = *this,
               .gridLayouts = *this,
               .columnWidth = *this,
               .columnUpdate = *this,
               .selectionDialog = *this,
               .lookupGridDialog = *this,
               .typeAhead = *this,
               .selectionTranslator = *this},
      traced_(database,
              [this](const tracing::Statement& statement) { statements.push_back(statement.text); }),
      module_(services) {
    session = {.connection = &traced_, .accessLevel = 2, .homeCurrency = "CHF", .site = {}, .user = "test"};
}

TestHost::~TestHost() {
    host::releaseModuleState();
}

void TestHost::openContract(std::int32_t id, const std::string& type, bool newVertrag) {
    // The main window is this object, which outlives the call and all screens.
    const std::shared_ptr<host::HostMainWindow> mainWindow{std::shared_ptr<void>{}, this};
    module_.Vertrag_Run(session, id, "", type, ".", ",", "", blnOK, bolEuroChange, mainWindow, 1, newVertrag,
                        "Vertrag", false);
}

std::string TestHost::readValue(const host::TlxVar& with, const std::string& column, const std::string& table,
                                const std::string& condition) {
    const auto row = with.connection->open("SELECT " + column + " FROM " + table + " WHERE" + condition);
    return row->atEnd() ? std::string{} : row->text(column);
}

void TestHost::request(const host::TlxVar&, const std::string& code, const std::string& type, std::string&,
                       std::string&) {
    requests.push_back(code + "/" + type);
}

std::int32_t TestHost::choose(const host::TlxVar&, const std::string& mode, int accessLevel, std::int16_t,
                              std::int32_t, host::Boolean16& confirmed) {
    picks.push_back(mode + "/" + std::to_string(accessLevel));
    confirmed = host::toBoolean16(pickedPerson > 0);
    return pickedPerson;
}

std::string TestHost::choose(const host::TlxVar&, const std::string& query, const std::string& title,
                             const std::string& current, const std::string& text) {
    EXPECT_EQ(text, "");
    picks.push_back(query + "/" + title);
    return pickedText.empty() ? current : pickedText;
}

std::string TestHost::choose(const host::TlxVar&, const std::string& list, const std::string& title,
                             const Limits& limits, const std::string&) {
    lists.push_back(list + "/" + title + "/" + limits.type + "/" + std::to_string(limits.contract));
    return pickedKey;
}

std::vector<std::string> TestHost::find(const host::TlxVar& with, const std::string& list,
                                        const std::string& text, const Limits& limits) {
    lists.push_back(list + "/" + text + "/" + limits.type + "/" + std::to_string(limits.contract));
    if (!foundKeys.empty()) return foundKeys;
    const bool types = list == "TYPEOFVERTRAG_VALID";
    std::string query = types ? "SELECT DISTINCT VER_TYPE AS K FROM VERTRAEGE WHERE VER_TYPE = '"
                              : "SELECT ID_VERTRAG AS K FROM VERTRAEGE WHERE VERTRAG_NAME = '";
    query += common::replaceAll(text, "'", "''") + "'";
    if (listsKnowLimits && !types) query += " AND ID_VERTRAG <> " + std::to_string(limits.contract);
    if (listsKnowLimits && !types && !limits.type.empty()) query += " AND VER_TYPE = '" + limits.type + "'";
    std::vector<std::string> keys;
    for (auto row = with.connection->open(query); !row->atEnd(); row->moveNext())
        keys.push_back(row->text("K"));
    return keys;
}

std::string TestHost::typeOf(const host::TlxVar& with, std::int32_t contract) {
    return readValue(with, "VER_TYPE", "VERTRAEGE", " ID_VERTRAG = " + std::to_string(contract));
}

bool TestHost::resolve(const host::TlxVar& with, std::int32_t option, const std::string& query,
                       ui::TextBox& box, ui::TextBox* shown, const std::string& displayColumn,
                       ui::TextBox* third, const std::string& text) {
    EXPECT_TRUE(option == -1 && third == nullptr && text.empty());
    box.setTag("");
    if (shown != nullptr) shown->setText("");
    if (box.text().empty()) return true;
    const auto row = with.connection->open(query);
    if (row->atEnd()) return false;
    box.setTag(row->text(row->fieldName(0)));
    if (shown != nullptr) shown->setText(row->text(displayColumn));
    return true;
}

std::string TestHost::build(const host::TlxVar&, const std::string& table, const std::string& number, int,
                            const std::string& filter) {
    return "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM " + table + " WHERE NUMMER = " + number +
           (filter == "PERSONAL_VALID_MANDANTEN" ? " AND ISNULL(MANDANT,0) = 1" : "");
}

std::string TestHost::toSql(const std::string& text, const host::TlxVar&) {
    return common::formatDate(common::parseDate(text).value(), "yyyymmdd", common::Locale::german());
}

std::string TestHost::text(const host::TlxVar&, const std::string& name) {
    const auto setting = settings.find(name);
    if (setting != settings.end()) return setting->second;
    return name.ends_with("_GRID") ? "layout of " + name : std::string{};
}

int TestHost::of(const host::TlxVar&, const std::string& table, const std::string& column) {
    const auto width = columnWidths.find(table + "." + column);
    return width == columnWidths.end() ? 0 : width->second;
}

std::optional<std::string> TestHost::select(const host::TlxVar&, const std::string& key,
                                            const std::string& upperType, const std::string&,
                                            const std::string&) {
    selections.push_back(key + "/" + upperType);
    return onSelectionDialog ? onSelectionDialog(key) : std::nullopt;
}

std::string TestHost::choose(const host::TlxVar&, const std::string& layout, const std::string& title,
                             const std::string& text, const std::string& mode, const std::string& current) {
    picks.push_back(layout + "/" + title + "/" + text + "/" + mode);
    return pickedText.empty() ? current : pickedText;
}

void TestHost::bind(const host::TlxVar&, ui::TextBox& box, const std::string&,
                    const std::string& displayColumn) {
    typeAheads.push_back(box.name() + "/" + displayColumn);
}

/// Translates the conditions that the tests use, by the letter: "83 IN (" and "83 NOT IN (" become
/// LOGS.HA, and so on. Any other piece is one that cannot be read.
std::string TestHost::translate(const host::TlxVar&, const std::string&, const std::string&,
                                const std::string& value, const std::string&, const std::string&) {
    translations.push_back(value);
    const std::map<std::string, std::string> columns = {
        {"83 ", "HA"}, {"87 ", "HS"}, {"90 ", "GKL"}, {"93 ", "STKL"}, {"94 ", "LANGE"}};
    std::string conditions;
    for (std::size_t start = 0; start < value.size();) {
        const std::size_t end = std::min(value.find(';', start), value.size());
        const std::string piece = value.substr(start, end - start);
        const auto column = columns.find(piece.substr(0, 3));
        if (column == columns.end()) throw std::invalid_argument{"kein Merkmal: " + piece};
        conditions += (conditions.empty() ? " WHERE LOGS." : " AND LOGS.") + column->second + piece.substr(2);
        start = end + 1;
    }
    return " FROM LOGS" + conditions;
}

} // namespace tellurix::tests
