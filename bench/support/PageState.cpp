#include "bench/support/PageState.h"

#include <nlohmann/json.hpp>

#include <stdexcept>

namespace tellurix::bench {

namespace {

PageState::Window windowOf(const nlohmann::json& drawing) {
    PageState::Window window{drawing.at("id"), drawing.at("form"), {}};
    for (const auto& control : drawing.at("controls"))
        window.controls[control.at("name")] = control.at("id");
    return window;
}

} // namespace

void PageState::apply(const nlohmann::json& drawing) {
    if (drawing.contains("complete")) windows_.clear();
    if (const auto closed = drawing.find("closed"); closed != drawing.end()) {
        for (const int id : *closed)
            std::erase_if(windows_, [id](const Window& window) { return window.id == id; });
    }
    if (const auto opened = drawing.find("opened"); opened != drawing.end()) {
        for (const auto& window : *opened)
            windows_.push_back(windowOf(window));
    }
    if (const auto box = drawing.find("box"); box != drawing.end()) {
        box_.reset();
        if (!box->is_null()) box_ = {box->at("id"), box->at("text")};
    }
}

const PageState::Window& PageState::top(const std::string& form) const {
    if (box_) throw std::runtime_error{form + " has a message in front of it: " + box_->text};
    if (windows_.empty() || windows_.back().form != form) {
        throw std::runtime_error{form + " is not in front, but " +
                                 (windows_.empty() ? std::string{"nothing"} : windows_.back().form)};
    }
    return windows_.back();
}

} // namespace tellurix::bench
