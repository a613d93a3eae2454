#pragma once

#include "module/host/TlxVar.h"

#include <string>

namespace tellurix::host {

/// What the host knows or does with values, without a word to the user.

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

/// Composes the query that finds a person by number, within what the user may see, and says that limit
/// for queries on several persons.
class PersonQueryBuilder {
public:
    virtual ~PersonQueryBuilder() = default;
    /// @param number the typed number, checked to be numeric
    /// @param filter "PERSONAL_VALID" or "PERSONAL_VALID_MANDANTEN"
    /// @return a query with ID_PERSONAL first, and NUMMER and KURZBEZEICHNUNG
    virtual std::string build(const TlxVar& session, const std::string& table, const std::string& number,
                              int accessLevel, const std::string& filter) = 0;
    /// What limits the persons that the user may see, to follow the conditions of a query on them.
    /// @param table the name by which the query knows PERSONAL
    /// @return " AND …", may be empty
    virtual std::string restriction(const TlxVar& session, const std::string& table) = 0;
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

/// Turns a selection value into a condition on the delivered logs.
class SelectionTranslator {
public:
    virtual ~SelectionTranslator() = default;
    /// @param kind, sameKind what the condition is for, given twice: "1LV" for logs of a contract
    /// @param value a selection value that is not empty
    /// @param formValue a text of the calling screen; may be empty
    /// @return " FROM LOGS … WHERE …", to follow "SELECT LOGS.ID_LOG " inside a subquery
    /// @throws std::invalid_argument naming the piece that cannot be read
    virtual std::string translate(const TlxVar& session, const std::string& kind, const std::string& sameKind,
                                  const std::string& value, const std::string& upperType,
                                  const std::string& formValue) = 0;
};

} // namespace tellurix::host
