#pragma once

#include "module/host/document_services.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::tests {

/// A host's services for documents that remember what they were asked for.
class RecordedDocuments final : public host::SpreadsheetExport,
                                public host::MailSession,
                                public host::DocumentFiles {
public:
    struct Export {
        std::string parameters;
        std::string title;
    };
    struct Mail {
        std::vector<std::string> recipients; ///< as they were added
        std::string subject;
        std::string text;
    };
    struct Copy {
        std::string source;
        std::string folder;
    };

    /// @param expectOwn fails when a session is not the caller's
    explicit RecordedDocuments(std::function<void(const host::TlxVar&)> expectOwn)
        : expectOwn_(std::move(expectOwn)) {}

    std::vector<Export> exports;
    std::vector<Mail> mails; ///< that the user was shown
    bool userSends = true;   ///< what the user does with the next mail
    std::string mailFailure; ///< what sending fails with; empty when it does not
    std::vector<Copy> copies;
    Present present = Present::no; ///< what the folder has
    std::string copyFailure;       ///< what copying fails with; empty when it does not

private:
    void exportTable(const host::TlxVar& session, const std::string& parameters,
                     const std::string& title) override;
    void signOn(const host::TlxVar& session) override;
    void compose() override;
    void addRecipient(const std::string& address) override;
    void setSubject(const std::string& subject) override;
    void setText(const std::string& text) override;
    bool send() override;
    Present find(const std::string& source, const std::string& folder) override;
    void copy(const std::string& source, const std::string& folder) override;

    /// The message that is being composed.
    Mail& mail();

    std::function<void(const host::TlxVar&)> expectOwn_;
    bool signedOn_ = false;
    std::vector<Mail> composed_;
};

} // namespace tellurix::tests
