#include "module/parts/meanwhile/ConflictQuestion.h"

#include "module/base/own_text.h"
#include "module/base/text.h"

#include <algorithm>

namespace tellurix::parts {

using base::OwnText;

namespace {

constexpr std::size_t fewestLines = 2;
constexpr std::size_t mostLines = 12;

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

void TakenOver::mark() const {
    for (const Field& field : fields_)
        if (field.mark) field.mark();
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

ConflictQuestion::ConflictQuestion(host::HostServices& services, const host::TlxVar& session)
    : Form("F_Inzwischen"), services_(services), session_(session) {
    const auto answers = [this](ui::Button& button, Answer answer) {
        button.onClick = [this, answer] {
            answer_ = answer;
            unload();
        };
    };
    answers(btnMeines, Answer::mine);
    answers(btnDeren, Answer::theirs);
    answers(btnZuruck, Answer::back);
    setCancelButton(btnZuruck);
    txtUnterschiede.setLocked(true);
    setLayout(ui::column(
        {lblFrage, ui::Layout{txtUnterschiede}.growing(), ui::row({btnMeines, btnDeren, btnZuruck})}));
}

ConflictQuestion::Answer ConflictQuestion::ask(const std::vector<Conflict>& conflicts) {
    const auto words = [this](OwnText text, const std::vector<std::string>& values = {}) {
        return base::ownText(text, session_.language, values);
    };
    const auto shown = [&](const std::string& value) {
        return value.empty() ? words(OwnText::noValue) : value;
    };
    setTitle(words(OwnText::changedMeanwhile));
    lblFrage.setCaption(words(OwnText::bothChanged));
    btnMeines.setCaption(words(OwnText::saveMine));
    btnDeren.setCaption(words(OwnText::takeTheirs));
    btnZuruck.setCaption(words(OwnText::goBack));
    std::vector<std::string> differences;
    for (const Conflict& conflict : conflicts)
        differences.push_back(
            words(OwnText::bothValues, {conflict.field, shown(conflict.mine), shown(conflict.theirs)}));
    txtUnterschiede.setLines(static_cast<int>(std::clamp(conflicts.size() + 1, fewestLines, mostLines)));
    txtUnterschiede.show(base::joined(differences, "\n"));
    txtUnterschiede.select(0, 0);
    answer_ = Answer::back;
    services_.display.showModal(*this);
    return answer_;
}

} // namespace tellurix::parts
