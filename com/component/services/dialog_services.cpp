#include "com/component/services/dialog_services.h"

#include "com/component/services/HostClass.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

/// Keys travel as one text, with commas between them.
std::vector<std::string> splitKeys(const std::string& joined) {
    std::vector<std::string> keys;
    for (std::size_t start = 0; start < joined.size();) {
        const std::size_t end = std::min(joined.find(',', start), joined.size());
        keys.push_back(joined.substr(start, end - start));
        start = end + 1;
    }
    return keys;
}

class LatePersonalPicker final : public host::HostPersonalPicker {
public:
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                        std::int16_t standardClient, std::int32_t currentPerson,
                        host::Boolean16& confirmed) override {
        SessionRecord record(session);
        VARIANT_BOOL confirmation = static_cast<VARIANT_BOOL>(confirmed);
        const Variant chosen = object_.call(session, L"Choose",
                                            {record.argument(), mode, accessLevel, standardClient,
                                             currentPerson, Variant::reference(confirmation)});
        confirmed = static_cast<host::Boolean16>(confirmation);
        return chosen.integer();
    }

private:
    HostClass object_{"HostPersonalPicker"};
};

class LateListPicker final : public host::ListPicker {
public:
    std::string choose(const host::TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current, const std::string& text) override {
        SessionRecord record(session);
        return object_.call(session, L"Choose", {record.argument(), query, title, current, text}).text();
    }

private:
    HostClass object_{"ListPicker"};
};

class LateKeyedLists final : public host::KeyedLists {
public:
    std::string choose(const host::TlxVar& session, const std::string& list, const std::string& title,
                       const Limits& limits, const std::string& current) override {
        SessionRecord record(session);
        return object_
            .call(session, L"Choose", {record.argument(), list, title, limits.type, limits.contract, current})
            .text();
    }

    std::vector<std::string> find(const host::TlxVar& session, const std::string& list,
                                  const std::string& text, const Limits& limits) override {
        SessionRecord record(session);
        const std::string found =
            object_.call(session, L"Find", {record.argument(), list, text, limits.type, limits.contract})
                .text();
        return splitKeys(found);
    }

    std::string typeOf(const host::TlxVar& session, std::int32_t contract) override {
        SessionRecord record(session);
        return object_.call(session, L"TypeOf", {record.argument(), contract}).text();
    }

private:
    HostClass object_{"KeyedLists"};
};

class LateSelectionDialog final : public host::SelectionDialog {
public:
    std::optional<std::string> select(const host::TlxVar& session, const std::string& key,
                                      const std::string& upperType, const std::string& out1,
                                      const std::string& out2) override {
        SessionRecord record(session);
        const Variant selected =
            object_.call(session, L"Select", {record.argument(), key, upperType, out1, out2});
        if (selected.isEmpty()) return std::nullopt;
        return selected.text();
    }

    std::optional<std::string> edit(const host::TlxVar& session, const std::string& value,
                                    const std::string& upperType, const std::string& out1,
                                    const std::string& out2) override {
        SessionRecord record(session);
        const Variant edited =
            object_.call(session, L"Edit", {record.argument(), value, upperType, out1, out2});
        if (edited.isEmpty()) return std::nullopt;
        return edited.text();
    }

private:
    HostClass object_{"SelectionDialog"};
};

class LateCatalogueSelection final : public host::CatalogueSelection {
public:
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, const std::string& upperType,
                        std::int32_t current) override {
        SessionRecord record(session);
        return object_.call(session, L"Choose", {record.argument(), mode, upperType, current}).integer();
    }

private:
    HostClass object_{"CatalogueSelection"};
};

class LateLookupGridDialog final : public host::LookupGridDialog {
public:
    std::string choose(const host::TlxVar& session, const std::string& layout, const std::string& title,
                       const std::string& text, const std::string& mode,
                       const std::string& current) override {
        SessionRecord record(session);
        return object_.call(session, L"Choose", {record.argument(), layout, title, text, mode, current})
            .text();
    }

private:
    HostClass object_{"LookupGridDialog"};
};

class LateMultiSelection final : public host::MultiSelectionList {
public:
    std::optional<std::vector<std::int64_t>> choose(const host::TlxVar& session, const std::string& list,
                                                    const std::string& query,
                                                    const std::vector<std::int64_t>& marked) override {
        SessionRecord record(session);
        std::string markedKeys;
        for (const std::int64_t key : marked)
            markedKeys += (markedKeys.empty() ? "" : ",") + std::to_string(key);
        const Variant chosen = object_.call(session, L"Choose", {record.argument(), list, query, markedKeys});
        if (chosen.isEmpty()) return std::nullopt;
        std::vector<std::int64_t> keys;
        for (const std::string& key : splitKeys(chosen.text()))
            keys.push_back(std::stoll(key));
        return keys;
    }

private:
    HostClass object_{"MultiSelectionList"};
};

} // namespace

std::unique_ptr<host::HostPersonalPicker> latePersonalPicker() {
    return std::make_unique<LatePersonalPicker>();
}

std::unique_ptr<host::ListPicker> lateListPicker() {
    return std::make_unique<LateListPicker>();
}

std::unique_ptr<host::KeyedLists> lateKeyedLists() {
    return std::make_unique<LateKeyedLists>();
}

std::unique_ptr<host::SelectionDialog> lateSelectionDialog() {
    return std::make_unique<LateSelectionDialog>();
}

std::unique_ptr<host::CatalogueSelection> lateCatalogueSelection() {
    return std::make_unique<LateCatalogueSelection>();
}

std::unique_ptr<host::LookupGridDialog> lateLookupGridDialog() {
    return std::make_unique<LateLookupGridDialog>();
}

std::unique_ptr<host::MultiSelectionList> lateMultiSelection() {
    return std::make_unique<LateMultiSelection>();
}

} // namespace tellurix::windows
