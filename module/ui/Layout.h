#pragma once

#include "module/ui/controls/Frame.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/Tabs.h"

#include <vector>

namespace tellurix::ui {

/// How the controls of a screen stand to each other, said once and without positions: a tree of
/// rows, columns, labelled fields, frames and tabs. Every display draws from it, and the order of
/// the controls in it is the tab order.
///
///     column({row({field(lblKunde, txtKunde), KundeButton, btnDeleteMan}),
///             fields(2, {field(lblDate1, txtDate1), field(lblDate2, txtDate2)}),
///             frame(frmTexts, {field(lblText, txtText)}).growing()})
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
        frame,   ///< a column inside the border of `control`, a Frame
        tabs     ///< one child a page of `control`, a Tabs
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

    Kind kind;
    Control* control = nullptr; ///< the control, the field's label, the frame, or the tabs
    std::vector<Layout> children;
    int columns = 1;
    bool grows = false;
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

inline Layout tabs(Tabs& tabs, std::vector<Layout> pages) {
    return {Layout::Kind::tabs, &tabs, std::move(pages)};
}

} // namespace tellurix::ui
