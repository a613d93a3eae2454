#pragma once

#include "com/component/services/HostClass.h"
#include "module/host/services.h"

namespace tellurix::windows {

/// The host's services that answer or write values, each by its class of the host's library.

class LateDataAccess final : public host::HostDataAccess {
public:
    std::string readValue(const host::TlxVar& session, const std::string& column, const std::string& table,
                          const std::string& condition) override;

private:
    HostClass object_{"HostDataAccess"};
};

class LateModuleService final : public host::HostModuleService {
public:
    void request(const host::TlxVar& session, const std::string& code, const std::string& type,
                 std::string& out1, std::string& out2) override;

private:
    HostClass object_{"HostModuleService"};
};

class LatePersonQuery final : public host::PersonQueryBuilder {
public:
    std::string build(const host::TlxVar& session, const std::string& table, const std::string& number,
                      int accessLevel, const std::string& filter) override;

private:
    HostClass object_{"PersonQueryBuilder"};
};

class LateDateConverter final : public host::DateConverter {
public:
    std::string toSql(const std::string& text, const host::TlxVar& session) override;

private:
    HostClass object_{"DateConverter"};
};

class LateSettings final : public host::NamedSettings {
public:
    std::string text(const host::TlxVar& session, const std::string& name) override;

private:
    HostClass object_{"NamedSettings"};
};

class LateColumnWidth final : public host::ColumnWidth {
public:
    int of(const host::TlxVar& session, const std::string& table, const std::string& column) override;

private:
    HostClass object_{"ColumnWidth"};
};

class LateColumnUpdate final : public host::ColumnUpdate {
public:
    void set(const host::TlxVar& session, const std::string& table, const std::string& column,
             const std::string& value, const std::string& condition) override;

private:
    HostClass object_{"ColumnUpdate"};
};

class LateSelectionTranslator final : public host::SelectionTranslator {
public:
    std::string translate(const host::TlxVar& session, const std::string& kind, const std::string& sameKind,
                          const std::string& value, const std::string& upperType,
                          const std::string& formValue) override;

private:
    HostClass object_{"SelectionTranslator"};
};

} // namespace tellurix::windows
