#pragma once

#include "module/base/Clock.h"
#include "module/base/Locale.h"
#include "module/host/TlxVar.h"
#include "module/host/boolean16.h"
#include "module/host/line_services.h"
#include "module/ui/Display.h"
#include "module/ui/Grid.h"
#include "module/ui/TextBox.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tellurix::host {

/// The services of the host's companion library, as the screens use them. Each screen takes them
/// by reference; the component adapts the host's own, the workbench brings replacements. An
/// exception from a service is treated like a failing statement.

/// Reads one column value.
class HostDataAccess {
public:
    virtual ~HostDataAccess() = default;
    /// @param condition text behind WHERE, with a leading blank: " ID_VERTRAG = 17"
    /// @return the value of the first row as text, empty for NULL or no row
    virtual std::string readValue(const TlxVar& session, const std::string& column, const std::string& table,
                                  const std::string& condition) = 0;
};

/// Takes short-code requests and notifications, such as "1VVM" after a supply contract was edited.
class HostModuleService {
public:
    virtual ~HostModuleService() = default;
    virtual void request(const TlxVar& session, const std::string& code, const std::string& type,
                         std::string& out1, std::string& out2) = 0;
};

/// Texts in the user's language.
class HostLocalizer {
public:
    virtual ~HostLocalizer() = default;
    /// Replaces the captions of the form's controls by those of the user's language.
    virtual void localize(const TlxVar& session, ui::Form& form) = 0;
    /// The text of that number, e.g. 223 for an invalid entry.
    virtual std::string text(int number, const TlxVar& session) = 0;
};

/// Lets the user search and choose a person.
class HostPersonalPicker {
public:
    virtual ~HostPersonalPicker() = default;
    /// @param mode who is offered: "2PVM" clients, "2PVAP" delivery addresses, "2PVK" and "2PVA1" …
    ///        "2PVA8" the customers of a contract type
    /// @param currentPerson `ID_PERSONAL` of the one chosen so far, 0 for none
    /// @param confirmed the host context's `blnOK`; the picker may set it
    /// @return `ID_PERSONAL` of the chosen person, 0 or less for none
    virtual std::int32_t choose(const TlxVar& session, const std::string& mode, int accessLevel,
                                std::int16_t standardClient, std::int32_t currentPerson,
                                Boolean16& confirmed) = 0;
};

/// Lets the user choose one text of a list, or a date.
class ListPicker {
public:
    /// Instead of a query: a calendar, which answers "dd.mm.yyyy".
    static constexpr const char* calendar = "DATUM";

    virtual ~ListPicker() = default;
    /// @param query an SQL text whose first column is named SHORT, or `calendar`
    /// @param current the text in the box now
    /// @return the chosen text, or `current` when the user cancelled
    std::string choose(const TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current) {
        return choose(session, query, title, current, "");
    }

    /// The host's own operation.
    /// @param text always empty
    virtual std::string choose(const TlxVar& session, const std::string& query, const std::string& title,
                               const std::string& current, const std::string& text) = 0;
};

/// Resolves what was typed into a lookup box to the key of a row.
class LookupValidation {
public:
    virtual ~LookupValidation() = default;
    /// Runs the query, stores the first column of the found row as the `tag` of the box and shows
    /// `displayColumn` in the second box. An empty box has no key and needs no query.
    /// @param shown a second box to fill, or null
    /// @return false when nothing was found: the user has been told, the tag is empty, the text stays
    bool resolve(const TlxVar& session, const std::string& query, ui::TextBox& box, ui::TextBox* shown,
                 const std::string& displayColumn) {
        return resolve(session, -1, query, box, shown, displayColumn, nullptr, "");
    }

    /// The host's own operation.
    /// @param option always -1
    /// @param third a third box, which no screen has: always null
    /// @param text always empty
    virtual bool resolve(const TlxVar& session, std::int32_t option, const std::string& query,
                         ui::TextBox& box, ui::TextBox* shown, const std::string& displayColumn,
                         ui::TextBox* third, const std::string& text) = 0;
};

