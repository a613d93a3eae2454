#include "standin/services/mail/MailService.h"

#include <stdexcept>

namespace tellurix::standin {

void MailService::signOn(const host::TlxVar&) {
    throw std::runtime_error{"Mail is not available yet."};
}

} // namespace tellurix::standin
