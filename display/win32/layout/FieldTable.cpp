#include "display/win32/controls/LabelView.h"
#include "display/win32/layout/Boxes.h"
#include "display/win32/layout/Part.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

using ui::Layout;

/// A field, or fields in a table of columns, labels and boxes aligned, filled by rows; a growing one has a
/// row of its own. A row that begins with a field is a field with something behind it; what is no field takes
/// the place of label and box.
class FieldTable final : public Part {
public:
    FieldTable(const Layout& layout, ViewHost& host)
        : columns_(static_cast<std::size_t>(layout.columns)),
          gap_(host.theme().gap()),
          columnGap_(host.theme().scaled(14)) {
        if (layout.kind == Layout::Kind::field) {
            cells_.push_back(cellOf(layout, host));
            return;
        }
        for (const Layout& child : layout.children)
            cells_.push_back(cellOf(child, host));
    }

    bool present() const override { return !rows().empty(); }

    Room room() const override {
        const Rows shown = rows();
        Room sum;
        for (const Share& share : columnShares(shown))
            sum.width = sum.width + share.extent;
        sum.width = sum.width + Extent::fixed(gapsAcross(shown));
        for (const auto& row : shown)
            if (row.front()->grows()) widen(sum.width, row.front()->width(gap_));
        for (const Share& share : rowShares(shown))
            sum.height = sum.height + share.extent;
        sum.height = sum.height + Extent::fixed(gapsDown(shown));
        return sum;
    }

    void place(const RECT& rect) override {
        const Rows shown = rows();
        const std::vector<int> widths = divide(widthOf(rect) - gapsAcross(shown), columnShares(shown));
        const std::vector<int> heights = divide(heightOf(rect) - gapsDown(shown), rowShares(shown));
        int y = rect.top;
        for (std::size_t row = 0; row < shown.size(); ++row) {
            int x = rect.left;
            for (std::size_t column = 0; column < shown[row].size(); ++column) {
                const Cell& cell = *shown[row][column];
                const int label = widths[2 * column];
                const int content = cell.grows() ? rect.right - x - label - gap_ : widths[2 * column + 1];
                cell.place(x, y, label, content, heights[row], gap_);
                x += label + gap_ + content + columnGap_;
            }
            y += heights[row] + gap_;
        }
    }

    bool fills() const override {
        return std::ranges::any_of(cells_, [](const Cell& cell) {
            return cell.present() && (cell.grows() || cell.content->fills());
        });
    }

    int labelWidth() const override {
        int width = 0;
        for (const auto& row : rows())
            if (row.front()->label != nullptr)
                width = std::max(width, row.front()->label->room().width.preferred);
        return width;
    }

    void setLabelWidth(int width) override { labelWidth_ = width; }

private:
    struct Cell {
        std::unique_ptr<Part> label; ///< null for what is no field
        std::unique_ptr<Part> content;

        bool grows() const { return content->grows(); }
        Extent width(int gap) const {
            const Extent box = content->room().width;
            return label != nullptr ? label->room().width + Extent::fixed(gap) + box : box;
        }
        bool present() const { return (label != nullptr && label->present()) || content->present(); }
        void place(int x, int y, int labelWidth, int contentWidth, int height, int gap) const {
            int left = x;
            if (label != nullptr) {
                label->place({x, y, x + labelWidth, y + label->room().height.preferred});
                left = x + labelWidth + gap;
            }
            const int room = x + labelWidth + gap + contentWidth - left;
            const Extent wanted = content->room().width;
            const int width = grows() || content->fills() ? room : std::min(wanted.preferred, room);
            if (content->present()) content->place({left, y, left + width, y + height});
        }
    };
    using Rows = std::vector<std::vector<const Cell*>>;

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
        auto& label = static_cast<LabelView&>(host.viewOf(*field.control));
        label.setBeforeBox();
        return {std::make_unique<ControlPart>(label), std::move(row)};
    }

    /// What is shown at the moment, row by row.
    Rows rows() const {
        Rows rows;
        bool full = true;
        for (const Cell& cell : cells_) {
            if (!cell.present()) continue;
            if (full || cell.grows()) rows.emplace_back();
            rows.back().push_back(&cell);
            full = cell.grows() || rows.back().size() == columns_;
        }
        return rows;
    }

    int gapsAcross(const Rows& rows) const {
        std::size_t used = 0;
        for (const auto& row : rows)
            used = std::max(used, row.size());
        const int columns = static_cast<int>(used);
        return columns * gap_ + std::max(columns - 1, 0) * columnGap_;
    }

    int gapsDown(const Rows& rows) const { return gap_ * (static_cast<int>(rows.size()) - 1); }

    /// Two shares a column: labels and contents. A growing content takes what the others leave it.
    std::vector<Share> columnShares(const Rows& rows) const {
        std::vector<Share> shares(2 * columns_);
        shares.front().extent = Extent::fixed(labelWidth_);
        for (const auto& row : rows) {
            for (std::size_t column = 0; column < row.size(); ++column) {
                const Cell& cell = *row[column];
                if (cell.label == nullptr) continue;
                widen(shares[2 * column].extent, cell.label->room().width);
                if (!cell.grows()) widen(shares[2 * column + 1].extent, cell.content->room().width);
            }
        }
        for (const auto& row : rows) {
            for (std::size_t column = 0; column < row.size(); ++column) {
                if (row[column]->label != nullptr) continue;
                const Extent label = shares[2 * column].extent;
                Extent rest = row[column]->content->room().width;
                rest.minimum -= label.minimum + gap_;
                rest.preferred -= label.preferred + gap_;
                widen(shares[2 * column + 1].extent, rest);
            }
        }
        return shares;
    }

    std::vector<Share> rowShares(const Rows& rows) const {
        std::vector<Share> shares;
        for (const auto& row : rows) {
            Share& share = shares.emplace_back();
            for (const Cell* cell : row) {
                if (cell->label != nullptr) widen(share.extent, cell->label->room().height);
                widen(share.extent, cell->content->room().height);
            }
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
    int labelWidth_ = 0; ///< that of the groups which it stands among
};

} // namespace

std::unique_ptr<Part> makeFieldTable(const Layout& layout, ViewHost& host) {
    return std::make_unique<FieldTable>(layout, host);
}

} // namespace tellurix::windows
