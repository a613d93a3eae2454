#pragma once

#include "module/host/services.h"

namespace tellurix::standin {

/// Writes dates as 'yyyymmdd', the one form that no login language of a server reads another way.
class DateConverterService final : public host::DateConverter {
public:
    std::string toSql(const std::string& text, const host::TlxVar& session) override;
};

} // namespace tellurix::standin
