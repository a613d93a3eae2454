#include "database/embedded/sqlite/scalar_call.h"
#include "database/embedded/syntax/ast.h"
#include "database/embedded/values/decimal_units.h"
#include "database/embedded/values/packed.h"
#include "database/embedded/values/types.h"

#include <cmath>
#include <limits>

namespace tellurix::embedded {

namespace {

[[noreturn]] void failOverflow(const Type& type, std::size_t position) {
    failConversion("The result does not fit " + describe(type), position);
}

[[noreturn]] void failDivision(std::size_t position) {
    failConversion("Division by zero", position);
}

std::int64_t within(TypeKind kind, bool overflow, std::int64_t value, std::size_t position) {
    if (overflow || value < smallestOf(kind) || value > largestOf(kind))
        failOverflow(Type::of(kind), position);
    return value;
}

/// Integers: left, right, kind of the result, position.
template <Operator op>
void integerArithmetic(ScalarCall& call) {
    const std::int64_t left = call.integer(0);
    const std::int64_t right = call.integer(1);
    const auto kind = static_cast<TypeKind>(call.smallInteger(2));
    const std::size_t position = call.position(3);
    std::int64_t value = 0;
    bool overflow = false;
    if constexpr (op == Operator::add) {
        overflow = __builtin_add_overflow(left, right, &value);
    } else if constexpr (op == Operator::subtract) {
        overflow = __builtin_sub_overflow(left, right, &value);
    } else if constexpr (op == Operator::multiply) {
        overflow = __builtin_mul_overflow(left, right, &value);
    } else {
        if (right == 0) failDivision(position);
        // The one quotient that does not fit; the processor traps on it.
        overflow = left == std::numeric_limits<std::int64_t>::min() && right == -1;
        if (!overflow)
            value = op == Operator::divide ? left / right : left % right;
        else if (op == Operator::modulo)
            overflow = false;
    }
    call.answer(within(kind, overflow, value, position));
}

/// Decimals: left, right, scales of left, right and result, position.
template <Operator op>
void decimalArithmetic(ScalarCall& call) {
    const std::int64_t left = call.integer(0);
    const std::int64_t right = call.integer(1);
    const PackedScales scales = PackedScales::unpack(call.integer(2));
    const std::size_t position = call.position(3);
    std::optional<std::int64_t> value;
    if constexpr (op == Operator::add) {
        value = sumOfUnits(left, scales.left, right, scales.right, scales.result);
    } else if constexpr (op == Operator::subtract) {
        value = sumOfUnits(left, scales.left, -right, scales.right, scales.result);
    } else if constexpr (op == Operator::multiply) {
        value = productOfUnits(left, scales.left, right, scales.right, scales.result);
    } else {
        if (right == 0) failDivision(position);
        value = op == Operator::divide
                    ? quotientOfUnits(left, scales.left, right, scales.right, scales.result)
                    : remainderOfUnits(left, scales.left, right, scales.right, scales.result);
    }
    if (!value) failOverflow(Type::decimal(Type::maxPrecision, scales.result), position);
    call.answer(*value);
}

void floatDivision(ScalarCall& call) {
    if (call.floating(1) == 0.0) failDivision(call.position(2));
    call.answer(call.floating(0) / call.floating(1));
}

/// Units, scale, decimals, whether it is cut instead, position.
void roundExact(ScalarCall& call) {
    const int scale = call.smallInteger(1);
    const auto value = call.integer(3) == 0 ? roundedUnits(call.integer(0), scale, call.integer(2))
                                            : cutUnits(call.integer(0), scale, call.integer(2));
    if (!value) failOverflow(Type::decimal(Type::maxPrecision, scale), call.position(4));
    call.answer(*value);
}

/// Number, decimals, whether it is cut instead.
void roundFloat(ScalarCall& call) {
    const double factor = std::pow(10.0, call.floating(1));
    const double scaled = call.floating(0) * factor;
    // A factor too small for a number rounds everything away; one that is too large changes nothing.
    if (factor == 0.0) return call.answer(0.0);
    if (!std::isfinite(scaled)) return call.answer(call.floating(0));
    call.answer((call.integer(2) == 0 ? std::round(scaled) : std::trunc(scaled)) / factor);
}

/// Units, scale, scale of the result, which is 0 or the same.
template <bool up>
void wholeUnits(ScalarCall& call) {
    const std::int64_t one = powerOfTen(call.smallInteger(1));
    const std::int64_t units = call.integer(0);
    std::int64_t whole = units / one;
    if (up && units % one > 0) ++whole;
    if (!up && units % one < 0) --whole;
    call.answer(call.integer(2) == 0 ? whole : whole * one);
}

template <double (*whole)(double)>
void wholeFloat(ScalarCall& call) {
    call.answer(whole(call.floating(0)));
}

double floorOf(double value) {
    return std::floor(value);
}

double ceilingOf(double value) {
    return std::ceil(value);
}

void absolute(ScalarCall& call) {
    const std::int64_t value = call.integer(0);
    const auto kind = static_cast<TypeKind>(call.smallInteger(1));
    const bool overflow = value == std::numeric_limits<std::int64_t>::min();
    call.answer(within(kind, overflow, overflow || value >= 0 ? value : -value, call.position(2)));
}

} // namespace

void registerArithmetic(sqlite3* connection, SqlSession& session) {
    registerScalar<integerArithmetic<Operator::add>, 2>(connection, "ts_add", 4, session);
    registerScalar<integerArithmetic<Operator::subtract>, 2>(connection, "ts_sub", 4, session);
    registerScalar<integerArithmetic<Operator::multiply>, 2>(connection, "ts_mul", 4, session);
    registerScalar<integerArithmetic<Operator::divide>, 2>(connection, "ts_div", 4, session);
    registerScalar<integerArithmetic<Operator::modulo>, 2>(connection, "ts_mod", 4, session);
    registerScalar<decimalArithmetic<Operator::add>, 2>(connection, "ts_dadd", 4, session);
    registerScalar<decimalArithmetic<Operator::subtract>, 2>(connection, "ts_dsub", 4, session);
    registerScalar<decimalArithmetic<Operator::multiply>, 2>(connection, "ts_dmul", 4, session);
    registerScalar<decimalArithmetic<Operator::divide>, 2>(connection, "ts_ddiv", 4, session);
    registerScalar<decimalArithmetic<Operator::modulo>, 2>(connection, "ts_dmod", 4, session);
    registerScalar<floatDivision, 2>(connection, "ts_fdiv", 3, session);
    registerScalar<roundExact, 4>(connection, "ts_round", 5, session);
    registerScalar<roundFloat, 3>(connection, "ts_fround", 3, session);
    registerScalar<wholeUnits<false>, 1>(connection, "ts_floor", 3, session);
    registerScalar<wholeUnits<true>, 1>(connection, "ts_ceiling", 3, session);
    registerScalar<wholeFloat<floorOf>, 1>(connection, "ts_ffloor", 1, session);
    registerScalar<wholeFloat<ceilingOf>, 1>(connection, "ts_fceiling", 1, session);
    registerScalar<absolute, 1>(connection, "ts_abs", 3, session);
}

} // namespace tellurix::embedded
