#include "tests/support/ScriptedDisplay.h"

#include "module/base/text.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/ItemList.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/grid_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace tellurix::tests {

namespace {

/// Ends the test from inside a window. No std::exception, so that no event loop takes it for an
/// error of the screen.
struct ScriptFailed {};

[[noreturn]] void fail(const std::string& why) {
    ADD_FAILURE() << why;
    throw ScriptFailed{};
}

} // namespace

ui::Form& User::window() {
    if (desktop_.top() == nullptr) fail("no window is open");
    return *desktop_.top();
}

ui::Control& User::find(std::string_view name) {
    ui::Control* control = window().find(name);
    if (control == nullptr) fail(window().name() + " has no control " + std::string{name});
    return *control;
}

void User::type(std::string_view control, std::string_view text) {
    focus(control);
    auto& box = this->control<ui::TextBox>(control);
    if (window().focused() != &box) return;
    box.selectAll();
    if (text.empty()) key(ui::Key::del);
    type(text);
}

void User::type(std::string_view text) {
    for (const char32_t character : base::decodeUtf8(text)) {
        const char32_t capital = base::toUpper(character);
        const bool named = (capital >= U'A' && capital <= U'Z') || (capital >= U'0' && capital <= U'9');
        desktop_.dispatch(ui::KeyDownEvent{{.key = named ? static_cast<ui::Key>(capital) : ui::Key::none}});
        desktop_.dispatch(ui::KeyPressEvent{character});
    }
}

void User::key(ui::Key key, bool shift) {
    desktop_.dispatch(ui::KeyDownEvent{{.key = key, .shift = shift}});
    // The only one of the named keys that is a character, too.
    if (key == ui::Key::space) desktop_.dispatch(ui::KeyPressEvent{U' '});
}

void User::ctrl() {
    desktop_.dispatch(ui::PickKeyEvent{});
}

void User::alt(char32_t letter) {
    desktop_.dispatch(ui::AccessKeyEvent{letter});
}

void User::click(std::string_view control) {
    desktop_.dispatch(ui::ClickEvent{&find(control)});
}

void User::focus(std::string_view control) {
    desktop_.dispatch(ui::FocusEvent{&find(control)});
}

void User::replaceText(std::string_view control, std::string_view text) {
    focus(control);
    this->control<ui::TextBox>(control).setText(std::string{text} + "?");
    key(ui::Key::backspace);
}

void User::paste(std::string_view control, std::string_view text) {
    desktop_.dispatch(ui::PasteEvent{&find(control), std::string{text}});
}

std::string User::copied(std::string_view control, bool withHeadings) {
    return ui::copiedCells(grid(control), withHeadings);
}

void User::select(std::string_view control, int index, int column, bool extends) {
    desktop_.dispatch(ui::SelectEvent{&find(control), index, column, extends});
}

void User::doubleClick(std::string_view control) {
    desktop_.dispatch(ui::DoubleClickEvent{&find(control)});
}

void User::clickHeading(std::string_view control, int column) {
    desktop_.dispatch(ui::HeadingEvent{&find(control), column});
}

void User::scroll(std::string_view control) {
    desktop_.dispatch(ui::ScrollEvent{&find(control)});
}

void User::pause() {
    while (desktop_.doLater()) {
    }
}

void User::close() {
    desktop_.dispatch(ui::CloseEvent{});
}

std::string User::focused() {
    const ui::Control* focused = window().focused();
    return focused == nullptr ? std::string{} : focused->name();
}

std::string User::text(std::string_view control) {
    return this->control<ui::TextBox>(control).text();
}

std::string User::tag(std::string_view control) {
    return this->control<ui::TextBox>(control).tag();
}

std::string User::caption(std::string_view control) {
    return this->control<ui::Label>(control).caption();
}

bool User::checked(std::string_view control) {
    return this->control<ui::CheckBox>(control).checked();
}

std::string User::error(std::string_view control) {
    return find(control).error();
}

std::string User::refusal(std::string_view control) {
    return this->control<ui::TextBox>(control).refusal();
}

void User::ctrl(char letter) {
    desktop_.dispatch(ui::KeyDownEvent{{.key = static_cast<ui::Key>(letter), .ctrl = true}});
}

std::string User::status() {
    const ui::StatusLine& line = window().status();
    return line.action().empty() ? line.text() : line.text() + "|" + line.action();
}

