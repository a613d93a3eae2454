#pragma once

#include "database/tracing/TracingConnection.h"
#include "module/entry/clsVertrag.h"
#include "module/host/services.h"
#include "tests/support/OneStatementConnection.h"
#include "tests/support/RecordedDocuments.h"
#include "tests/support/ScriptedDisplay.h"
#include "tests/support/StandingClock.h"

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tellurix::tests {

/// A connection on which a chosen statement fails, as when the server goes away in between.
class FaultyConnection final : public base::Connection {
public:
    explicit FaultyConnection(base::Connection& inner) : inner_(inner) {}

    /// Every statement with this text in it fails from now on; empty for none.
    void failOn(std::string part) { part_ = std::move(part); }

    base::ExecuteResult execute(std::string_view statement) override;
    std::unique_ptr<base::UpdatableRecordset> openUpdatable(std::string_view query) override;

private:
    void check(std::string_view statement) const;

    base::Connection& inner_;
    std::string part_;
};

/// A host for tests: a scripted display, a fixed day, services that answer what a test told them,
/// and a memory of every statement and every request. Letting go of it forgets the module state of
/// the thread, as unloading the module does.
///
/// Whatever a test looks at, it fails when a service is handed anything but the session, the contract
/// type, the access level, the texts of the context and the box that the host expects at the moment;
/// when a statement changes several rows that is not meant to; and when the screens only work
/// on their first contract: before the first call of a test, another contract has been worked on.
class TestHost final : host::HostDataAccess,
                       host::HostModuleService,
                       host::HostLocalizer,
                       host::HostPersonalPicker,
                       host::ListPicker,
                       host::LookupValidation,
                       host::KeyedLists,
                       host::PersonQueryBuilder,
                       host::DateConverter,
                       host::NamedSettings,
                       host::GridLayoutStore,
                       host::ColumnWidth,
                       host::ColumnUpdate,
                       host::SelectionDialog,
                       host::LookupGridDialog,
                       host::TypeAhead,
                       host::SelectionTranslator,
                       host::ModelService,
                       host::CatalogueSelection,
                       host::MultiSelectionList,
                       host::HostMainWindow {
public:
    explicit TestHost(base::Connection& database);
    ~TestHost() override;

    /// The way the host calls the module for a contract of the given type.
    void openContract(std::int32_t id, const std::string& type = "R", bool newVertrag = false);

    /// The way the host calls the module for the quantity reports, which belong to no contract.
    void openQuantityReports();

    /// The way the host calls the module for the provision reports, which belong to no contract.
    /// @param modul the contract kind
    void openProvisionReports(std::int16_t modul = 1);

    /// The contracts that a test works on. What belongs to others has to stay as it is.
    std::set<std::int32_t> contracts;

    /// What the module asks whether the host works on articles.
    host::HostMainWindow& mainWindow() { return *this; }

private:
    OneStatementConnection strict_;

public:
    ScriptedDisplay display;
    FaultyConnection database;
    RecordedDocuments documents{[this](const host::TlxVar& with) { expectOwn(with); }};
    host::HostServices services;
    host::TlxVar session;
    host::Variant blnOK = false;
    host::Boolean16 bolEuroChange = host::Boolean16::False;

    std::vector<std::string> statements; ///< sent to the database by the module
    std::vector<std::string> requests;   ///< to the module service: "code/type"
    std::vector<std::string> picks;      ///< pickers opened: "query/title" or "mode/level"
    std::string pickedText;              ///< what the list picker answers next
    std::int32_t pickedPerson = 0;       ///< what the person picker answers next
    bool articles = false;

    std::vector<std::string> lists;     ///< keyed lists asked: "list/text or title/type/contract"
    std::string pickedKey;              ///< what a keyed list answers when the user is to choose
    std::vector<std::string> foundKeys; ///< what it finds instead of the contracts of that name
    bool listsKnowLimits = true;        ///< whether they obey the limits that they are given

    std::map<std::string, std::string> settings{{"MESZAHL", ""}}; ///< the named settings that are asked for
    /// What the selection dialog does with the key that it is given; nothing is a cancelled dialog.
    std::function<std::optional<std::string>(const std::string& key)> onSelectionDialog;
    std::map<std::string, int> columnWidths; ///< of the text columns that have a limit: "TABLE.COLUMN"
    std::vector<std::string> selections;     ///< selection dialogs opened: "key/type"
    std::vector<std::string> edits;          ///< selection values edited: "value/type"
    /// What the selection dialog makes of a value that no line holds; nothing is a cancelled dialog.
    std::function<std::optional<std::string>(const std::string& value)> onSelectionEdit;
    std::vector<std::string> models{"Eins", "Zwei"}; ///< of every category, with the keys 1, 2, …
    host::CalculationLines modelLines;               ///< of every model
    std::vector<std::string> modelCalls; ///< "fill/category", "copy/category/key", "manage/category"
    /// What the user does in the management of models.
    std::function<void(host::CalculationForm& form, ui::ComboBox& list)> onManage;
    std::int32_t pickedArticle = 0;        ///< what the catalogue answers next
    std::vector<std::string> translations; ///< selection values translated
    std::vector<std::string> typeAheads;   ///< boxes bound: "box/column/query"
    std::vector<std::string> layouts;      ///< of grids: "save/grid/key", "restore/grid/key"
    std::string layoutFailure;             ///< what keeping a layout fails with; empty when it does not
    std::string personRestriction;         ///< what limits the persons of a query, for every user

    /// A multi-selection list that was shown.
    struct MultiSelection {
        std::string list;
        std::string query;
        std::vector<std::int64_t> marked;
    };
    std::vector<MultiSelection> multiSelections;
    /// What the user marks in the next one; nothing cancels it.
    std::optional<std::vector<std::int64_t>> pickedSeveral;
    std::function<void()> whileSeveralArePicked; ///< what happens meanwhile

private:
    /// What the host handed over when it called the module.
    struct Call {
        host::TlxVar session;
        std::int32_t contract = 0;
        std::string type;
    };
    /// Opens another contract for another user at another site, on a connection of its own, and leaves
    /// behind what can be left behind.
    void showAnotherContract(std::int32_t than);
    void run(const host::TlxVar& with, std::int32_t contract, const std::string& type, bool newVertrag);
    void remember(const tracing::Statement& statement);

    void expectOwn(const host::TlxVar& with) const;
    void expectUpperType(const std::string& type) const;
    /// The box that the user is in.
    void expectFocused(const ui::TextBox& box) const;
    ui::TextBox& focusedBox() const;
    /// What the label beside the user's box says, which is how its lists are called.
    std::string captionOfFocused() const;
    /// The contract's own level, or the user's.
    void expectLevel(int level) const;
    std::string contractField(const std::string& column) const;

    std::string readValue(const host::TlxVar&, const std::string& column, const std::string& table,
                          const std::string& condition) override;
    void request(const host::TlxVar&, const std::string& code, const std::string& type, std::string& out1,
                 std::string& out2) override;
    void translate(const host::TlxVar& with, ui::Form&) override { expectOwn(with); }
    std::string text(int number, const host::TlxVar& with) override {
        expectOwn(with);
        return "Text " + std::to_string(number);
    }
    std::int32_t choose(const host::TlxVar&, const std::string& mode, int accessLevel,
                        std::int16_t standardClient, std::int32_t currentPerson,
                        host::Boolean16& confirmed) override;
    std::string choose(const host::TlxVar&, const std::string& query, const std::string& title,
                       const std::string& current, const std::string& text) override;
    bool resolve(const host::TlxVar&, std::int32_t option, const std::string& query, ui::TextBox& box,
                 ui::TextBox* shown, const std::string& displayColumn, ui::TextBox* third,
                 const std::string& text) override;
    std::string choose(const host::TlxVar&, const std::string& list, const std::string& title,
                       const Limits& limits, const std::string& current) override;
    std::vector<std::string> find(const host::TlxVar&, const std::string& list, const std::string& text,
                                  const Limits& limits) override;
    std::string typeOf(const host::TlxVar&, std::int32_t contract) override;
    std::string build(const host::TlxVar&, const std::string& table, const std::string& number,
                      int accessLevel, const std::string& filter) override;
    std::string toSql(const std::string& text, const host::TlxVar&) override;
    std::string text(const host::TlxVar&, const std::string& name) override;
    void save(const host::TlxVar& with, const ui::Grid& grid, const std::string& key) override;
    void restore(const host::TlxVar& with, ui::Grid& grid, const std::string& key) override;
    int of(const host::TlxVar&, const std::string& table, const std::string& column) override;
    void set(const host::TlxVar&, const std::string& table, const std::string& column,
             const std::string& value, const std::string& condition) override;
    std::optional<std::string> select(const host::TlxVar&, const std::string& key,
                                      const std::string& upperType, const std::string& out1,
                                      const std::string& out2) override;
    std::string choose(const host::TlxVar&, const std::string& layout, const std::string& title,
                       const std::string& text, const std::string& mode, const std::string& current) override;
    void bind(const host::TlxVar&, ui::TextBox& box, const std::string& query,
              const std::string& displayColumn) override;
    std::string translate(const host::TlxVar&, const std::string& kind, const std::string& sameKind,
                          const std::string& value, const std::string& upperType,
                          const std::string& formValue) override;
    std::optional<std::string> edit(const host::TlxVar&, const std::string& value,
                                    const std::string& upperType, const std::string&,
                                    const std::string&) override;
    void fill(const host::TlxVar&, ui::ComboBox& list, const std::string& category) override;
    void copy(const host::TlxVar&, const std::string& category, std::int32_t model,
              host::CalculationForm& form) override;
    void manage(const host::TlxVar&, const std::string& category, host::CalculationForm& form,
                ui::ComboBox& list) override;
    std::int32_t choose(const host::TlxVar&, const std::string& mode, const std::string& upperType,
                        std::int32_t current) override;
    std::string restriction(const host::TlxVar&, const std::string& table) override;
    std::optional<std::vector<std::int64_t>> choose(const host::TlxVar&, const std::string& list,
                                                    const std::string& query,
                                                    const std::vector<std::int64_t>& marked) override;
    bool IsArtikel() override { return articles; }

    base::Connection& inner_;
    tracing::TracingConnection traced_;
    tracing::TracingConnection formerlyTraced_;
    host::clsVertrag module_;
    std::optional<Call> call_;
    std::string answer1_; ///< what the module service answered last in this call
    std::string answer2_;
    bool visited_ = false;
};

} // namespace tellurix::tests
