#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/pickers/lists/F_ListPicker.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// The lists of contracts and contract types, from `VERTRAEGE` with its column `VER_TYPE`.
class KeyedListsService final : public host::KeyedLists {
public:
    KeyedListsService(Dialogs& dialogs, Localizer& localizer) : dialogs_(dialogs), localizer_(localizer) {}

    /// @throws std::invalid_argument for a list that does not exist
    std::string choose(const host::TlxVar& session, const std::string& list, const std::string& title,
                       const Limits& limits, const std::string& current) override;
    std::vector<std::string> find(const host::TlxVar& session, const std::string& list,
                                  const std::string& text, const Limits& limits) override;
    std::string typeOf(const host::TlxVar& session, std::int32_t contract) override;

private:
    F_ListPicker::List contracts(const host::TlxVar& session, const Limits& limits) const;
    F_ListPicker::List types(const host::TlxVar& session) const;

    Dialogs& dialogs_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