void User::pressStatus() {
    if (window().status().action().empty()) fail("the status line offers nothing");
    desktop_.dispatch(ui::StatusActionEvent{});
}

bool User::usable(std::string_view control) {
    return find(control).usable();
}

ui::Grid& User::grid(std::string_view control) {
    return this->control<ui::Grid>(control);
}

std::string User::bars(std::string_view control) {
    const auto& chart = this->control<ui::Chart>(control);
    std::string text;
    for (int i = 0; i < static_cast<int>(chart.bars().size()); ++i) {
        const ui::Chart::Bar& bar = chart.bars()[static_cast<std::size_t>(i)];
        const std::string words = bar.name + ":" + bar.text + (bar.empty() ? "!" : "");
        text += (i == 0 ? "" : " ") + (i == chart.marked() ? "[" + words + "]" : words);
    }
    return text;
}

std::string User::items(std::string_view control) {
    std::string lines;
    for (const auto& item : this->control<ui::ItemList>(control).items())
        lines += item.text + "\n";
    return lines;
}

ScriptedDisplay::~ScriptedDisplay() {
    expectNothingMore();
    EXPECT_EQ(busy_, 0) << "the hourglass was left on";
}

void ScriptedDisplay::expectNothingMore() const {
    for (const Expected& window : memory_.windows)
        ADD_FAILURE() << "the window " << window.form << " was never shown";
    for (const Reply& reply : memory_.replies)
        ADD_FAILURE() << "the message \"" << reply.containing << "\" was never shown";
    for (const FileChoice& choice : memory_.fileChoices)
        ADD_FAILURE() << "the file dialog " << choice.title << " was never shown";
}

void ScriptedDisplay::aside(const std::function<void()>& work) {
    Memory waiting = std::exchange(memory_, {});
    work();
    expectNothingMore();
    memory_ = std::move(waiting);
}

void ScriptedDisplay::onWindow(std::string form, Script script) {
    memory_.windows.push_back({std::move(form), std::move(script)});
}

void ScriptedDisplay::onMessage(std::string containing, ui::Answer answer, std::string title) {
    memory_.replies.push_back({std::move(containing), answer, std::move(title)});
}

void ScriptedDisplay::onOpenFile(std::string title, std::optional<std::string> path) {
    memory_.fileChoices.push_back({std::move(title), std::move(path)});
}

void ScriptedDisplay::showModal(ui::Form& form) {
    if (memory_.windows.empty()) fail("unexpected window " + form.name());
    const Expected expected = std::move(memory_.windows.front());
    memory_.windows.pop_front();
    if (expected.form != form.name()) fail("expected the window " + expected.form + ", got " + form.name());
    desktop_.runModal(form, [&]() -> ui::Event {
        User user{desktop_};
        expected.script(user);
        if (form.loaded()) fail("the script left the window " + form.name() + " open");
        return ui::ScrollEvent{};
    });
}

ui::Answer ScriptedDisplay::messageBox(const std::string& text, int flags, const std::string& title) {
    memory_.messages.push_back({text, flags, title});
    if (memory_.replies.empty()) fail("unexpected message: " + text);
    const Reply reply = std::move(memory_.replies.front());
    memory_.replies.pop_front();
    if (reply.containing.empty()) return reply.answer;
    EXPECT_NE(text.find(reply.containing), std::string::npos) << "the message was: " << text;
    EXPECT_EQ(title, reply.title) << text;
    const bool asks = ui::box::buttonsOf(flags) != ui::box::ok;
    EXPECT_EQ(reply.answer != ui::Answer::ok, asks) << "the buttons of: " << text;
    return reply.answer;
}

std::optional<std::string> ScriptedDisplay::openFile(const std::string& title, const std::string&) {
    if (memory_.fileChoices.empty()) fail("unexpected file dialog: " + title);
    const FileChoice choice = std::move(memory_.fileChoices.front());
    memory_.fileChoices.pop_front();
    EXPECT_EQ(choice.title, title);
    return choice.path;
}

void ScriptedDisplay::presentFile(const std::string& name, const std::string& content) {
    memory_.files.push_back({name, content});
}

void ScriptedDisplay::setBusy(bool busy) {
    busy_ += busy ? 1 : -1;
}

void ScriptedDisplay::report(const std::exception& error) {
    if (handling_ != nullptr) return handling_->report(error);
    memory_.errors.emplace_back(error.what());
}

} // namespace tellurix::tests
