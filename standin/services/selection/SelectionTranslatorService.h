#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Turns selection values, in the quick and in the extended form, into conditions on the attribute
/// columns of LOGS. They mean the same for every contract type and screen.
class SelectionTranslatorService final : public host::SelectionTranslator {
public:
    std::string translate(const host::TlxVar& session, const std::string& kind, const std::string& sameKind,
                          const std::string& value, const std::string& upperType,
                          const std::string& formValue) override;
};

} // namespace tellurix::standin
