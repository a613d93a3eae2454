#include "display/browser/session/BrowserDisplay.h"

#include "display/browser/session/drawing.h"
#include "display/browser/session/page_event.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <sstream>
#include <utility>

namespace tellurix::browser {

using nlohmann::json;

namespace {

/// The endings in a filter such as "PDF file (*.pdf)|*.pdf|Alle Dateien (*.*)|*.*", without that for all.
std::vector<std::string> endingsIn(const std::string& filter) {
    std::vector<std::string> endings;
    std::istringstream parts{filter};
    std::string name;
    std::string patterns;
    while (std::getline(parts, name, '|') && std::getline(parts, patterns, '|')) {
        std::istringstream each{patterns};
        for (std::string pattern; std::getline(each, pattern, ';');) {
            if (!pattern.starts_with("*.") || pattern == "*.*") continue;
            if (std::ranges::find(endings, pattern.substr(1)) == endings.end())
                endings.push_back(pattern.substr(1));
        }
    }
    return endings;
}

} // namespace

BrowserDisplay::BrowserDisplay(PageChannel& page) : page_(page) {}

void BrowserDisplay::setLanguage(std::string language) {
    if (language == language_) return;
    language_ = std::move(language);
    languageDrawn_ = false;
}

void BrowserDisplay::showModal(ui::Form& form) {
    struct Shown {
        // A window that opens in the middle of a long operation is not busy itself.
        Shown(BrowserDisplay& display, ui::Form& form)
            : display_(display), busyBelow_(std::exchange(display.busy_, false)) {
            display_.windows_.push_back({++display_.lastId_, &form});
        }
        ~Shown() {
            if (display_.windows_.back().drawn) display_.closed_.push_back(display_.windows_.back().id);
            display_.windows_.pop_back();
            display_.busy_ = busyBelow_;
        }
        Shown(const Shown&) = delete;
        Shown& operator=(const Shown&) = delete;
        BrowserDisplay& display_;
        bool busyBelow_;
    } shown{*this, form};
    desktop_.runModal(form, [this] { return nextEvent(); });
}

ui::Event BrowserDisplay::nextEvent() {
    for (;;) {
        do
            draw(true);
        while (!page_.waiting() && desktop_.doLater());
        const PageMessage message = receive();
        const Window& top = windows_.back();
        if (message.window != top.id) continue;
        if (auto event = toEvent(message, *top.form)) return *event;
    }
}

class BrowserDisplay::Asking {
public:
    Asking(BrowserDisplay& display, Question question) : display_(display) {
        display_.question_ = std::move(question);
        display_.questionDrawn_ = false;
    }
    ~Asking() {
        display_.question_.reset();
        display_.questionDrawn_ = false;
    }
    Asking(const Asking&) = delete;
    Asking& operator=(const Asking&) = delete;

private:
    BrowserDisplay& display_;
};

ui::Answer BrowserDisplay::messageBox(const std::string& text, int flags, const std::string& title) {
    const Asking asking{*this, {++lastId_, text, flags, title}};
    const std::vector<ui::Answer> answers = answersOf(flags);
    for (;;) {
        const PageMessage message = wait();
        if (message.kind != PageMessage::Kind::answer || message.window != question_->id) continue;
        const auto answer = static_cast<ui::Answer>(message.answer);
        if (std::ranges::find(answers, answer) != answers.end()) return answer;
    }
}

std::optional<std::string> BrowserDisplay::openFile(const std::string& title, const std::string& filter) {
    const int id = ++lastId_;
    const Asking asking{*this,
                        {id,
                         language_ == "en" ? "Choose a file of your computer, of 32 MB at most."
                                           : "Wählen Sie eine Datei Ihres Rechners, höchstens 32 MB groß.",
                         ui::box::okCancel, title, endingsIn(filter)}};
    struct Awaiting {
        Awaiting(SessionFiles& files, int id) : files(files) { files.await(id); }
        ~Awaiting() { files.await(0); }
        Awaiting(const Awaiting&) = delete;
        Awaiting& operator=(const Awaiting&) = delete;
        SessionFiles& files;
    } const awaiting{page_.files(), id};
    for (;;) {
        const PageMessage message = wait();
        if (message.window != id) continue;
        if (message.kind == PageMessage::Kind::answer) return std::nullopt;
        if (message.kind != PageMessage::Kind::file) continue;
        if (auto path = awaiting.files.take(id, message.text)) return path;
    }
}

void BrowserDisplay::presentFile(const std::string& name, const std::string& content) {
    page_.files().offer(name, content); // and told with the next drawing
}

void BrowserDisplay::setBusy(bool busy) {
    busy_ = busy;
    // The end of being busy shows with the next drawing; the hourglass is for the time until then.
    if (busy) draw(false);
}

void BrowserDisplay::refresh() {
    draw(false);
}

PageMessage BrowserDisplay::wait() {
    draw(true);
    return receive();
}

PageMessage BrowserDisplay::receive() {
    PageMessage message = page_.next();
    handled_ = message.number;
    if (message.kind == PageMessage::Kind::redraw) redraw_ = message;
    return message;
}

void BrowserDisplay::drawWindows(json& message, bool complete) {
    json opened = json::array();
    json changed = json::array();
    const ui::Control* asks = nullptr; // what has the focus in the window below
    for (Window& window : windows_) {
        const ui::Control* below = std::exchange(asks, window.form->focused());
        if (complete || !window.drawn) {
            opened.push_back(drawWindow(window.id, *window.form));
            if (below != nullptr) opened.back()["asks"] = below->id();
            window.hints = ui::keyHints(*window.form);
            opened.back()["hints"] = drawHints(window.hints);
            window.subject = window.form->subject();
            opened.back()["subject"] = window.subject;
            window.drawn = true;
            continue;
        }
        json change = json::object();
        if (window.form->titleDirty()) {
            change["title"] = window.form->title();
            window.form->titleDrawn();
        }
        if (window.form->status().dirty()) change["status"] = drawStatus(window.form->status());
        if (auto hints = ui::keyHints(*window.form); hints != window.hints) {
            change["hints"] = drawHints(hints);
            window.hints = std::move(hints);
        }
        if (std::string subject = window.form->subject(); subject != window.subject) {
            change["subject"] = subject;
            window.subject = std::move(subject);
        }
        if (json controls = drawChanges(*window.form); !controls.empty()) {
            change["controls"] = std::move(controls);
        }
        if (change.empty()) continue;
        change["id"] = window.id;
        changed.push_back(std::move(change));
    }
    if (!opened.empty()) message["opened"] = std::move(opened);
    if (!changed.empty()) message["changed"] = std::move(changed);
    if (!closed_.empty()) message["closed"] = std::exchange(closed_, {});
}

void BrowserDisplay::drawOffers(json& message, bool complete) {
    json offers = json::array();
    for (const auto& [id, name] : page_.files().waiting()) {
        // One that the page was told of while it was interrupted is told again.
        if (!complete && id <= lastOffer_) continue;
        offers.push_back({{"id", id}, {"name", name}});
        lastOffer_ = std::max(lastOffer_, id);
    }
    if (!offers.empty()) message["files"] = std::move(offers);
}

void BrowserDisplay::draw(bool acknowledge) {
    const bool complete = acknowledge && redraw_.has_value();
    json message = json::object();
    drawWindows(message, complete);
    drawOffers(message, complete);
    if (complete || !questionDrawn_) {
        message["box"] = question_ ? drawMessageBox(question_->id, question_->text, question_->flags,
                                                    question_->title, language_)
                                   : json();
        if (question_ && question_->fileEndings) {
            message["box"]["buttons"][0]["caption"] =
                language_ == "en" ? "&Choose a file …" : "Datei &wählen …";
            message["box"]["file"] = {{"endings", *question_->fileEndings},
                                      {"bytes", SessionFiles::mostBytes}};
        }
        questionDrawn_ = true;
    }
    if (complete || busy_ != busyDrawn_) {
        message["busy"] = busy_;
        busyDrawn_ = busy_;
    }
    if (complete || !languageDrawn_) {
        message["language"] = language_;
        languageDrawn_ = true;
    }
    if (message.empty() && (!acknowledge || acknowledged_ == handled_)) return;
    if (!windows_.empty()) {
        const Window& top = windows_.back();
        message["focus"] = {{"window", top.id}};
        if (const ui::Control* focused = top.form->focused(); focused != nullptr && focused->usable()) {
            message["focus"]["control"] = focused->id();
        }
    }
    if (acknowledge) {
        message["ack"] = handled_;
        acknowledged_ = handled_;
    }
    if (complete) {
        message["complete"] = true;
        page_.sendComplete(toText(message), *redraw_);
        redraw_.reset();
    } else {
        page_.send(toText(message));
    }
}

} // namespace tellurix::browser
