#pragma once

#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "standin/services/selection/codes/ChoiceList.h"

#include <optional>

namespace tellurix::standin {

/// Lets the user mark codes of a list; Enter takes them over.
class F_LookupGrid final : public ui::Form {
public:
    F_LookupGrid(std::string title, ChoiceList::Captions captions, std::vector<Choice> choices,
                 std::vector<std::string> chosen, bool several);

    /// The marked codes, nothing when the user cancelled.
    const std::optional<std::vector<std::string>>& chosen() const { return chosen_; }

private:
    void takeOver();

    std::optional<std::vector<std::string>> chosen_;

    ui::Grid grdList{*this, "grdList", 14};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
    ChoiceList list_;
};

} // namespace tellurix::standin
