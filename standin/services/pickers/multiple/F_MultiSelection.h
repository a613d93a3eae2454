#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/TextSorting.h"
#include "standin/services/AskingForm.h"

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Lets the user mark rows of a long list. The search box narrows it by words in any column; Enter goes
/// from there to the list, where Space marks a row, typing searches again, and Enter takes the marks over.
class F_MultiSelection final : public AskingForm {
public:
    struct Entry {
        std::int64_t key;
        ui::Grid::Row cells;
    };
    struct List {
        std::vector<ui::Grid::Column> columns; ///< their widths follow from the entries
        std::vector<Entry> entries;
    };
    /// How the form says how many there are; the values stand for "{}".
    struct Words {
        std::string count;      ///< marked entries, found ones, all
        std::string none;       ///< instead, when nothing is found: marked entries
        std::string notOffered; ///< behind it, where marked entries are not in the list: how many
    };

    /// The marked entries come first, each part in the order of the list. A mark that is not in the list
    /// stays.
    F_MultiSelection(ui::Display& display, std::string title, List list, Words words,
                     const std::vector<std::int64_t>& marked);

    /// The marked keys in the order in which the user read them, nothing when the user cancelled.
    const std::optional<std::vector<std::int64_t>>& chosen() const { return chosen_; }

private:
    bool changed() const override { return marked_ != before_; }
    void arrange();
    void fit(std::vector<ui::Grid::Column> columns);
    void narrow();
    void showCount();
    void searchOn(char32_t character);
    void toggle();
    void markFound(bool marked);
    void drawMark(std::size_t shown);
    void takeOver();

    const Entry& entryIn(std::size_t row) const {
        return entries_[shown_[sorting_.originOf(static_cast<int>(row))]];
    }
    bool isMarked(std::int64_t key) const { return marked_.contains(key); }
    const char* tickBox(std::int64_t key) const {
        return isMarked(key) ? ui::Grid::ticked : ui::Grid::unticked;
    }

    std::vector<Entry> entries_;
    std::vector<std::string> searchTexts_; ///< beside the entries
    std::vector<std::size_t> shown_;       ///< the entries that were found, in the order of the list
    Words words_;
    std::set<std::int64_t> marked_;
    std::set<std::int64_t> before_;        ///< that were marked at the start
    std::vector<std::int64_t> notOffered_; ///< marked from the start, without an entry
    std::optional<std::vector<std::int64_t>> chosen_;

    ui::Label lblSearch{*this, "lblSearch", "S&uche"};
    ui::TextBox txtSearch{*this, "txtSearch", 40};
    ui::CheckBox chkMarked{*this, "chkMarked", "Nur &gewählte zeigen"};
    ui::Grid grdList{*this, "grdList", 16};
    ui::TextSorting sorting_{grdList, base::Locale::german()};
    ui::Label lblCount{*this, "lblCount"};
    ui::Button btnMarkFound{*this, "btnMarkFound", "Alle Treffer &wählen"};
    ui::Button btnUnmarkFound{*this, "btnUnmarkFound", "Alle Treffer a&bwählen"};
    ui::Button btnOk{*this, "btnOk", "&Übernehmen"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
};

} // namespace tellurix::standin
