#include "tests/support/TestHost.h"

#include "module/base/date_format.h"
#include "module/base/text.h"
#include "module/ui/controls/caption.h"
#include "tests/support/EarlierVisit.h"
#include "tests/support/SampleDatabase.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <stdexcept>
#include <tuple>
#include <utility>

namespace tellurix::tests {

namespace {

/// What the host's standard client is; no other number that the module hands on is the same.
constexpr std::int16_t standardClient = 77;

} // namespace

void FaultyConnection::check(std::string_view statement) const {
    if (part_.empty() || statement.find(part_) == std::string_view::npos) return;
    throw base::DatabaseError{base::DatabaseErrorCategory::connection, "connection lost",
                              std::string{statement}};
}

base::ExecuteResult FaultyConnection::execute(std::string_view statement) {
    check(statement);
    return inner_.execute(statement);
}

std::unique_ptr<base::UpdatableRecordset> FaultyConnection::openUpdatable(std::string_view query) {
    check(query);
    return inner_.openUpdatable(query);
}

TestHost::TestHost(base::Connection& inner)
    : strict_(inner),
      database(strict_),
      services{.display = display,
               .errors = display,
               .clock = testClock(),
               .locale = base::Locale::german(),
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
               .selectionTranslator = *this,
               .models = *this,
               .catalogue = *this,
               .multiSelection = *this,
               .spreadsheets = documents,
               .mail = documents,
               .files = documents},
      inner_(inner),
      traced_(database, [this](const tracing::Statement& statement) { remember(statement); }),
      formerlyTraced_(inner,
                      [this](const tracing::Statement& statement) {
                          EXPECT_EQ(call_->session.connection, &formerlyTraced_)
                              << "on the connection of an earlier call: " << statement.text;
                      }),
      module_(services) {
    session = {.connection = &traced_, .accessLevel = 2, .homeCurrency = "CHF", .site = {}, .user = "test"};
}

TestHost::~TestHost() {
    host::releaseModuleState();
}

void TestHost::remember(const tracing::Statement& statement) {
    statements.push_back(statement.text);
    // Those that are meant for all lines of a contract, or for all that a contract has.
    const bool many = statement.text.starts_with("DELETE FROM") ||
                      statement.text.starts_with("UPDATE VERTRAG_PREISE SET PREIS = ROUND(") ||
                      statement.text.starts_with("UPDATE ABSCHLAG SET ABS_MODEL") ||
                      statement.text.starts_with("UPDATE WVO_VERTRAG_WALDHELFER SET MENGE_BES") ||
                      statement.text.find(" SET ORDNUNG = ORDNUNG ") != std::string::npos;
    if (!many && !statement.text.starts_with("SELECT")) {
        EXPECT_LE(statement.rowsAffected, 1) << statement.text;
    }
}

void TestHost::run(const host::TlxVar& with, std::int32_t contract, const std::string& type,
                   bool newVertrag) {
    call_ = Call{with, contract, type};
    answer1_.clear();
    answer2_.clear();
    // The main window is this object, which outlives the call and all screens.
    const std::shared_ptr<host::HostMainWindow> mainWindow{std::shared_ptr<void>{}, this};
    host::TlxVar lent = with;
    module_.Vertrag_Run(lent, contract, "", type, ".", ",", "", blnOK, bolEuroChange, mainWindow,
                        standardClient, newVertrag, "Vertrag", false);
}

void TestHost::openContract(std::int32_t id, const std::string& type, bool newVertrag) {
    if (!std::exchange(visited_, true)) showAnotherContract(id);
    contracts.insert(id);
    run(session, id, type, newVertrag);
}

void TestHost::openQuantityReports() {
    call_ = Call{session, 0, ""};
    host::TlxVar lent = session;
    module_.F_VertragMengenmeldung_WVO_Run(lent, 1);
}

void TestHost::openProvisionReports(std::int16_t modul) {
    call_ = Call{session, 0, ""};
    host::TlxVar lent = session;
    module_.F_Bereitstellung_WVO_Run(lent, modul);
}

void TestHost::showAnotherContract(std::int32_t than) {
    const auto remembering = [](auto&... members) {
        return [&members..., before = std::tuple{members...}]() mutable {
            std::tie(members...) = std::move(before);
        };
    };
    auto restore = remembering(blnOK, bolEuroChange, requests, picks, pickedText, pickedPerson, pickedKey,
                               lists, foundKeys, listsKnowLimits, settings, selections, typeAheads);
    foundKeys.clear();
    blnOK = true;
    pickedPerson = 0;
    settings["MESZAHL"] = "1";
    display.aside([&] {
        leaveMuchBehind(display);
        run({.connection = &formerlyTraced_,
             .accessLevel = 8,
             .homeCurrency = "DKK",
             .site = "UELZEN",
             .user = "vorher",
             .language = "en"},
            than == fullContract ? sparseContract : fullContract, "A6", false);
    });
    restore();
    statements.clear();
}

void TestHost::expectOwn(const host::TlxVar& with) const {
    const host::TlxVar& own = call_ ? call_->session : session;
    EXPECT_EQ(with.connection, own.connection);
    EXPECT_EQ(with.accessLevel, own.accessLevel);
    EXPECT_EQ(with.homeCurrency, own.homeCurrency);
    EXPECT_EQ(with.site, own.site);
    EXPECT_EQ(with.user, own.user);
    EXPECT_EQ(with.language, own.language);
}

void TestHost::expectUpperType(const std::string& type) const {
    EXPECT_EQ(type, base::toUpper(call_->type));
}

ui::TextBox& TestHost::focusedBox() const {
    return dynamic_cast<ui::TextBox&>(*display.top()->focused());
}

void TestHost::expectFocused(const ui::TextBox& box) const {
    EXPECT_EQ(box.name(), focusedBox().name());
}

std::string TestHost::captionOfFocused() const {
    return ui::plainCaption(display.top()->labelOf(focusedBox())->caption());
}

std::string TestHost::contractField(const std::string& column) const {
    return firstRow(inner_, "SELECT " + column +
                                " FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(call_->contract));
}

void TestHost::expectLevel(int level) const {
    const std::string own = contractField("ID_ACCESS_LEVELS");
    if (own == "no row") return; // a contract that is gone has none
    EXPECT_EQ(level, own == "NULL" ? call_->session.accessLevel : std::stoi(own));
}

std::string TestHost::readValue(const host::TlxVar& with, const std::string& column, const std::string& table,
                                const std::string& condition) {
    expectOwn(with);
    EXPECT_EQ(condition, " ID_VERTRAG = " + std::to_string(call_->contract));
    const auto row = with.connection->open("SELECT " + column + " FROM " + table + " WHERE" + condition);
    return row->atEnd() ? std::string{} : row->text(column);
}

void TestHost::request(const host::TlxVar& with, const std::string& code, const std::string& type,
                       std::string& out1, std::string& out2) {
    expectOwn(with);
    // After an article was chosen the host is told what for, instead of the type.
    if (code != "1LV") expectUpperType(type);
    EXPECT_EQ(&out1, &host::moduleState().context.strServiceOut1);
    EXPECT_EQ(&out2, &host::moduleState().context.strServiceOut2);
    requests.push_back(code + "/" + type);
    out1 = answer1_ = "first answer to " + code;
    out2 = answer2_ = "second answer to " + code;
}

std::int32_t TestHost::choose(const host::TlxVar& with, const std::string& mode, int accessLevel,
                              std::int16_t client, std::int32_t currentPerson, host::Boolean16& confirmed) {
    expectOwn(with);
    expectLevel(accessLevel);
    EXPECT_EQ(client, call_->contract == 0 ? 0 : standardClient) << "told when a contract is opened";
    const auto* box = ui::as<ui::TextBox>(display.top()->focused());
    if (box != nullptr) {
        EXPECT_EQ(std::to_string(currentPerson), box->tag().empty() ? "0" : box->tag());
    } else if (const auto* customer = ui::as<ui::TextBox>(display.top()->find("txtKunde"));
               customer == nullptr) {
        EXPECT_EQ(currentPerson, 0) << "nobody is chosen beforehand for a list of persons";
    } else {
        const std::string& shown = customer->text();
        EXPECT_EQ(shown.empty() ? "no row" : shown,
                  firstRow(inner_, "SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = " +
                                       std::to_string(currentPerson)));
    }
    EXPECT_EQ(&confirmed, &host::moduleState().context.blnOK);
    picks.push_back(mode + "/" + std::to_string(accessLevel));
    confirmed = host::toBoolean16(pickedPerson > 0);
    return pickedPerson;
}

std::string TestHost::choose(const host::TlxVar& with, const std::string& query, const std::string& title,
                             const std::string& current, const std::string& text) {
    expectOwn(with);
    EXPECT_EQ(text, "");
    // Either the list of the box, or a question about what is in it.
    const bool asks = title.find("„" + focusedBox().text() + "“") != std::string::npos;
    EXPECT_EQ(current, asks ? "" : focusedBox().text());
    EXPECT_TRUE(asks || ui::plainCaption(title).ends_with(captionOfFocused())) << title;
    // A calendar, a list that the host knows by name, or a query that the database takes.
    if (query != calendar && !query.ends_with("_GRID")) inner_.open(query);
    picks.push_back(query + "/" + title);
    return pickedText.empty() ? current : pickedText;
}

std::string TestHost::choose(const host::TlxVar& with, const std::string& list, const std::string& title,
                             const Limits& limits, const std::string& current) {
    expectOwn(with);
    EXPECT_EQ(limits.contract, call_->contract);
    EXPECT_EQ(title, captionOfFocused());
    EXPECT_EQ(current, focusedBox().text());
    lists.push_back(list + "/" + title + "/" + limits.type + "/" + std::to_string(limits.contract));
    return pickedKey;
}

std::vector<std::string> TestHost::find(const host::TlxVar& with, const std::string& list,
                                        const std::string& text, const Limits& limits) {
    expectOwn(with);
    EXPECT_EQ(limits.contract, call_->contract);
    EXPECT_EQ(text, focusedBox().text());
    lists.push_back(list + "/" + text + "/" + limits.type + "/" + std::to_string(limits.contract));
    if (!foundKeys.empty()) return foundKeys;
    const bool types = list == "TYPEOFVERTRAG_VALID";
    std::string query = types ? "SELECT DISTINCT VER_TYPE AS K FROM VERTRAEGE WHERE VER_TYPE = '"
                              : "SELECT ID_VERTRAG AS K FROM VERTRAEGE WHERE VERTRAG_NAME = '";
    query += base::replaceAll(text, "'", "''") + "'";
    if (listsKnowLimits && !types) query += " AND ID_VERTRAG <> " + std::to_string(limits.contract);
    if (listsKnowLimits && !types && !limits.type.empty()) query += " AND VER_TYPE = '" + limits.type + "'";
    std::vector<std::string> keys;
    for (auto row = with.connection->open(query); !row->atEnd(); row->moveNext())
        keys.push_back(row->text("K"));
    return keys;
}

std::string TestHost::typeOf(const host::TlxVar& with, std::int32_t contract) {
    expectOwn(with);
    return firstRow(inner_, "SELECT VER_TYPE FROM VERTRAEGE WHERE ID_VERTRAG = " + std::to_string(contract));
}

bool TestHost::resolve(const host::TlxVar& with, std::int32_t option, const std::string& query,
                       ui::TextBox& box, ui::TextBox* shown, const std::string& displayColumn,
                       ui::TextBox* third, const std::string& text) {
    expectOwn(with);
    expectFocused(box);
    EXPECT_TRUE(option == -1 && third == nullptr && text.empty());
    EXPECT_EQ(shown != nullptr, !displayColumn.empty());
    box.setTag("");
    const std::string typed = box.text();
    if (shown != nullptr && shown != &box) shown->setText("");
    if (typed.empty()) return true;
    // A list that the host knows by name is a table of that name here.
    const std::string list = query.ends_with("_VALID") ? query.substr(0, query.size() - 6) : "";
    const auto row = with.connection->open(
        list.empty() ? query : "SELECT ID,LONG FROM " + list + " WHERE '" + typed + "' IN (LONG,SHORT)");
    if (row->atEnd()) return false;
    box.setTag(row->text(row->fieldName(0)));
    if (shown != nullptr) shown->setText(row->text(displayColumn));
    return true;
}

std::string TestHost::build(const host::TlxVar& with, const std::string& table, const std::string& number,
                            int accessLevel, const std::string& filter) {
    expectOwn(with);
    EXPECT_EQ(number, focusedBox().text());
    expectLevel(accessLevel);
    EXPECT_EQ(filter, focusedBox().name() == "txtMandant(0)" ? "PERSONAL_VALID_MANDANTEN" : "PERSONAL_VALID");
    return "SELECT ID_PERSONAL,NUMMER,KURZBEZEICHNUNG FROM " + table + " WHERE NUMMER = " + number +
           (filter == "PERSONAL_VALID_MANDANTEN" ? " AND ISNULL(MANDANT,0) = 1" : "");
}

std::string TestHost::restriction(const host::TlxVar& with, const std::string& table) {
    expectOwn(with);
    EXPECT_EQ(table, "PERSONAL");
    return personRestriction;
}

std::optional<std::vector<std::int64_t>> TestHost::choose(const host::TlxVar& with, const std::string& list,
                                                          const std::string& query,
                                                          const std::vector<std::int64_t>& marked) {
    expectOwn(with);
    inner_.open(query); // one that the database takes
    multiSelections.push_back({list, query, marked});
    if (whileSeveralArePicked) whileSeveralArePicked();
    return pickedSeveral;
}

std::string TestHost::toSql(const std::string& text, const host::TlxVar& with) {
    expectOwn(with);
    return base::formatDate(base::parseDate(text).value(), "yyyymmdd", base::Locale::german());
}

std::string TestHost::text(const host::TlxVar& with, const std::string& name) {
    expectOwn(with);
    return name.ends_with("_GRID") ? "layout of " + name : settings.at(name);
}

void TestHost::save(const host::TlxVar& with, const ui::Grid& grid, const std::string& key) {
    expectOwn(with);
    layouts.push_back("save/" + grid.name() + "/" + key);
    if (!layoutFailure.empty()) throw std::runtime_error{layoutFailure};
}

void TestHost::restore(const host::TlxVar& with, ui::Grid& grid, const std::string& key) {
    expectOwn(with);
    layouts.push_back("restore/" + grid.name() + "/" + key);
}

int TestHost::of(const host::TlxVar& with, const std::string& table, const std::string& column) {
    expectOwn(with);
    EXPECT_EQ(inner_.open("SELECT " + column + " FROM " + table)->fieldType(0), base::FieldType::text);
    const auto width = columnWidths.find(table + "." + column);
    return width == columnWidths.end() ? 0 : width->second;
}

std::optional<std::string> TestHost::select(const host::TlxVar& with, const std::string& key,
                                            const std::string& upperType, const std::string& out1,
                                            const std::string& out2) {
    expectOwn(with);
    expectUpperType(upperType);
    EXPECT_EQ(out1, answer1_);
    EXPECT_EQ(out2, answer2_);
    const std::size_t letters = key.find("VERT");
    const bool price = display.top()->name() == "F_VertragPreise";
    EXPECT_EQ(key.substr(letters), price ? "VERTP" : "VERTM");
    EXPECT_EQ(firstRow(inner_, std::string{"SELECT ID_VERTRAG FROM "} +
                                   (price ? "VERTRAG_PREISE" : "VERTRAG_MENGEN") +
                                   " WHERE ID = " + key.substr(0, letters)),
              std::to_string(call_->contract))
        << "the line of the selection dialog";
    selections.push_back(key + "/" + upperType);
    return onSelectionDialog ? onSelectionDialog(key) : std::nullopt;
}

void TestHost::set(const host::TlxVar& with, const std::string& table, const std::string& column,
                   const std::string& value, const std::string& condition) {
    expectOwn(with);
    const std::string written = value.empty() ? "NULL" : "'" + base::replaceAll(value, "'", "''") + "'";
    with.connection->execute("UPDATE " + table + " SET " + column + " = " + written + " WHERE " + condition);
}

std::optional<std::string> TestHost::edit(const host::TlxVar& with, const std::string& value,
                                          const std::string& upperType, const std::string&,
                                          const std::string&) {
    expectOwn(with);
    expectUpperType(upperType);
    edits.push_back(value + "/" + upperType);
    return onSelectionEdit ? onSelectionEdit(value) : std::nullopt;
}

void TestHost::fill(const host::TlxVar& with, ui::ComboBox& list, const std::string& category) {
    expectOwn(with);
    modelCalls.push_back("fill/" + category);
    list.clear();
    for (const std::string& model : models)
        list.add(model, static_cast<std::int64_t>(list.items().size()) + 1);
}

void TestHost::copy(const host::TlxVar& with, const std::string& category, std::int32_t model,
                    host::CalculationForm& form) {
    expectOwn(with);
    modelCalls.push_back("copy/" + category + "/" + std::to_string(model));
    form.setLines(modelLines);
}

void TestHost::manage(const host::TlxVar& with, const std::string& category, host::CalculationForm& form,
                      ui::ComboBox& list) {
    expectOwn(with);
    modelCalls.push_back("manage/" + category);
    if (onManage) onManage(form, list);
}

std::int32_t TestHost::choose(const host::TlxVar& with, const std::string& mode, const std::string& upperType,
                              std::int32_t current) {
    expectOwn(with);
    expectUpperType(upperType);
    picks.push_back(mode + "/" + upperType + "/" + std::to_string(current));
    return pickedArticle;
}

std::string TestHost::choose(const host::TlxVar& with, const std::string& layout, const std::string& title,
                             const std::string& text, const std::string& mode, const std::string& current) {
    expectOwn(with);
    EXPECT_EQ(title, captionOfFocused());
    EXPECT_EQ(current, focusedBox().text());
    picks.push_back(layout + "/" + title + "/" + text + "/" + mode);
    return pickedText.empty() ? current : pickedText;
}

void TestHost::bind(const host::TlxVar& with, ui::TextBox& box, const std::string& query,
                    const std::string& displayColumn) {
    expectOwn(with);
    expectFocused(box);
    EXPECT_EQ(inner_.open(query)->fieldName(1), displayColumn);
    typeAheads.push_back(box.name() + "/" + displayColumn + "/" + query);
}

/// Translates the conditions that the tests use, by the letter: "83 IN (" and "83 NOT IN (" become
/// LOGS.HA, and so on. Any other piece is one that cannot be read.
std::string TestHost::translate(const host::TlxVar& with, const std::string& kind,
                                const std::string& sameKind, const std::string& value,
                                const std::string& upperType, const std::string& formValue) {
    expectOwn(with);
    EXPECT_EQ(kind, "1LV");
    EXPECT_EQ(sameKind, kind);
    expectUpperType(upperType);
    EXPECT_EQ(formValue, contractField("VERTRAG_NAME"));
    EXPECT_FALSE(value.empty());
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
