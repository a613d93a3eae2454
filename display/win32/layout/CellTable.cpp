#include "display/win32/layout/Part.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

/// Cells in columns, filled by rows. An empty cell keeps its place.
class CellTable final : public Part {
public:
    CellTable(const ui::Layout& layout, ViewHost& host)
        : columns_(static_cast<std::size_t>(layout.columns)),
          gap_(host.theme().gap()),
          cells_(makeParts(layout.children, host)) {}

    bool present() const override {
        return std::ranges::any_of(cells_, [](const auto& cell) { return cell->present(); });
    }

    Room room() const override {
        Room sum{Extent::fixed(gaps(columns_)), Extent::fixed(gaps(rows()))};
        for (const Share& share : shares(columns_, &Room::width))
            sum.width = sum.width + share.extent;
        for (const Share& share : shares(rows(), &Room::height))
            sum.height = sum.height + share.extent;
        return sum;
    }

    void place(const RECT& rect) override {
        const auto widths = divide(widthOf(rect) - gaps(columns_), shares(columns_, &Room::width));
        const auto heights = divide(heightOf(rect) - gaps(rows()), shares(rows(), &Room::height));
        int y = rect.top;
        for (std::size_t row = 0; row < heights.size(); ++row) {
            int x = rect.left;
            for (std::size_t column = 0; column < columns_; ++column) {
                const std::size_t cell = row * columns_ + column;
                if (cell < cells_.size() && cells_[cell]->present()) {
                    const Room wanted = cells_[cell]->room();
                    const int width = std::min(wanted.width.preferred, widths[column]);
                    const int height = std::min(wanted.height.preferred, heights[row]);
                    cells_[cell]->place({x, y, x + width, y + height});
                }
                x += widths[column] + gap_;
            }
            y += heights[row] + gap_;
        }
    }

    bool fills() const override { return false; }

private:
    std::size_t rows() const { return (cells_.size() + columns_ - 1) / columns_; }
    int gaps(std::size_t count) const { return gap_ * std::max(static_cast<int>(count) - 1, 0); }

    /// What each column wants of the width, or each row of the height.
    std::vector<Share> shares(std::size_t count, Extent Room::*along) const {
        std::vector<Share> shares(count);
        for (std::size_t cell = 0; cell < cells_.size(); ++cell) {
            if (!cells_[cell]->present()) continue;
            Extent& extent = shares[along == &Room::width ? cell % columns_ : cell / columns_].extent;
            const Extent wanted = cells_[cell]->room().*along;
            extent = {std::max(extent.minimum, wanted.minimum), std::max(extent.preferred, wanted.preferred)};
        }
        return shares;
    }

    std::size_t columns_;
    int gap_;
    Parts cells_;
};

} // namespace

std::unique_ptr<Part> makeTable(const ui::Layout& layout, ViewHost& host) {
    return std::make_unique<CellTable>(layout, host);
}

} // namespace tellurix::windows
