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

std::vector<ContractKind> contractKinds(host::NamedSettings& settings, const host::TlxVar& session) {
    constexpr std::int16_t greatest = 9;
    std::vector<ContractKind> kinds;
    for (std::int16_t kind = 1; kind <= greatest; ++kind) {
        std::string name = settings.text(session, "FAKTART" + std::to_string(kind));
        if (!name.empty()) kinds.push_back({kind, std::move(name)});
    }
    if (kinds.empty()) kinds.push_back({1, "1"});
    return kinds;
}

} // namespace tellurix::standin
