#include "module/parts/meanwhile/ConflictQuestion.h"

#include "module/base/own_text.h"

#include <algorithm>

namespace tellurix::parts {

using base::OwnText;

namespace {

constexpr std::size_t fewestLines = 2;
constexpr std::size_t mostLines = 12;

} // namespace

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
    setCard();
    setCancelButton(btnZuruck);
    txtUnterschiede.setLocked(true);
    setLayout(ui::column(
        {lblFrage, ui::Layout{txtUnterschiede}.growing(), ui::bar({btnMeines, btnDeren, btnZuruck})}));
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
