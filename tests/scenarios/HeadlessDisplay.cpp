#include "tests/scenarios/HeadlessDisplay.h"

#include "module/base/text.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ItemList.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/controls/caption.h"

#include <algorithm>
#include <functional>
#include <map>

namespace tellurix::tests {

namespace {

using Kind = ui::ControlKind;

/// Place of a text among others, or -1.
int placeOf(const std::string& wanted, const std::vector<std::string>& texts) {
    const auto found = std::find(texts.begin(), texts.end(), wanted);
    return found == texts.end() ? -1 : static_cast<int>(found - texts.begin());
}

std::vector<std::string> textsOf(const ui::ItemList& list) {
    std::vector<std::string> texts;
    for (const auto& item : list.items())
        texts.push_back(item.text);
    return texts;
}

} // namespace

void HeadlessDisplay::fail(const std::string& why) {
    failure_ = why;
    throw Over{};
}

void HeadlessDisplay::showModal(ui::Form& form) {
    desktop_.runModal(form, [&]() -> ui::Event {
        if (next_ == steps_.size()) {
            if (desktop_.windows().size() > 1) fail("the scenario leaves " + form.name() + " open");
            throw Over{};
        }
        const Step& step = steps_[next_++];
        try {
            perform(step);
        } catch (const ScenarioError& error) {
            fail(error.what());
        }
        return ui::ScrollEvent{};
    });
}

ui::Answer HeadlessDisplay::messageBox(const std::string& text, int, const std::string&) {
    if (next_ == steps_.size() || steps_[next_].verb != "answer") fail("unexpected message: " + text);
    const Step& step = steps_[next_++];
    if (text.find(step.word(1)) == std::string::npos) fail("expected \"" + step.word(1) + "\", not: " + text);
    return answerOf(step);
}

std::optional<std::string> HeadlessDisplay::openFile(const std::string& title, const std::string&) {
    fail("unexpected file dialog: " + title);
}

void HeadlessDisplay::presentFile(const std::string& name, const std::string&) {
    file_ = name;
}

void HeadlessDisplay::report(const std::exception& error) {
    if (errors_ == nullptr) fail(error.what());
    errors_->report(error);
}

void HeadlessDisplay::perform(const Step& step) {
    static const std::map<std::string, std::function<void(HeadlessDisplay&, const Step&)>> verbs{
        {"window",
         [](HeadlessDisplay& display, const Step& s) {
             const std::string& name = display.user_.window().name();
             if (name != s.word(0)) throw ScenarioError{s, "the topmost window is " + name};
         }},
        {"type",
         [](HeadlessDisplay& display, const Step& s) {
             if (s.quoted(0)) return display.user_.type(s.word(0));
             display.user_.focus(s.word(0));
             if (display.user_.focused() != s.word(0)) throw ScenarioError{s, "it does not get the focus"};
             display.user_.type(s.word(0), s.word(1));
         }},
        {"key",
         [](HeadlessDisplay& display, const Step& s) {
             for (const auto& word : s.words) {
                 const ui::KeyDown key = keyOf(s, word.text);
                 if (key.alt) {
                     display.desktop_.dispatch(ui::AccessKeyEvent{static_cast<char32_t>(key.key)});
                 } else if (key.key == ui::Key::ctrl) {
                     display.user_.ctrl();
                 } else if (key.ctrl && key.key == ui::Key{'C'}) {
                     display.clipboard_ = display.user_.copied(display.user_.focused(), key.shift);
                 } else {
                     display.user_.key(key);
                     if (key.key == ui::Key::space) display.desktop_.dispatch(ui::KeyPressEvent{U' '});
                 }
             }
         }},
        {"click", [](HeadlessDisplay& display, const Step& s) { display.click(s); }},
        {"select", [](HeadlessDisplay& display, const Step& s) { display.select(s); }},
        {"doubleClick",
         [](HeadlessDisplay& display, const Step& s) {
             display.selectRow(s);
             display.user_.doubleClick(s.word(0));
         }},
        {"paste",
         [](HeadlessDisplay& display, const Step& s) {
             display.user_.focus(s.word(0));
             if (auto* box = ui::as<ui::TextBox>(&display.user_.control<ui::Control>(s.word(0))))
                 box->selectAll();
             display.user_.paste(s.word(0), s.word(1));
         }},
        {"expect", [](HeadlessDisplay& display, const Step& s) { display.expect(s); }},
        {"answer",
         [](HeadlessDisplay&, const Step& s) {
             throw ScenarioError{s, "there is no message"};
         }},
        {"colleague", [](HeadlessDisplay& display, const Step& s) { display.colleague_.execute(s.word(0)); }},
        {"close", [](HeadlessDisplay& display, const Step&) { display.user_.close(); }},
    };
    const auto verb = verbs.find(step.verb);
    if (verb == verbs.end()) throw ScenarioError{step, "there is no such verb"};
    verb->second(*this, step);
}

void HeadlessDisplay::click(const Step& step) {
    if (step.word(0) == "status") return user_.pressStatus();
    auto& control = user_.control<ui::Control>(step.word(0));
    if (!control.usable()) throw ScenarioError{step, "it cannot be used"};
    const Kind kind = control.kind();
    if (kind == Kind::upDown) {
        desktop_.dispatch(ui::StepEvent{&control, step.word(1) == "up"});
    } else if (kind == Kind::button || kind == Kind::checkBox) {
        user_.click(step.word(0));
    } else {
        user_.focus(step.word(0));
    }
}

void HeadlessDisplay::select(const Step& step) {
    if (!step.quoted(1)) return selectRow(step);
    const int index = placeOf(step.word(1), textsOf(user_.control<ui::ItemList>(step.word(0))));
    if (index < 0) throw ScenarioError{step, "there is no such choice"};
    user_.select(step.word(0), index);
}

void HeadlessDisplay::selectRow(const Step& step) {
    const int row = step.number(1) - 1;
    if (row >= static_cast<int>(user_.grid(step.word(0)).rows().size()))
        throw ScenarioError{step, "there is no such row"};
    user_.select(step.word(0), row);
}

std::string HeadlessDisplay::shown(const Step& step, ui::Control& control) {
    switch (control.kind()) {
    case Kind::textBox:
        return dynamic_cast<ui::TextBox&>(control).text();
    case Kind::label:
        return ui::plainCaption(dynamic_cast<ui::Label&>(control).caption());
    case Kind::checkBox:
        return dynamic_cast<ui::CheckBox&>(control).checked() ? "ja" : "nein";
    case Kind::comboBox:
    case Kind::listBox:
        return dynamic_cast<ui::ItemList&>(control).selectedText();
    default:
        throw ScenarioError{step, "it has no text"};
    }
}

void HeadlessDisplay::expect(const Step& step) {
    if (step.word(0) == "focus") {
        if (user_.focused() != step.word(1)) throw ScenarioError{step, "the focus is on " + user_.focused()};
        return;
    }
    if (step.word(0) == "status" || step.word(0) == "error") {
        const std::string text =
            step.word(0) == "status" ? user_.window().status().text() : user_.error(step.word(1));
        if (text != step.words.back().text) throw ScenarioError{step, "it says \"" + text + "\""};
        return;
    }
    if (step.word(0) == "clipboard") {
        const std::string text = base::replaceAll(clipboard_, "\r\n", "\n");
        if (text != step.word(1)) throw ScenarioError{step, "it holds \"" + text + "\""};
        return;
    }
    if (step.word(0) == "file") {
        if (file_.find(step.word(1)) == std::string::npos)
            throw ScenarioError{step, "it is \"" + file_ + "\""};
        return;
    }
    auto& control = user_.control<ui::Control>(step.word(0));
    if (control.kind() != Kind::grid) {
        const std::string text = shown(step, control);
        if (text != step.word(1)) throw ScenarioError{step, "it shows \"" + text + "\""};
        return;
    }
    const auto& rows = user_.grid(step.word(0)).rows();
    const auto row = static_cast<std::size_t>(step.number(1));
    if (row > rows.size()) throw ScenarioError{step, "there is no such row"};
    for (std::size_t i = 2; i < step.words.size(); ++i) {
        if (placeOf(step.word(i), rows[row - 1]) < 0)
            throw ScenarioError{step, "no cell of the row is \"" + step.word(i) + "\""};
    }
}

} // namespace tellurix::tests
