// What the statement files do not reach: a server's errors and values, and the manners of ADO's
// objects.

#include "com/automation/AutomationError.h"
#include "com/automation/DispatchObject.h"
#include "com/automation/wide.h"
#include "database/ado/AdoConnection.h"
#include "database/ado/constants.h"
#include "database/ado/values.h"
#include "standin/ado_objects/embedded_connection.h"
#include "tests/database/embedded/EmbeddedTest.h"

#include <oledberr.h>

#include <functional>

namespace tellurix::windows::ado {
namespace {

using base::FieldType;

/// Objects with fixed answers, as a server's provider fills them.
class Fixed final : public DispatchObject {
public:
    explicit Fixed(DispatchTable table) : table_(std::move(table)) {}

protected:
    const DispatchTable& table() const override { return table_; }
    const char* source() const override { return "Provider"; }

private:
    DispatchTable table_;
};

Variant fixed(const DispatchTable& table) {
    return ComPtr<IDispatch>::adopt(new Fixed(table));
}

auto answering(Variant value) {
    return [value](Fixed&, const CallArguments&) { return value; };
}

struct Reported {
    HRESULT number;
    int native;
    const char* state;
    const char* text;
};

/// A connection on which every statement fails. Its Errors have one of another statement before.
Dispatch failing(HRESULT code, const std::vector<Reported>& reported) {
    const auto all = std::make_shared<std::vector<Reported>>();
    all->push_back({E_FAIL, 102, "42000", "von vorhin"});
    DispatchTable errors;
    errors.method<Fixed>(L"Clear", [all](Fixed&, const CallArguments&) { all->clear(); });
    errors.method<Fixed>(L"Count", [all](Fixed&, const CallArguments&) -> Variant {
        return static_cast<std::int32_t>(all->size());
    });
    errors.method<Fixed>(L"Item", [all](Fixed&, const CallArguments& arguments) {
        const Reported& error = all->at(static_cast<std::size_t>(arguments[0].integer()));
        DispatchTable table;
        table.method<Fixed>(L"Number", answering(std::int32_t{error.number}));
        table.method<Fixed>(L"NativeError", answering(error.native));
        table.method<Fixed>(L"SQLState", answering(error.state));
        table.method<Fixed>(L"Description", answering(error.text));
        return fixed(table);
    });
    DispatchTable connection;
    connection.method<Fixed>(L"Errors", answering(fixed(errors)));
    connection.method<Fixed>(L"Execute", [code, all, reported](Fixed&, const CallArguments&) -> Variant {
        if (!reported.empty()) *all = reported;
        throw AutomationError(code, "What the call says", "Provider");
    });
    return Dispatch(fixed(connection));
}

TEST(AdoErrors, AreWhatTheServerReported) {
    constexpr HRESULT inCommand = DB_E_ERRORSINCOMMAND;
    constexpr auto ofAdo = [](int number) { return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number); };
    struct Case {
        HRESULT code;
        std::vector<Reported> errors;
        const char* expected;
    };
    const Case cases[] = {
        {inCommand, {{inCommand, 102, "42000", "Syntax"}}, "syntax: Syntax (Provider, 102)"},
        {inCommand, {{inCommand, 208, "42S02", "Tabelle"}}, "unknownName: Tabelle (Provider, 208)"},
        {inCommand, {{inCommand, 8114, "42000", "Zahl"}}, "conversion: Zahl (Provider, 8114)"},
        {inCommand, {{inCommand, 1205, "40001", "Opfer"}}, "locked: Opfer (Provider, 1205)"},
        {inCommand, {{inCommand, 1105, "42000", "Voll"}}, "storageFull: Voll (Provider, 1105)"},
        {DB_E_INTEGRITYVIOLATION,
         {{DB_E_INTEGRITYVIOLATION, 2627, "23000", "Doppelt"}, {inCommand, 3621, "01000", "Beendet"}},
         "constraint: Doppelt\nBeendet (Provider, 2627)"},
        // A message of the server is no error; a number that nobody knows leaves it to the SQLSTATE.
        {inCommand,
         {{S_OK, 5701, "01000", "Datenbank gewechselt"}, {inCommand, 99999, "22003", "Überlauf"}},
         "conversion: Überlauf (Provider, 99999)"},
        {E_FAIL, {{E_FAIL, 0, "08S01", "Leitung weg"}}, "connection: Leitung weg"},
        // ADO's own failures leave the Errors as they are.
        {ofAdo(3704), {}, "connection: What the call says (Provider, 3704)"},
        {E_FAIL, {}, "other: What the call says"},
    };
    for (const Case& one : cases) {
        AdoConnection connection(failing(one.code, one.errors));
        EXPECT_EQ(embedded::failureOf([&] { connection.execute("SELECT 1"); }), one.expected);
    }
}

TEST(AdoWrites, OfAProviderThatKnowsOneAnswerAStatementAreDone) {
    DispatchTable closed;
    closed.method<Fixed>(L"State", answering(adStateClosed));
    closed.method<Fixed>(L"NextRecordset", [](Fixed&, const CallArguments&) -> Variant {
        throw AutomationError(MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, 3251), "Not supported");
    });
    DispatchTable connection;
    connection.method<Fixed>(L"Execute", [closed](Fixed&, const CallArguments& arguments) -> Variant {
        arguments.write(1, 3);
        return fixed(closed);
    });
    EXPECT_EQ(AdoConnection(Dispatch(fixed(connection))).execute("DELETE FROM T").rowsAffected, 3);
}

