#include "database/embedded/execution/Calculation.h"

#include "database/embedded/values/date_parts.h"

#include <charconv>

namespace tellurix::embedded {

namespace {

/// What is nested more deeply is no loop's counting.
constexpr int deepest = 16;

bool isWhole(TypeKind kind) {
    return kind == TypeKind::integer;
}

bool isValue(TypeKind kind) {
    return isWhole(kind) || kind == TypeKind::dateTime;
}

bool holds(Operator op, std::int64_t left, std::int64_t right) {
    switch (op) {
    case Operator::equal:
        return left == right;
    case Operator::notEqual:
        return left != right;
    case Operator::less:
        return left < right;
    case Operator::lessOrEqual:
        return left <= right;
    case Operator::greater:
        return left > right;
    default:
        return left >= right;
    }
}

std::optional<std::int64_t> calculated(Operator op, std::int64_t left, std::int64_t right) {
    std::int64_t result = 0;
    switch (op) {
    case Operator::add:
        result = left + right;
        break;
    case Operator::subtract:
        result = left - right;
        break;
    case Operator::multiply:
        result = left * right;
        break;
    default:
        if (right == 0) return {};
        result = op == Operator::divide ? left / right : left % right;
    }
    if (result < smallestOf(TypeKind::integer) || result > largestOf(TypeKind::integer)) return {};
    return result;
}

} // namespace

std::optional<Calculation> Calculation::of(const Expression& expression, const Variables& variables,
                                           TypeKind kind) {
    Calculation calculation;
    if (calculation.add(expression, variables, 0) != kind) return {};
    calculation.stack_.reserve(calculation.nodes_.size());
    return calculation;
}

TypeKind Calculation::add(const Expression& expression, const Variables& variables, int depth) {
    constexpr auto none = TypeKind::null;
    if (depth > deepest) return none;
    const auto operand = [&](std::size_t index) {
        return add(*expression.operands[index], variables, depth + 1);
    };
    switch (expression.kind) {
    case ExpressionKind::integerLiteral: {
        std::int32_t number = 0;
        const std::string_view digits = expression.name.written;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        if (read.ec != std::errc{} || read.ptr != digits.data() + digits.size()) return none;
        nodes_.push_back({Step::number, Operator::none, number});
        return TypeKind::integer;
    }
    case ExpressionKind::variable: {
        const int number = variables.find(expression.name.folded);
        if (number == Variables::none) return none;
        const Type& type = variables.scalars[static_cast<std::size_t>(number)].type;
        if (!isValue(type.kind) || type.dayOnly) return none;
        nodes_.push_back({Step::variable, Operator::none, number});
        return type.kind;
    }
    case ExpressionKind::arithmetic:
        if (!isWhole(operand(0)) || !isWhole(operand(1))) return none;
        nodes_.push_back({Step::arithmetic, expression.op});
        return TypeKind::integer;
    case ExpressionKind::comparison: {
        const TypeKind left = operand(0);
        if (!isValue(left) || operand(1) != left) return none;
        nodes_.push_back({Step::comparison, expression.op});
        return TypeKind::condition;
    }
    case ExpressionKind::logical:
        for (std::size_t index = 0; index < expression.operands.size(); ++index) {
            if (operand(index) != TypeKind::condition) return none;
            if (index > 0)
                nodes_.push_back({expression.op == Operator::logicalAnd ? Step::both : Step::either});
        }
        return TypeKind::condition;
    case ExpressionKind::function:
        if (expression.name.folded != "year" && expression.name.folded != "month" &&
            expression.name.folded != "day")
            return none;
        if (expression.operands.size() != 1 || operand(0) != TypeKind::dateTime) return none;
        nodes_.push_back(
            {Step::part, Operator::none, static_cast<std::int64_t>(*datePartNamed(expression.name.folded))});
        return TypeKind::integer;
    case ExpressionKind::datePart:
        return addDatePart(expression, variables, depth);
    default:
        return none;
    }
}

TypeKind Calculation::addDatePart(const Expression& call, const Variables& variables, int depth) {
    constexpr auto none = TypeKind::null;
    const auto part = datePartNamed(call.part.folded);
    const auto operand = [&](std::size_t index) { return add(*call.operands[index], variables, depth + 1); };
    if (!part) return none;
    const auto code = static_cast<std::int64_t>(*part);
    if (call.name.folded == "datepart" && canRead(*part) && call.operands.size() == 1) {
        if (operand(0) != TypeKind::dateTime) return none;
        nodes_.push_back({Step::part, Operator::none, code});
        return TypeKind::integer;
    }
    if (call.name.folded == "dateadd" && canAdd(*part) && call.operands.size() == 2) {
        if (!isWhole(operand(0)) || operand(1) != TypeKind::dateTime) return none;
        nodes_.push_back({Step::addition, Operator::none, code});
        return TypeKind::dateTime;
    }
    return none;
}

std::optional<std::int64_t> Calculation::value(const Frame& frame, const SessionOptions& options) {
    stack_.clear();
    for (const Node& node : nodes_) {
        if (node.step == Step::number) {
            stack_.push_back(node.number);
            continue;
        }
        if (node.step == Step::variable) {
            const auto* const number =
                std::get_if<std::int64_t>(&frame[static_cast<std::size_t>(node.number)]);
            if (number == nullptr) return {};
            stack_.push_back(*number);
            continue;
        }
        const std::int64_t last = stack_.back();
        const auto part = static_cast<DatePart>(node.number);
        if (node.step == Step::part) {
            stack_.back() = partOfDate(part, fromMilliseconds(last), options.dateFirst);
            continue;
        }
        stack_.pop_back();
        std::int64_t& left = stack_.back();
        std::optional<std::int64_t> result;
        switch (node.step) {
        case Step::arithmetic:
            result = calculated(node.op, left, last);
            break;
        case Step::comparison:
            result = holds(node.op, left, last) ? 1 : 0;
            break;
        case Step::both:
            result = left & last;
            break;
        case Step::either:
            result = left | last;
            break;
        default:
            if (const auto sum = addToDate(part, left, fromMilliseconds(last))) result = toMilliseconds(*sum);
        }
        if (!result) return {};
        left = *result;
    }
    return stack_.back();
}

} // namespace tellurix::embedded
