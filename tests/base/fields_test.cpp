#include "module/base/database.h"

namespace tellurix::base {
namespace {

struct OneField final : Fields {
    explicit OneField(Value only) : value(std::move(only)) {}
    std::size_t fieldCount() const override { return 1; }
    std::string fieldName(std::size_t) const override { return "ANZAHL"; }
    using Fields::field;
    Value field(std::size_t) override { return value; }
    Value value;
};

TEST(Fields, AnIntegerIsWhateverAServerCallsNumeric) {
    struct Case {
        const char* rule;
        Value value;
        std::int64_t integer;
    };
    const Case cases[] = {
        {"an integer", std::int64_t{17}, 17},
        {"a decimal, as an aggregate answers it", Decimal{1700, 2}, 17},
        {"a floating-point number", 17.0, 17},
        {"a text of digits", std::string{"17"}, 17},
        {"a flag", true, 1},
        {"NULL", Null{}, -1},
    };
    for (const Case& c : cases) {
        OneField row{c.value};
        EXPECT_EQ(row.integer(0, -1), c.integer) << c.rule;
        EXPECT_EQ(row.integer("anzahl", -1), c.integer) << c.rule << ", by its name";
    }
    OneField text{std::string{"17a"}};
    EXPECT_THROW(text.integer(0), DatabaseError);
    EXPECT_THROW(text.integer("MENGE"), DatabaseError) << "there is no field of that name";
}

} // namespace
} // namespace tellurix::base
