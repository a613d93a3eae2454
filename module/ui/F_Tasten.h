#pragma once

#include "module/base/own_text.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"

namespace tellurix::ui {

/// Shows which keys do what in a window. The list is made from the window's controls, as they are seen at
/// the moment.
class F_Tasten final : public Form {
public:
    explicit F_Tasten(const Form& window);

private:
    void add(base::OwnText text, const std::vector<std::string>& values = {});
    void addControl(const Control& control);
    void addGrids(const std::vector<const Grid*>& grids);

    std::vector<Grid::Row> rows_;

    Grid grdTasten{*this, "grdTasten", 18};
    Button btnSchliessen{*this, "btnSchliessen"};
};

} // namespace tellurix::ui
