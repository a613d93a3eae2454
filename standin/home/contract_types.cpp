#include "standin/home/contract_types.h"

#include <algorithm>

namespace tellurix::standin {

std::string contractTypeText(std::string_view code, const Localizer& localizer, const host::TlxVar& session) {
    std::string text{code};
    if (std::ranges::find(contractTypes, code) != contractTypes.end())
        text += " – " + localizer.named("type." + std::string{code}, session);
    return text;
}

void addContractTypes(ui::ComboBox& combo, const Localizer& localizer, const host::TlxVar& session) {
    for (std::size_t i = 0; i < contractTypes.size(); ++i)
        combo.add(contractTypeText(contractTypes[i], localizer, session), static_cast<std::int64_t>(i));
}

} // namespace tellurix::standin
