#include "display/browser/session/page_message.h"

#include "module/base/text.h"

#include <nlohmann/json.hpp>

#include <limits>
#include <map>

namespace tellurix::browser {

namespace {

using nlohmann::json;
using Kind = PageMessage::Kind;

json parseObject(std::string_view text) {
    json object = json::parse(text, nullptr, false);
    if (!object.is_object()) throw ProtocolError{"not a JSON object"};
    return object;
}

std::int64_t integer(const json& object, const char* name, std::int64_t from, std::int64_t to) {
    const auto found = object.find(name);
    if (found == object.end() || !found->is_number_integer()) {
        throw ProtocolError{std::string{"no integer: "} + name};
    }
    // A number beyond the signed range would wrap around into the allowed one.
    if (found->is_number_unsigned() && found->get<std::uint64_t>() > static_cast<std::uint64_t>(to)) {
        throw ProtocolError{std::string{"too great: "} + name};
    }
    const auto value = found->get<std::int64_t>();
    if (value < from || value > to) throw ProtocolError{std::string{"out of range: "} + name};
    return value;
}

int smallInteger(const json& object, const char* name) {
    return static_cast<int>(integer(object, name, 0, std::numeric_limits<int>::max()));
}

std::string text(const json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end() || !found->is_string()) throw ProtocolError{std::string{"no text: "} + name};
    return found->get<std::string>();
}

bool flag(const json& object, const char* name) {
    const auto found = object.find(name);
    if (found == object.end()) return false;
    if (!found->is_boolean()) throw ProtocolError{std::string{"no flag: "} + name};
    return found->get<bool>();
}

char32_t character(const json& object) {
    const std::u32string characters = base::decodeUtf8(text(object, "character"));
    if (characters.size() != 1) throw ProtocolError{"not one character"};
    return characters.front();
}

Kind kindOf(const json& object) {
    static const std::map<std::string, Kind> kinds{
        {"key", Kind::key},
        {"pickKey", Kind::pickKey},
        {"character", Kind::character},
        {"accessKey", Kind::accessKey},
        {"focus", Kind::focus},
        {"text", Kind::text},
        {"selection", Kind::selection},
        {"paste", Kind::paste},
        {"click", Kind::click},
        {"step", Kind::step},
        {"select", Kind::select},
        {"doubleClick", Kind::doubleClick},
        {"heading", Kind::heading},
        {"scroll", Kind::scroll},
        {"columnSized", Kind::columnSized},
        {"pick", Kind::pick},
        {"statusAction", Kind::statusAction},
        {"close", Kind::close},
        {"answer", Kind::answer},
        {"file", Kind::file},
        {"redraw", Kind::redraw},
    };
    const auto found = kinds.find(text(object, "type"));
    if (found == kinds.end()) throw ProtocolError{"unknown type"};
    return found->second;
}

} // namespace

Hello parseHello(std::string_view message) {
    const json object = parseObject(message);
    if (text(object, "type") != "hello") throw ProtocolError{"no greeting"};
    Hello hello;
    hello.session = text(object, "session");
    hello.takeOver = flag(object, "takeOver");
    hello.orNew = flag(object, "orNew");
    return hello;
}

PageMessage parsePageMessage(std::string_view message) {
    const json object = parseObject(message);
    PageMessage parsed;
    parsed.kind = kindOf(object);
    parsed.number =
        static_cast<std::uint64_t>(integer(object, "n", 1, std::numeric_limits<std::int64_t>::max()));
    if (parsed.kind == Kind::redraw) return parsed;
    parsed.window = smallInteger(object, "window");
    if (object.contains("control")) {
        parsed.control = static_cast<std::size_t>(smallInteger(object, "control"));
    }
    switch (parsed.kind) {
    case Kind::key:
        parsed.key = {static_cast<ui::Key>(integer(object, "key", 1, 255)), flag(object, "shift"),
                      flag(object, "ctrl"), flag(object, "alt")};
        if (object.contains("width")) parsed.width = smallInteger(object, "width");
        break;
    case Kind::character:
    case Kind::accessKey:
        parsed.character = character(object);
        break;
    case Kind::text:
        parsed.text = text(object, "text");
        [[fallthrough]];
    case Kind::selection:
        parsed.start = smallInteger(object, "start");
        parsed.length = smallInteger(object, "length");
        break;
    case Kind::paste:
    case Kind::file:
        parsed.text = text(object, "text");
        break;
    case Kind::step:
        parsed.up = flag(object, "up");
        break;
    case Kind::select:
        parsed.index = smallInteger(object, "index");
        parsed.column = object.contains("column") ? smallInteger(object, "column") : 0;
        parsed.extends = flag(object, "extends");
        break;
    case Kind::columnSized:
        parsed.column = smallInteger(object, "column");
        parsed.width = smallInteger(object, "width");
        break;
    case Kind::heading:
        parsed.column = smallInteger(object, "column");
        break;
    case Kind::answer:
        parsed.answer = smallInteger(object, "answer");
        break;
    default:
        break;
    }
    return parsed;
}

} // namespace tellurix::browser
