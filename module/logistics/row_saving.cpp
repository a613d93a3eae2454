#include "module/logistics/row_saving.h"

#include "module/base/date_format.h"

namespace tellurix::logistics {

std::string centreStamp(base::DateTime now) {
    return base::formatDate(now, "dd.mm.yyyy hh:mm:ss", base::Locale::german());
}

void stopSaving(host::HostServices& services, const std::exception& error, const std::string& row,
                std::size_t written, std::size_t changed,
                const std::vector<base::Refused::Sentence>& besides) {
    services.errors.report(error);
    std::vector<base::Refused::Sentence> sentences{
        {base::OwnText::savingStopped, {row, std::to_string(written), std::to_string(changed)}}};
    sentences.insert(sentences.end(), besides.begin(), besides.end());
    throw base::Refused{sentences};
}

} // namespace tellurix::logistics
