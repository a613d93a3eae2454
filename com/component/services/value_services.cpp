#include "com/component/services/value_services.h"

#include "com/component/services/HostClass.h"

namespace tellurix::windows {

namespace {

class LateDataAccess final : public host::HostDataAccess {
public:
    std::string readValue(const host::TlxVar& session, const std::string& column, const std::string& table,
                          const std::string& condition) override {
        SessionRecord record(session);
        TextInOut value;
        object_.call(session, L"ReadValue", {record.argument(), column, table, condition, value.argument()});
        return value.value();
    }

private:
    HostClass object_{"HostDataAccess"};
};

class LateModuleService final : public host::HostModuleService {
public:
    void request(const host::TlxVar& session, const std::string& code, const std::string& type,
                 std::string& out1, std::string& out2) override {
        SessionRecord record(session);
        TextInOut first(out1);
        TextInOut second(out2);
        object_.call(session, L"Request",
                     {record.argument(), code, type, first.argument(), second.argument()});
        out1 = first.value();
        out2 = second.value();
    }

private:
    HostClass object_{"HostModuleService"};
};

class LatePersonQuery final : public host::PersonQueryBuilder {
public:
    std::string build(const host::TlxVar& session, const std::string& table, const std::string& number,
                      int accessLevel, const std::string& filter) override {
        SessionRecord record(session);
        return object_.call(session, L"Build", {record.argument(), table, number, accessLevel, filter})
            .text();
    }

    std::string restriction(const host::TlxVar& session, const std::string& table) override {
        SessionRecord record(session);
        return object_.call(session, L"Restriction", {record.argument(), table}).text();
    }

private:
    HostClass object_{"PersonQueryBuilder"};
};

class LateDateConverter final : public host::DateConverter {
public:
    std::string toSql(const std::string& text, const host::TlxVar& session) override {
        SessionRecord record(session);
        return object_.call(session, L"ToSql", {text, record.argument()}).text();
    }

private:
    HostClass object_{"DateConverter"};
};

class LateSettings final : public host::NamedSettings {
public:
    std::string text(const host::TlxVar& session, const std::string& name) override {
        SessionRecord record(session);
        return object_.call(session, L"Text", {record.argument(), name}).text();
    }

private:
    HostClass object_{"NamedSettings"};
};

class LateColumnWidth final : public host::ColumnWidth {
public:
    int of(const host::TlxVar& session, const std::string& table, const std::string& column) override {
        SessionRecord record(session);
        return object_.call(session, L"Of", {record.argument(), table, column}).integer();
    }

private:
    HostClass object_{"ColumnWidth"};
};

class LateColumnUpdate final : public host::ColumnUpdate {
public:
    void set(const host::TlxVar& session, const std::string& table, const std::string& column,
             const std::string& value, const std::string& condition) override {
        SessionRecord record(session);
        object_.call(session, L"Set", {record.argument(), table, column, value, condition});
    }

private:
    HostClass object_{"ColumnUpdate"};
};

class LateSelectionTranslator final : public host::SelectionTranslator {
public:
    std::string translate(const host::TlxVar& session, const std::string& kind, const std::string& sameKind,
                          const std::string& value, const std::string& upperType,
                          const std::string& formValue) override {
        SessionRecord record(session);
        return object_
            .call(session, L"Translate", {record.argument(), kind, sameKind, value, upperType, formValue})
            .text();
    }

private:
    HostClass object_{"SelectionTranslator"};
};

} // namespace

std::unique_ptr<host::HostDataAccess> lateDataAccess() {
    return std::make_unique<LateDataAccess>();
}

std::unique_ptr<host::HostModuleService> lateModuleService() {
    return std::make_unique<LateModuleService>();
}

std::unique_ptr<host::PersonQueryBuilder> latePersonQuery() {
    return std::make_unique<LatePersonQuery>();
}

std::unique_ptr<host::DateConverter> lateDateConverter() {
    return std::make_unique<LateDateConverter>();
}

std::unique_ptr<host::NamedSettings> lateSettings() {
    return std::make_unique<LateSettings>();
}

std::unique_ptr<host::ColumnWidth> lateColumnWidth() {
    return std::make_unique<LateColumnWidth>();
}

std::unique_ptr<host::ColumnUpdate> lateColumnUpdate() {
    return std::make_unique<LateColumnUpdate>();
}

std::unique_ptr<host::SelectionTranslator> lateSelectionTranslator() {
    return std::make_unique<LateSelectionTranslator>();
}

} // namespace tellurix::windows