/// The host's keyed lists. Which rows a list has, and what it calls them, is the host's knowledge:
///
/// | to choose from | to find a text in | rows |
/// | --- | --- | --- |
/// | "VERTRAG_GRID" | "VERTRAG_VALID" | contracts by `VERTRAG_NAME`; a row's key is `ID_VERTRAG` |
/// | "TYPEOFVERTRAG_GRID" | "TYPEOFVERTRAG_VALID" | contract-type codes, which are the keys, too |
class KeyedLists {
public:
    /// What limits a list of contracts. A host whose lists know no limits may ignore it.
    struct Limits {
        std::string type;          ///< only contracts of this type; empty for all
        std::int32_t contract = 0; ///< the one that the user works on, which is not offered
    };

    virtual ~KeyedLists() = default;
    /// @param current the text in the box now
    /// @return the key of the chosen row, empty when the user cancelled
    virtual std::string choose(const TlxVar& session, const std::string& list, const std::string& title,
                               const Limits& limits, const std::string& current) = 0;
    /// @return the keys of all rows with that text
    virtual std::vector<std::string> find(const TlxVar& session, const std::string& list,
                                          const std::string& text, const Limits& limits) = 0;
    /// @return a contract's type code, empty when the host does not say
    virtual std::string typeOf(const TlxVar& session, std::int32_t contract) = 0;
};

/// Composes the query that finds a person by number, within what the user may see.
class PersonQueryBuilder {
public:
    virtual ~PersonQueryBuilder() = default;
    /// @param number the typed number, checked to be numeric
    /// @param filter "PERSONAL_VALID" or "PERSONAL_VALID_MANDANTEN"
    /// @return a query with ID_PERSONAL first, and NUMMER and KURZBEZEICHNUNG
    virtual std::string build(const TlxVar& session, const std::string& table, const std::string& number,
                              int accessLevel, const std::string& filter) = 0;
};

/// Turns a date as the user sees it into the text of an SQL date literal.
class DateConverter {
public:
    virtual ~DateConverter() = default;
    /// @param text "dd.mm.yyyy"
    /// @return the text to put between single quotes
    /// @throws std::invalid_argument when it is no date
    virtual std::string toSql(const std::string& text, const TlxVar& session) = 0;
};

/// The host's named settings.
class NamedSettings {
public:
    virtual ~NamedSettings() = default;
    /// @return the value, empty when the setting does not exist
    virtual std::string text(const TlxVar& session, const std::string& name) = 0;
};

/// Keeps the column widths and the order of grids for each user.
class GridLayoutStore {
public:
    virtual ~GridLayoutStore() = default;
    virtual void save(const TlxVar& session, const ui::Grid& grid, const std::string& key) = 0;
    /// Leaves the grid as it is when nothing was saved under the key.
    virtual void restore(const TlxVar& session, ui::Grid& grid, const std::string& key) = 0;
};

/// Tells how long a text a column takes.
class ColumnWidth {
public:
    virtual ~ColumnWidth() = default;
    /// @return the most characters, 0 where the column sets no limit
    virtual int of(const TlxVar& session, const std::string& table, const std::string& column) = 0;
};

/// Sets one column of the rows that a condition chooses.
class ColumnUpdate {
public:
    virtual ~ColumnUpdate() = default;
    /// @param value an empty one writes NULL
    /// @param condition text behind WHERE
    virtual void set(const TlxVar& session, const std::string& table, const std::string& column,
                     const std::string& value, const std::string& condition) = 0;
};

/// What the screens are given: the display, the clock, the user's formats and the host's services.
/// Whoever builds it keeps it alive as long as any screen of the thread.
struct HostServices {
    ui::Display& display;
    ui::ErrorHandling& errors;
    const base::Clock& clock;
    base::Locale locale;
    HostDataAccess& dataAccess;
    HostModuleService& moduleService;
    HostLocalizer& localizer;
    HostPersonalPicker& personalPicker;
    ListPicker& listPicker;
    LookupValidation& lookupValidation;
    KeyedLists& keyedLists;
    PersonQueryBuilder& personQuery;
    DateConverter& dateConverter;
    NamedSettings& settings;
    GridLayoutStore& gridLayouts;
    ColumnWidth& columnWidth;
    ColumnUpdate& columnUpdate;
    SelectionDialog& selectionDialog;
    LookupGridDialog& lookupGridDialog;
    TypeAhead& typeAhead;
    SelectionTranslator& selectionTranslator;
};

} // namespace tellurix::host
