#pragma once

#include "module/host/document_services.h"
#include "module/ui/Display.h"

namespace tellurix::standin {

/// Sends mails.
class MailService final : public host::MailSession {
public:
    explicit MailService(ui::Display& display) : display_(display) {}

    void signOn(const host::TlxVar& session) override;
    void compose() override {}
    void addRecipient(const std::string&) override {}
    void setSubject(const std::string&) override {}
    void setText(const std::string&) override {}
    bool send() override { return false; }

private:
    ui::Display& display_;
};

} // namespace tellurix::standin
