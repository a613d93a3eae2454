#pragma once

#include "module/base/database.h"
#include "tests/scenarios/Scenario.h"
#include "tests/support/ScriptedDisplay.h"

#include <vector>

namespace tellurix::tests {

/// A display that shows nothing: its user is a scenario. A window or a message that opens in the
/// middle of a step gets the steps that follow, so the steps stand one behind the other in the file
/// as they do for a user who sees a screen.
class HeadlessDisplay final : public ui::Display, ui::ErrorHandling {
public:
    /// Thrown out of the first window when the scenario is over. No std::exception, as it is no error
    /// of the screen.
    struct Over {};

    /// @param colleague a connection of somebody else's to the same database
    HeadlessDisplay(std::vector<Step> steps, base::Connection& colleague)
        : steps_(std::move(steps)), colleague_(colleague) {}

    /// Where the errors of events go; without one they end the scenario.
    void setErrorHandling(ui::ErrorHandling* errors) { errors_ = errors; }

    /// What went wrong; empty as long as all goes as the scenario says.
    const std::string& failure() const { return failure_; }

    void showModal(ui::Form& form) override;
    ui::Answer messageBox(const std::string& text, int flags, const std::string& title) override;
    std::optional<std::string> openFile(const std::string& title, const std::string& filter) override;
    void presentFile(const std::string& name, const std::string& content) override;
    void setBusy(bool) override {}
    void refresh() override {}

private:
    void report(const std::exception& error) override;
    void perform(const Step& step);
    void click(const Step& step);
    void select(const Step& step);
    void selectRow(const Step& step);
    void expect(const Step& step);
    std::string shown(const Step& step, ui::Control& control);
    /// Ends the scenario from wherever it is.
    [[noreturn]] void fail(const std::string& why);

    std::vector<Step> steps_;
    base::Connection& colleague_;
    std::size_t next_ = 0;
    std::string failure_;
    std::string clipboard_;
    std::string file_; ///< the last one that was made for the user
    ui::ErrorHandling* errors_ = nullptr;
    ui::Desktop desktop_{*this, *this};
    User user_{desktop_};
};

} // namespace tellurix::tests
