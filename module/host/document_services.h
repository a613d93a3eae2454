#pragma once

#include "module/host/TlxVar.h"

#include <string>

namespace tellurix::host {

/// What leaves the system as a document: spreadsheets, mails, files in a folder of the office.

/// Shows a table in the user's spreadsheet program.
class SpreadsheetExport {
public:
    virtual ~SpreadsheetExport() = default;
    /// @param parameters lines "KEY=value": "FORMAT", one entry a column with ";" between them, "0" for
    ///        numbers and empty for texts; "ROW", the row of the sheet in which the table begins; and
    ///        last "TABLE", which takes the rest: cells with a tab, rows with CR LF between them, the
    ///        headings first, numbers as the user reads them
    /// @param title of the sheet
    virtual void exportTable(const TlxVar& session, const std::string& parameters,
                             const std::string& title) = 0;
};

/// Sends a mail as the user, who sees and completes it before it goes. One message at a time.
class MailSession {
public:
    virtual ~MailSession() = default;
    /// @throws std::runtime_error with the system's words, as all operations here
    virtual void signOn(const TlxVar& session) = 0;
    /// Begins a message; one that was not sent is forgotten.
    virtual void compose() = 0;
    /// @param address "SMTP:" and the address, which need not be a possible one
    virtual void addRecipient(const std::string& address) = 0;
    virtual void setSubject(const std::string& subject) = 0;
    /// @param text with CR LF between its lines
    virtual void setText(const std::string& text) = 0;
    /// Shows the message and sends it.
    /// @return false when the user did not send it
    virtual bool send() = 0;
};

/// Copies documents into a folder. "\" and "/" both separate the parts of a path.
class DocumentFiles {
public:
    enum class Present { no, same, different };

    virtual ~DocumentFiles() = default;
    /// Whether the folder has a file of the source's name, and one with the same content.
    /// @throws std::runtime_error with the system's words
    virtual Present find(const std::string& source, const std::string& folder) = 0;
    /// Copies under the source's own name; a file of that name is replaced. Other programs see the
    /// old file or the whole new one, nothing in between.
    /// @throws std::runtime_error with the system's words; the folder is as before
    virtual void copy(const std::string& source, const std::string& folder) = 0;
    /// What stands behind the last separator.
    static std::string fileName(const std::string& path) { return path.substr(path.find_last_of("\\/") + 1); }
};

} // namespace tellurix::host
