#include "bench/support/ScriptedPage.h"

#include <nlohmann/json.hpp>

#include <iostream>
#include <iterator>
#include <stdexcept>

namespace tellurix::bench {

using browser::PageMessage;
using Kind = PageMessage::Kind;

namespace {

Step step(std::string form, std::string control, Kind kind) {
    Step made{std::move(form), std::move(control), {}};
    made.message.kind = kind;
    return made;
}

} // namespace

Step click(std::string form, std::string control) {
    return step(std::move(form), std::move(control), Kind::click);
}

Step focus(std::string form, std::string control) {
    return step(std::move(form), std::move(control), Kind::focus);
}

Step edit(std::string form, std::string control, std::string text) {
    Step made = step(std::move(form), std::move(control), Kind::text);
    made.message.text = std::move(text);
    return made;
}

Step character(std::string form, char32_t typed) {
    Step made = step(std::move(form), {}, Kind::character);
    made.message.character = typed;
    return made;
}

Step pick(std::string form, std::string control) {
    return step(std::move(form), std::move(control), Kind::pick);
}

Step chooseRow(std::string form, std::string grid, int row) {
    Step made = step(std::move(form), std::move(grid), Kind::select);
    made.message.index = row;
    return made;
}

Step closeWindow(std::string form) {
    return step(std::move(form), {}, Kind::close);
}

Step answer(ui::Answer button) {
    Step made = step({}, {}, Kind::answer);
    made.message.answer = static_cast<int>(button);
    return made;
}

void ScriptedPage::play(std::vector<Step> script) {
    script_.assign(std::make_move_iterator(script.begin()), std::make_move_iterator(script.end()));
    drawn_.clear();
}

PageMessage ScriptedPage::next() {
    if (onWait) onWait();
    try {
        if (script_.empty()) throw std::runtime_error{"the script has ended"};
        const Step step = std::move(script_.front());
        script_.pop_front();
        PageMessage message = step.message;
        message.number = ++number_;
        if (message.kind == Kind::answer) {
            if (!state_.box()) throw std::runtime_error{"no message box waits for an answer"};
            message.window = state_.box()->id;
            return message;
        }
        const PageState::Window& window = state_.top(step.form);
        message.window = window.id;
        if (!step.control.empty()) message.control = window.controls.at(step.control);
        return message;
    } catch (const std::exception& error) {
        std::cerr << "Scripted page: " << error.what() << '\n';
        throw browser::SessionEnded{};
    }
}

void ScriptedPage::send(std::string drawing) {
    const Clock::time_point now = Clock::now();
    const auto message = nlohmann::json::parse(drawing);
    state_.apply(message);
    if (const auto opened = message.find("opened"); opened != message.end()) {
        for (const auto& window : *opened)
            drawn_.emplace(window.at("form"), now);
    }
}

void ScriptedPage::sendComplete(std::string drawing, const PageMessage&) {
    send(std::move(drawing));
}

} // namespace tellurix::bench
