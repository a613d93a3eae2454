#pragma once

#include "module/ui/Display.h"

namespace tellurix::browser {

/// For screens that are only looked at.
class NoDisplay final : public ui::Display {
public:
    void showModal(ui::Form&) override {}
    ui::Answer messageBox(const std::string&, int, const std::string&) override { return ui::Answer::ok; }
    std::optional<std::string> openFile(const std::string&, const std::string&) override {
        return std::nullopt;
    }
    void presentFile(const std::string&, const std::string&) override {}
    void setBusy(bool) override {}
    void refresh() override {}
};

} // namespace tellurix::browser