DECIMAL decimal(ULONG high, ULONGLONG low, BYTE scale, bool negative = false) {
    DECIMAL number{};
    number.Hi32 = high;
    number.Lo64 = low;
    number.scale = scale;
    number.sign = negative ? DECIMAL_NEG : 0;
    return number;
}

TEST(AdoValues, OfEveryKindAreRead) {
    struct Case {
        Variant value;
        FieldType type;
        const char* expected;
    };
    const Case cases[] = {
        {Variant::null(), FieldType::text, "NULL"},
        {Variant(true), FieldType::flag, "true"},
        {Variant(200).as(VT_UI1), FieldType::tinyInteger, "200"},
        {Variant(-3).as(VT_I2), FieldType::smallInteger, "-3"},
        {Variant(std::int64_t{9'000'000'000}), FieldType::bigInteger, "9000000000"},
        {Variant(decimal(0, 9'000'000'000, 0)), FieldType::bigInteger, "9000000000"},
        {Variant(decimal(0, 1250, 2, true)), FieldType::decimal, "-12.50"},
        {Variant("12.5").as(VT_CY), FieldType::decimal, "12.5000"},
        // 2^64 / 10^12: more than 18 digits, of which the last are decimals that can be spared.
        {Variant(decimal(1, 0, 12)), FieldType::decimal, "18446744.0737095516"},
        {Variant(decimal(0, 9'999'999'999'999'999'995ULL, 3)), FieldType::decimal, "10000000000000000.0"},
        {Variant(std::int64_t{9'000'000'000}).as(VT_UI8), FieldType::bigInteger, "9000000000"},
        {Variant(0.1).as(VT_R4), FieldType::floating, "0.1"},
        {Variant("Fichte ä€"), FieldType::text, "Fichte ä€"},
        {Variant::oleDate(45813.604166666664), FieldType::dateTime, "2025-06-05 14:30:00"},
        {Variant::oleDate(-1.25), FieldType::dateTime, "1899-12-29 06:00:00"},
    };
    for (const Case& one : cases) {
        const base::Value value = valueOf(one.value, one.type);
        EXPECT_EQ(embedded::written(value), one.expected);
        // There and back again, as far as the port holds it.
        EXPECT_EQ(embedded::written(valueOf(variantOf(value, one.type), one.type)), one.expected);
    }
    EXPECT_THROW(valueOf(Variant(decimal(1, 0, 0)), FieldType::decimal), AutomationError);
}

/// What ADO makes of a number in a text depends on the user's language, so it never sees one.
TEST(AdoValues, GoIntoANumberColumnAsNumbersOfItsScale) {
    Variant written;
    DispatchTable field;
    field.method<Fixed>(L"Name", answering("PREIS"));
    field.method<Fixed>(L"Type", answering(std::int32_t{adNumeric}));
    field.method<Fixed>(L"NumericScale", answering(2));
    field.property<Fixed>(L"Value", answering(Variant::null()),
                          [&](Fixed&, const CallArguments& arguments) { written = arguments[0]; });
    DispatchTable fields;
    fields.method<Fixed>(L"Count", answering(1));
    fields.method<Fixed>(L"Item", answering(fixed(field)));
    DispatchTable recordset;
    recordset.method<Fixed>(L"Fields", answering(fixed(fields)));
    recordset.method<Fixed>(L"EOF", answering(false));
    for (const wchar_t* name : {L"Open", L"Update", L"Close"})
        recordset.method<Fixed>(name, answering(Variant()));
    DispatchTable connection;
    connection.method<Fixed>(L"NewRecordset", answering(fixed(recordset)));
    AdoConnection port(Dispatch(fixed(connection)));
    const auto rows = port.openUpdatable("SELECT PREIS FROM T");

    struct Case {
        base::Value value;
        VARTYPE type;
        const char* expected;
    };
    const Case cases[] = {
        {std::string("-1.255"), VT_DECIMAL, "-1.26"},
        {base::Decimal(12, 1), VT_DECIMAL, "1.2"},
        {std::string("98"), VT_DECIMAL, "98"},
        {std::string("1,5"), VT_BSTR, "1,5"},
        {base::Null{}, VT_NULL, "NULL"},
    };
    for (const Case& one : cases) {
        rows->setField("preis", one.value);
        rows->update();
        EXPECT_EQ(written.vt, one.type) << one.expected;
        EXPECT_EQ(embedded::written(valueOf(written, FieldType::decimal)), one.expected);
    }
}

class AdoObjects : public embedded::EmbeddedTest {
protected:
    AdoObjects() {
        AdoConnection(object_).execute("CREATE TABLE T (ID int IDENTITY PRIMARY KEY, NAME nvarchar(20))");
    }

    Dispatch opened() {
        database().connect();
        Dispatch object(createEmbeddedConnection(clock()));
        object.call(L"Open", {"Provider=x;Data Source=" + narrow(file().wstring()) + ";Mode=y"});
        return object;
    }

    Dispatch execute(const char* statement) { return Dispatch(object_.call(L"Execute", {statement})); }

    /// rows("NAME") = value
    static void assignAsScriptsDo(const Dispatch& rows, const char* name, const char* value) {
        Variant arguments[] = {value, name};
        DISPID assigned = DISPID_PROPERTYPUT;
        DISPPARAMS parameters{arguments, &assigned, 2, 1};
        ASSERT_EQ(rows.object()->Invoke(DISPID_VALUE, IID_NULL, 0, DISPATCH_PROPERTYPUT, &parameters, nullptr,
                                        nullptr, nullptr),
                  S_OK);
    }

    static std::string failureOf(const std::function<void()>& work) {
        try {
            work();
        } catch (const AutomationError& error) {
            return std::to_string(HRESULT_CODE(error.code()));
        }
        return "none";
    }

    Dispatch object_ = opened();
};

TEST_F(AdoObjects, CountedWriteAnswersWithAClosedRecordsetOfItsOwn) {
    Dispatch first = execute("INSERT INTO T (NAME) VALUES ('eins') SELECT MAX(ID) AS NR FROM T");
    EXPECT_EQ(first.get(L"State").integer(), adStateClosed);
    Dispatch second(first.call(L"NextRecordset"));
    EXPECT_EQ(Dispatch(second.get(L"Fields", {"nr"})).get(L"Value").integer(), 1);
    EXPECT_FALSE(second.call(L"NextRecordset").object());

    EXPECT_EQ(execute("SET NOCOUNT ON INSERT INTO T (NAME) VALUES ('zwei') SELECT 2").get(L"State").integer(),
              adStateOpen);
}

TEST_F(AdoObjects, RowsInEditingAreWrittenByMovingOnAndDroppedByCancelling) {
    execute("INSERT INTO T (NAME) VALUES ('a'),('b')");
    Dispatch rows(object_.call(L"NewRecordset"));
    rows.call(L"Open", {"SELECT * FROM T", object_.object(), adOpenStatic, adLockPessimistic});
    Dispatch name(rows.get(L"Fields", {1}));
    name.put(L"Value", "A");
    rows.call(L"MoveNext");
    assignAsScriptsDo(rows, "NAME", "B");
    EXPECT_EQ(name.get(L"Value").text(), "B");
    EXPECT_EQ(failureOf([&] { rows.call(L"Close"); }), "3219");
    rows.call(L"CancelUpdate");
    rows.call(L"MoveNext");
    EXPECT_TRUE(rows.get(L"EOF").flag());
    EXPECT_EQ(failureOf([&] { name.get(L"Value"); }), "3021");
    rows.call(L"Close");
    AdoConnection port(object_);
    EXPECT_EQ(embedded::answer(port, "SELECT NAME FROM T WHERE NAME <> 'x'"), "A\nb");
}

/// What has been set goes to the database with `update` alone, and a row that failed can be moved on from.
TEST_F(AdoObjects, TheAdapterWritesOnlyWhatIsMeantToBeWritten) {
    execute("INSERT INTO T (NAME) VALUES ('a'),('b'),('c')");
    AdoConnection port(object_);
    const auto rows = port.openUpdatable("SELECT * FROM T");
    rows->setField("Name", std::string("vergessen"));
    rows->moveNext();
    rows->update();
    rows->setField("Name", std::string("länger als die zwanzig Zeichen"));
    EXPECT_EQ(embedded::failureOf([&] { rows->update(); }).substr(0, 10), "conversion");
    rows->moveNext();
    rows->remove();
    for (const std::function<void()>& use : {std::function<void()>([&] { rows->field(0); }),
                                             std::function<void()>([&] { rows->setField("Name", {}); })})
        EXPECT_EQ(embedded::failureOf(use), "other: There is no current row");
    rows->moveNext();
    EXPECT_TRUE(rows->atEnd());
    EXPECT_EQ(embedded::answer(port, "SELECT * FROM T"), "1 | a\n2 | b");
}

TEST(AdoWrites, InPlaceAreOnStaticRowsWithPessimisticLocks) {
    std::vector<std::int32_t> how;
    DispatchTable recordset;
    recordset.method<Fixed>(L"Open", [&how](Fixed&, const CallArguments& given) -> Variant {
        for (std::size_t i = 2; i < given.count(); ++i)
            how.push_back(given[i].integer());
        throw AutomationError(E_FAIL, "That is all");
    });
    DispatchTable connection;
    connection.method<Fixed>(L"NewRecordset", answering(fixed(recordset)));
    AdoConnection port{Dispatch(fixed(connection))};
    EXPECT_THROW(port.openUpdatable("SELECT 1"), base::DatabaseError);
    constexpr std::int32_t isStatic = 3;
    constexpr std::int32_t isPessimistic = 2;
    constexpr std::int32_t isText = 1;
    EXPECT_EQ(how, (std::vector<std::int32_t>{isStatic, isPessimistic, isText}));
}

TEST_F(AdoObjects, FieldsAreEnumeratedAsForEachDoes) {
    Dispatch fields(execute("SELECT 1 AS EINS,2 AS ZWEI").get(L"Fields"));
    Variant items;
    DISPPARAMS none{};
    ASSERT_EQ(fields.object()->Invoke(DISPID_NEWENUM, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                      &none, items.put(), nullptr, nullptr),
              S_OK);
    const auto each = ComPtr<IUnknown>(items.punkVal).as<IEnumVARIANT>();
    ASSERT_TRUE(each);
    std::string names;
    for (Variant field; each->Next(1, field.put(), nullptr) == S_OK;)
        names += Dispatch(field).get(L"Name").text() + " ";
    EXPECT_EQ(names, "EINS ZWEI ");
}

TEST_F(AdoObjects, ErrorsStayWithTheConnection) {
    EXPECT_EQ(failureOf([&] { Dispatch(execute("SELECT X FROM NIRGENDS").get(L"EOF")); }),
              std::to_string(HRESULT_CODE(DB_E_NOTABLE)));
    Dispatch error(object_.get(L"Errors", {0}));
    EXPECT_EQ(error.get(L"SQLState").text(), "42S02");
    EXPECT_NE(error.get(L"Description").text().find("NIRGENDS"), std::string::npos);
    EXPECT_EQ(failureOf([&] { execute("SELECT 1 AS A").get(L"Fields", {"B"}); }), "3265");

    object_.call(L"Close");
    EXPECT_EQ(failureOf([&] { execute("SELECT 1"); }), "3709");
}

TEST_F(AdoObjects, AreAllLetGo) {
    object_ = Dispatch();
    const long before = liveComObjects;
    {
        AdoConnection port(opened());
        EXPECT_EQ(embedded::answer(port, "SELECT COUNT(*) FROM T"), "0");
        embedded::failureOf([&] { port.execute("SELECT X FROM NIRGENDS"); });
        const auto rows = port.openUpdatable("SELECT * FROM T");
    }
    EXPECT_EQ(liveComObjects, before);
}

} // namespace
} // namespace tellurix::windows::ado
