#include "standin/workbench/json_text.h"

#include "module/base/date_format.h"

#include <nlohmann/json.hpp>

#include <array>
#include <charconv>

namespace tellurix::standin {

namespace {

struct Writer {
    std::string operator()(base::Null) const { return "null"; }
    std::string operator()(bool flag) const { return flag ? "true" : "false"; }
    std::string operator()(std::int64_t number) const { return std::to_string(number); }
    std::string operator()(const base::Decimal& number) const { return number.toString(); }
    std::string operator()(double number) const {
        std::array<char, 32> digits{};
        const auto [end, error] = std::to_chars(digits.data(), digits.data() + digits.size(), number);
        return {digits.data(), end};
    }
    std::string operator()(const std::string& text) const { return jsonText(text); }
    std::string operator()(base::DateTime moment) const {
        std::string text = base::formatDate(moment, "yyyy-MM-ddThh:mm:ss", base::Locale::german());
        const auto milliseconds =
            (moment - std::chrono::floor<std::chrono::seconds>(moment)) / std::chrono::milliseconds{1};
        if (milliseconds != 0) text += "." + std::to_string(1000 + milliseconds).substr(1);
        return '"' + text + '"';
    }
};

} // namespace

std::string jsonText(std::string_view text) {
    return nlohmann::json(text).dump(-1, ' ', false, nlohmann::json::error_handler_t::replace);
}

std::string jsonValue(const base::Value& value) {
    return std::visit(Writer{}, value);
}

} // namespace tellurix::standin
