#pragma once

#include "com/component/services/HostClass.h"
#include "module/host/services.h"

namespace tellurix::windows {

/// The host's services that ask the user, each by its class of the host's library.

class LatePersonalPicker final : public host::HostPersonalPicker {
public:
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                        std::int16_t standardClient, std::int32_t currentPerson,
                        host::Boolean16& confirmed) override;

private:
    HostClass object_{"HostPersonalPicker"};
};

class LateListPicker final : public host::ListPicker {
public:
    std::string choose(const host::TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current, const std::string& text) override;

private:
    HostClass object_{"ListPicker"};
};

class LateKeyedLists final : public host::KeyedLists {
public:
    std::string choose(const host::TlxVar& session, const std::string& list, const std::string& title,
                       const Limits& limits, const std::string& current) override;
    std::vector<std::string> find(const host::TlxVar& session, const std::string& list,
                                  const std::string& text, const Limits& limits) override;
    std::string typeOf(const host::TlxVar& session, std::int32_t contract) override;

private:
    HostClass object_{"KeyedLists"};
};

class LateSelectionDialog final : public host::SelectionDialog {
public:
    std::optional<std::string> select(const host::TlxVar& session, const std::string& key,
                                      const std::string& upperType, const std::string& out1,
                                      const std::string& out2) override;
    std::optional<std::string> edit(const host::TlxVar& session, const std::string& value,
                                    const std::string& upperType, const std::string& out1,
                                    const std::string& out2) override;

private:
    HostClass object_{"SelectionDialog"};
};

class LateCatalogueSelection final : public host::CatalogueSelection {
public:
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, const std::string& upperType,
                        std::int32_t current) override;

private:
    HostClass object_{"CatalogueSelection"};
};

class LateLookupGridDialog final : public host::LookupGridDialog {
public:
    std::string choose(const host::TlxVar& session, const std::string& layout, const std::string& title,
                       const std::string& text, const std::string& mode, const std::string& current) override;

private:
    HostClass object_{"LookupGridDialog"};
};

} // namespace tellurix::windows
