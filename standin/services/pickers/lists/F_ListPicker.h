#pragma once

#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/TextSorting.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Lets the user choose one entry of a list. What is typed narrows the list to the entries that have
/// all of its words somewhere in their columns.
class F_ListPicker final : public ui::Form {
public:
    struct List {
        std::vector<std::string> headings;
        std::vector<ui::Grid::Row> entries;
    };
    /// How the number of entries is told: with one "{}", and, when not all can be shown, with two.
    struct CountTexts {
        std::string all;
        std::string some;
    };
    /// How many entries are shown at once; more can be reached by narrowing.
    static constexpr std::size_t shownAtMost = 500;

    /// @param current the text so far: the list starts on it, or narrowed by it when it is only a
    ///        part of an entry
    F_ListPicker(std::string title, List list, CountTexts countTexts, const std::string& current);

    /// The chosen entry, nothing when the user cancelled.
    const std::optional<ui::Grid::Row>& chosen() const { return chosen_; }

private:
    void startOn(const std::string& current);
    void narrow();
    void choose();

    List list_;
    std::vector<std::string> searchTexts_; ///< of each entry, in capitals
    CountTexts countTexts_;
    std::optional<ui::Grid::Row> chosen_;

    ui::Label lblFilter{*this, "lblFilter", "&Filter"};
    ui::TextBox txtFilter{*this, "txtFilter", 40};
    ui::Grid grdList{*this, "grdList", 14};
    ui::TextSorting sorting_{grdList, base::Locale::german()};
    ui::Label lblCount{*this, "lblCount"};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
};

} // namespace tellurix::standin
