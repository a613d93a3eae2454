#include "module/logistics/row_saving.h"

#include "module/base/Refused.h"
#include "module/base/date_format.h"

namespace tellurix::logistics {

std::string centreStamp(base::DateTime now) {
    return base::formatDate(now, "dd.mm.yyyy hh:mm:ss", base::Locale::german());
}

void stopSaving(host::HostServices& services, const std::exception& error, const std::string& row,
                std::size_t written, std::size_t changed) {
    services.errors.report(error);
    throw base::Refused{
        {{base::OwnText::savingStopped, {row, std::to_string(written), std::to_string(changed)}}}};
}

std::string listed(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names)
        list += (list.empty() ? "" : ", ") + name;
    return list;
}

} // namespace tellurix::logistics
