#include "standin/services/texts/TextCatalogue.h"

#include "module/base/text.h"
#include "texts.h"

#include <stdexcept>

namespace tellurix::standin {

namespace {

constexpr const char* fallbackLanguage = "de";

} // namespace

TextCatalogue TextCatalogue::builtIn() {
    TextCatalogue catalogue;
    catalogue.read("de", texts::file("texts_de.txt"));
    catalogue.read("en", texts::file("texts_en.txt"));
    return catalogue;
}

void TextCatalogue::read(const std::string& language, std::string_view file) {
    Texts& texts = languages_[language];
    int lineNumber = 0;
    while (!file.empty()) {
        const auto end = file.find('\n');
        const std::string_view line = base::trim(file.substr(0, end));
        file.remove_prefix(end == std::string_view::npos ? file.size() : end + 1);
        ++lineNumber;
        if (line.empty() || line.front() == '#') continue;

        const auto fault = [&](const char* what) {
            return std::invalid_argument("text catalogue \"" + language + "\", line " +
                                         std::to_string(lineNumber) + ": " + what);
        };
        const auto equals = line.find('=');
        if (equals == std::string_view::npos) throw fault("not of the form \"key = text\"");
        const std::string key{base::trim(line.substr(0, equals))};
        const std::string text{base::trim(line.substr(equals + 1))};
        if (key.empty() || text.empty()) throw fault("key or text is missing");
        if (!texts.emplace(key, base::replaceAll(text, "\\n", "\n")).second) {
            throw fault("this key has been given before");
        }
    }
}

const std::string* TextCatalogue::find(const std::string& language, std::string_view key) const {
    auto texts = languages_.find(language);
    if (texts == languages_.end()) texts = languages_.find(fallbackLanguage);
    if (texts == languages_.end()) return nullptr;
    const auto text = texts->second.find(key);
    return text == texts->second.end() ? nullptr : &text->second;
}

std::string TextCatalogue::text(const std::string& language, std::string_view key) const {
    const std::string* text = find(language, key);
    return text == nullptr ? "[" + std::string{key} + "]" : *text;
}

} // namespace tellurix::standin
