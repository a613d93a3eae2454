#include "screens/Boxes.h"
#include "screens/Part.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

using ui::Layout;

/// Fields in a table of columns, labels and boxes aligned, filled by rows. A row that begins with a
/// field is a field with something behind it; what is no field takes the place of label and box.
class FieldTable final : public Part {
public:
    FieldTable(const Layout& layout, ViewHost& host)
        : columns_(static_cast<std::size_t>(layout.columns)),
          gap_(host.theme().gap()),
          columnGap_(host.theme().scaled(14)) {
        for (const Layout& child : layout.children)
            cells_.push_back(cellOf(child, host));
    }

    bool present() const override { return !shown().empty(); }

    Room room() const override {
        const auto cells = shown();
        Room sum;
        for (const Share& share : columnShares(cells))
            sum.width = sum.width + share.extent;
        sum.width = sum.width + Extent::fixed(gapsAcross(cells));
        for (const Share& share : rowShares(cells))
            sum.height = sum.height + share.extent;
        sum.height = sum.height + Extent::fixed(gap_ * (static_cast<int>(rowsOf(cells)) - 1));
        return sum;
    }

    void place(const RECT& rect) override {
        const auto cells = shown();
        const std::vector<int> widths = divide(widthOf(rect) - gapsAcross(cells), columnShares(cells));
        const std::vector<int> heights =
            divide(heightOf(rect) - gap_ * (static_cast<int>(rowsOf(cells)) - 1), rowShares(cells));
        int y = rect.top;
        for (std::size_t row = 0; row < heights.size(); ++row) {
            int x = rect.left;
            for (std::size_t column = 0; column < columns_ && row * columns_ + column < cells.size();
                 ++column) {
                const int label = widths[2 * column];
                const int content = widths[2 * column + 1];
                cells[row * columns_ + column]->place(x, y, label, content, heights[row], gap_);
                x += label + gap_ + content + columnGap_;
            }
            y += heights[row] + gap_;
        }
    }

    bool fills() const override {
        return std::ranges::any_of(shown(), [](const Cell* cell) { return cell->content->grows(); });
    }

private:
    struct Cell {
        std::unique_ptr<Part> label; ///< null for what is no field
        std::unique_ptr<Part> content;

        bool present() const { return (label != nullptr && label->present()) || content->present(); }
        void place(int x, int y, int labelWidth, int contentWidth, int height, int gap) const {
            int left = x;
            if (label != nullptr) {
                label->place({x, y, x + labelWidth, y + label->room().height.preferred});
                left = x + labelWidth + gap;
            }
            const int room = x + labelWidth + gap + contentWidth - left;
            const Extent wanted = content->room().width;
            const int width = content->grows() || content->fills() ? room : std::min(wanted.preferred, room);
            if (content->present()) content->place({left, y, left + width, y + height});
        }
    };
    using Cells = std::vector<const Cell*>;

    static Cell cellOf(const Layout& node, ViewHost& host) {
        const bool isRow = node.kind == Layout::Kind::row && !node.children.empty();
        const Layout& field = isRow ? node.children.front() : node;
        if (field.kind != Layout::Kind::field) return {nullptr, makePart(node, host)};
        Parts content = makeParts(field.children, host);
        if (isRow) {
            Parts rest = makeParts({node.children.begin() + 1, node.children.end()}, host);
            std::ranges::move(rest, std::back_inserter(content));
        }
        if (node.grows || field.grows) {
            for (const auto& part : content)
                part->setGrowing(true);
        }
        auto row = std::make_unique<RowPart>(std::move(content), host.theme().scaled(4));
        row->setGrowing(node.grows || field.grows);
        return {std::make_unique<ControlPart>(host.viewOf(*field.control)), std::move(row)};
    }

    Cells shown() const {
        Cells cells;
        for (const Cell& cell : cells_)
            if (cell.present()) cells.push_back(&cell);
        return cells;
    }

    std::size_t rowsOf(const Cells& cells) const { return (cells.size() + columns_ - 1) / columns_; }

    int gapsAcross(const Cells& cells) const {
        const int used = static_cast<int>(std::min(columns_, cells.size()));
        return used * gap_ + std::max(used - 1, 0) * columnGap_;
    }

    /// Two shares a column: labels and contents.
    std::vector<Share> columnShares(const Cells& cells) const {
        std::vector<Share> shares(2 * columns_);
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (cells[i]->label == nullptr) continue;
            Share& label = shares[2 * (i % columns_)];
            Share& content = shares[2 * (i % columns_) + 1];
            widen(label.extent, cells[i]->label->room().width);
            widen(content.extent, cells[i]->content->room().width);
            content.grows = content.grows || cells[i]->content->grows();
        }
        for (std::size_t i = 0; i < cells.size(); ++i) {
            if (cells[i]->label != nullptr) continue;
            const Extent label = shares[2 * (i % columns_)].extent;
            Extent rest = cells[i]->content->room().width;
            rest.minimum -= label.minimum + gap_;
            rest.preferred -= label.preferred + gap_;
            widen(shares[2 * (i % columns_) + 1].extent, rest);
        }
        return shares;
    }

    std::vector<Share> rowShares(const Cells& cells) const {
        std::vector<Share> shares(rowsOf(cells));
        for (std::size_t i = 0; i < cells.size(); ++i) {
            Share& share = shares[i / columns_];
            if (cells[i]->label != nullptr) widen(share.extent, cells[i]->label->room().height);
            widen(share.extent, cells[i]->content->room().height);
        }
        return shares;
    }

    static void widen(Extent& extent, const Extent& by) {
        extent.minimum = std::max(extent.minimum, by.minimum);
        extent.preferred = std::max(extent.preferred, by.preferred);
    }

    std::vector<Cell> cells_;
    std::size_t columns_;
    int gap_;
    int columnGap_;
};

} // namespace

std::unique_ptr<Part> makeFieldTable(const Layout& layout, ViewHost& host) {
    return std::make_unique<FieldTable>(layout, host);
}

} // namespace tellurix::windows
