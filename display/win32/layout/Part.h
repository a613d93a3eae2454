#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/Layout.h"

#include <memory>
#include <vector>

namespace tellurix::windows {

/// A node of a form's layout tree on its way to pixels: it is asked what room it needs, and then told
/// where it stands. What is not shown at the moment takes no room.
class Part {
public:
    virtual ~Part() = default;
    /// Something of it is shown.
    virtual bool present() const = 0;
    virtual Room room() const = 0;
    virtual void place(const RECT& rect) = 0;
    /// Takes what room is left over in its row or column.
    virtual bool grows() const { return grows_; }
    /// Fills the height of its row, or the width of its column, although it does not grow: borders
    /// beside each other end together.
    virtual bool fills() const { return true; }

    /// Width of the labels that its fields begin with, and how wide they are made to stand in line with those
    /// of other groups.
    virtual int labelWidth() const { return 0; }
    virtual void setLabelWidth(int /*width*/) {}

    void setGrowing(bool grows) { grows_ = grows; }
    /// Space before it in a row, beside the usual gap.
    void setLeading(int pixels) { leading_ = pixels; }
    int leading() const { return leading_; }

private:
    bool grows_ = false;
    int leading_ = 0;
};

using Parts = std::vector<std::unique_ptr<Part>>;

/// One of several parts that share a length.
struct Share {
    Extent extent;
    bool grows = false;
};

/// Divides a length among parts: what is left over goes to those that grow; what is missing is taken
/// from each in proportion to what it can give.
std::vector<int> divide(int length, const std::vector<Share>& shares);

/// The layout tree of a form as parts over its views.
std::unique_ptr<Part> makePart(const ui::Layout& layout, ViewHost& host);
Parts makeParts(const std::vector<ui::Layout>& layouts, ViewHost& host);

/// A field, or a table of them, labels and boxes in line (see FieldTable.cpp).
std::unique_ptr<Part> makeFieldTable(const ui::Layout& layout, ViewHost& host);
/// A table of cells (see CellTable.cpp).
std::unique_ptr<Part> makeTable(const ui::Layout& layout, ViewHost& host);

} // namespace tellurix::windows
