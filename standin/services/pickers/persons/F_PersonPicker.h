#pragma once

#include "module/parts/grids/KeyedGrid.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Lets the user search and choose a person by number, name or town. Every key narrows the list.
class F_PersonPicker final : public ui::Form {
public:
    /// What a search answers: the first persons in the order of their short names.
    struct Found {
        std::vector<parts::KeyedRow> rows; ///< of PERSONAL, by `ID_PERSONAL`
        std::string count;                 ///< how many were found, to be shown
    };
    using Search = std::function<Found(const std::string& typed)>;

    static constexpr std::int32_t nobody = 0;

    /// @param search answers for what stands in the search box; empty text for all persons
    /// @param start what stands in the search box at first; @param found what `search` answered for it
    /// @param current the person that the list starts on
    F_PersonPicker(std::string title, Search search, const std::string& start, Found found,
                   std::int32_t current);

    /// The chosen person, `nobody` for "Keine Auswahl", nothing when the user cancelled.
    const std::optional<std::int32_t>& chosen() const { return chosen_; }

private:
    void arrange();
    void narrow();
    void show(Found found);
    void choose();
    void answer(std::int64_t person);

    Search search_;
    std::optional<std::int32_t> chosen_;

    ui::Label lblSearch{*this, "lblSearch", "&Suche"};
    ui::TextBox txtSearch{*this, "txtSearch", 40};
    ui::Grid grdPersons{*this, "grdPersons", 14};
    ui::Label lblCount{*this, "lblCount"};
    ui::Button btnOk{*this, "btnOk", "Ü&bernehmen"};
    ui::Button btnNone{*this, "btnNone", "&Keine Auswahl"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};

    parts::KeyedGrid persons_{grdPersons};
};

} // namespace tellurix::standin
