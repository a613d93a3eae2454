#include "module/parts/meanwhile/TakenOver.h"

#include "module/base/text.h"
#include "module/parts/questions.h"

#include <algorithm>

namespace tellurix::parts {

using base::OwnText;

namespace {

constexpr std::size_t mostNames = 5;
constexpr std::size_t longestValue = 30;

} // namespace

void TakenOver::add(Field field) {
    if (field.mark) field.mark();
    const auto known = std::ranges::find(fields_, field.name, &Field::name);
    if (known == fields_.end()) {
        fields_.push_back(std::move(field));
    } else {
        known->now = std::move(field.now);
    }
}

std::string TakenOver::told(OwnText saved, const std::string& language) const {
    for (const Field& field : fields_)
        if (field.mark) field.mark();
    return savedText(saved, sentence(language), language);
}

std::string TakenOver::sentence(std::string_view language) const {
    if (fields_.empty()) return {};
    const auto shown = [language](const std::string& value) {
        const std::u32string characters = base::decodeUtf8(value);
        if (characters.empty()) return base::ownText(OwnText::noValue, language);
        return characters.size() <= longestValue ? value
                                                 : base::encodeUtf8(characters.substr(0, longestValue)) + "…";
    };
    std::vector<std::string> first;
    for (const Field& field : fields_) {
        if (first.size() == mostNames) break;
        first.push_back(field.whole ? field.name
                                    : base::ownText(OwnText::changedFromTo, language,
                                                    {field.name, shown(field.before), shown(field.now)}));
    }
    return base::ownText(OwnText::takenFromOthers, language,
                         {base::joined(first, ", ") + (fields_.size() > mostNames ? " …" : "")});
}

} // namespace tellurix::parts
