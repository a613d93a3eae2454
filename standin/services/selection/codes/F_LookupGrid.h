#pragma once

#include "module/ui/controls/Button.h"
#include "standin/services/AskingForm.h"
#include "standin/services/selection/codes/ChoiceList.h"

#include <optional>

namespace tellurix::standin {

/// Lets the user mark codes of a list; Enter takes them over.
class F_LookupGrid final : public AskingForm {
public:
    F_LookupGrid(ui::Display& display, std::string title, ChoiceList::Captions captions,
                 std::vector<Choice> choices, std::vector<std::string> chosen, bool several);

    /// The marked codes, nothing when the user cancelled.
    const std::optional<std::vector<std::string>>& chosen() const { return chosen_; }

private:
    bool changed() const override { return list_.chosen() != before_; }
    void takeOver();

    std::vector<std::string> before_; ///< that were marked at the start
    std::optional<std::vector<std::string>> chosen_;

    ui::Grid grdList{*this, "grdList", 14};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
    ChoiceList list_;
};

} // namespace tellurix::standin
