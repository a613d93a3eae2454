#pragma once

#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/Tabs.h"

#include <vector>

namespace tellurix::ui {

/// What the controls of a screen are to each other, said once and without positions, widths or colours: a
/// tree of rows, columns, labelled fields, groups, a list and its details, the bar of buttons. Every display
/// draws from it what its platform has for that, and the order of the controls in it is the tab order.
///
///     column({sides(section(frmLines, {UpDown1}, {Layout{grdLines}.growing()}),
///                   groups({frame(frmLine, {fields(1, {field(lblPrice, txtPrice)})})}))
///                 .growing(),
///             bar({btnNew, Layout{btnSave}.primary()}, {btnChangeAll}, {btnClose})})
class Layout {
public:
    enum class Kind {
        control, ///< one control
        field,   ///< a label with the control or controls that it names
        row,     ///< side by side
        column,  ///< one below the other
        fields,  ///< fields in a table of `columns` columns, labels and boxes aligned, filled by rows;
                 ///< a growing one has a row of its own
        table,   ///< cells in `columns` columns, filled by rows; the first row are the columns' labels, and
                 ///< the label that a row begins with names its other cells, too
        frame,   ///< a column in a group with the caption of `control`, a Frame
        section, ///< a frame whose first child stands in the line of its caption
        groups,  ///< frames one below the other, whose fields share one column of labels
        sides,   ///< a list, and beside it, or below it where that is too narrow, its current line; one that
                 ///< grows takes the width that is left over
        filters, ///< what says which lines of the list below are shown
        sums,    ///< `control`, a Grid, and below its lines the sums: a row or a frame of rows, whose cells
                 ///< are columns with the number of the grid's column in `columns`
        bar, ///< the buttons of a screen or of a page, at the bottom: three rows, its own ones, those that
             ///< lead elsewhere, and at the far end what closes it
        tabs ///< one child a page of `control`, a Tabs; its bar stands with the screen's
    };

    /// A single control; not explicit, so that a control can stand for itself in a list.
    Layout(Control& control) : kind(Kind::control), control(&control) {}
    Layout(Kind kind, Control* control, std::vector<Layout> children)
        : kind(kind), control(control), children(std::move(children)) {}

    /// The same, taking what room is left over in its row or column.
    Layout growing() && {
        grows = true;
        return std::move(*this);
    }

    /// The same as the way on: what Enter or Ctrl+S does here. It stands out while it can be pressed.
    Layout primary() && {
        leads = true;
        return std::move(*this);
    }

    /// Its control encloses those of its children.
    bool encloses() const { return kind == Kind::frame || kind == Kind::section || kind == Kind::tabs; }

    Kind kind;
    Control* control = nullptr; ///< the control, the field's label, the frame, the grid of sums, or the tabs
    std::vector<Layout> children;
    int columns = 1;
    bool grows = false;
    bool leads = false;
};

inline Layout row(std::vector<Layout> children) {
    return {Layout::Kind::row, nullptr, std::move(children)};
}

inline Layout column(std::vector<Layout> children) {
    return {Layout::Kind::column, nullptr, std::move(children)};
}

/// A label and what it names; more than one control stand side by side.
template <typename... Controls>
Layout field(Label& label, Controls&... controls) {
    return {Layout::Kind::field, &label, {Layout{controls}...}};
}

inline Layout fields(int columns, std::vector<Layout> children) {
    Layout layout{Layout::Kind::fields, nullptr, std::move(children)};
    layout.columns = columns;
    return layout;
}

/// @param cells row by row; an empty `row({})` is an empty cell
inline Layout table(int columns, std::vector<Layout> cells) {
    Layout layout{Layout::Kind::table, nullptr, std::move(cells)};
    layout.columns = columns;
    return layout;
}

inline Layout frame(Frame& frame, std::vector<Layout> children) {
    return {Layout::Kind::frame, &frame, std::move(children)};
}

/// @param heading stands in the line of the caption: mostly what opens the content of the section
inline Layout section(Frame& frame, std::vector<Layout> heading, std::vector<Layout> children) {
    children.insert(children.begin(), row(std::move(heading)));
    return {Layout::Kind::section, &frame, std::move(children)};
}

inline Layout groups(std::vector<Layout> children) {
    return {Layout::Kind::groups, nullptr, std::move(children)};
}

inline Layout sides(Layout list, Layout details) {
    return {Layout::Kind::sides, nullptr, {std::move(list), std::move(details)}};
}

inline Layout filters(std::vector<Layout> children) {
    return {Layout::Kind::filters, nullptr, std::move(children)};
}

/// @param rows a row or a frame of rows, whose cells are made by `under`
inline Layout sums(Grid& grid, Layout rows) {
    return {Layout::Kind::sums, &grid, {std::move(rows)}};
}

/// What stands below a column of the grid; of two labels the first is the caption of the second.
template <typename... Controls>
Layout under(int gridColumn, Controls&... controls) {
    Layout cell = column({Layout{controls}...});
    cell.columns = gridColumn;
    return cell;
}

inline Layout bar(std::vector<Layout> own, std::vector<Layout> elsewhere = {},
                  std::vector<Layout> closing = {}) {
    return {Layout::Kind::bar,
            nullptr,
            {row(std::move(own)), row(std::move(elsewhere)), row(std::move(closing))}};
}

inline Layout tabs(Tabs& tabs, std::vector<Layout> pages) {
    return {Layout::Kind::tabs, &tabs, std::move(pages)};
}

} // namespace tellurix::ui
