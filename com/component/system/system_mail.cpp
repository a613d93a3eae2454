#include "com/component/system/system_services.h"

#include <stdexcept>

namespace tellurix::windows {

namespace {

class WindowsMail final : public host::MailSession {
public:
    void signOn(const host::TlxVar&) override { throw std::runtime_error{"Mail is not available yet."}; }
    void compose() override {}
    void addRecipient(const std::string&) override {}
    void setSubject(const std::string&) override {}
    void setText(const std::string&) override {}
    bool send() override { return false; }
};

} // namespace

std::unique_ptr<host::MailSession> systemMail() {
    return std::make_unique<WindowsMail>();
}

} // namespace tellurix::windows
