#include "tests/support/RecordedDocuments.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace tellurix::tests {

void RecordedDocuments::exportTable(const host::TlxVar& session, const std::string& parameters,
                                    const std::string& title) {
    expectOwn_(session);
    exports.push_back({parameters, title});
}

void RecordedDocuments::signOn(const host::TlxVar& session) {
    expectOwn_(session);
    signedOn_ = true;
}

void RecordedDocuments::compose() {
    EXPECT_TRUE(signedOn_) << "a message without a mail session";
    composed_.assign(1, {});
}

RecordedDocuments::Mail& RecordedDocuments::mail() {
    if (composed_.empty()) throw std::logic_error{"no message has been begun"};
    return composed_.back();
}

void RecordedDocuments::addRecipient(const std::string& address) {
    EXPECT_TRUE(address.starts_with("SMTP:")) << address;
    mail().recipients.push_back(address);
}

void RecordedDocuments::setSubject(const std::string& subject) {
    mail().subject = subject;
}

void RecordedDocuments::setText(const std::string& text) {
    mail().text = text;
}

bool RecordedDocuments::send() {
    mails.push_back(mail());
    if (!mailFailure.empty()) throw std::runtime_error{mailFailure};
    composed_.clear();
    return userSends;
}

host::DocumentFiles::Present RecordedDocuments::find(const std::string& source, const std::string&) {
    EXPECT_FALSE(source.empty());
    return present;
}

void RecordedDocuments::copy(const std::string& source, const std::string& folder) {
    copies.push_back({source, folder});
    if (!copyFailure.empty()) throw std::runtime_error{copyFailure};
}

} // namespace tellurix::tests
