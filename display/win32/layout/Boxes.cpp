#include "display/win32/layout/Boxes.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

Extent larger(const Extent& a, const Extent& b) {
    return {std::max(a.minimum, b.minimum), std::max(a.preferred, b.preferred)};
}

bool anyPresent(const Parts& parts) {
    return std::ranges::any_of(parts, [](const auto& part) { return part->present(); });
}

int widestLabel(const Parts& parts) {
    int width = 0;
    for (const auto& part : parts)
        width = std::max(width, part->labelWidth());
    return width;
}

/// Length of the gaps between the parts that are shown.
int gapsBetween(const Parts& parts, int gap) {
    int sum = -gap;
    for (const auto& part : parts)
        if (part->present()) sum += gap + part->leading();
    return std::max(sum, 0);
}

/// Adds up the parts along one direction and takes the largest across.
Room roomOf(const Parts& parts, int gap, Extent Room::*along, Extent Room::*across) {
    Room sum;
    sum.*along = Extent::fixed(gapsBetween(parts, gap));
    for (const auto& part : parts) {
        if (!part->present()) continue;
        const Room room = part->room();
        sum.*along = sum.*along + room.*along;
        sum.*across = larger(sum.*across, room.*across);
    }
    return sum;
}

/// The lengths of the parts along one direction, 0 for those that are not shown.
std::vector<int> lengthsOf(const Parts& parts, int length, int gap, Extent Room::*along) {
    std::vector<Share> shares;
    for (const auto& part : parts) {
        shares.push_back(part->present() ? Share{part->room().*along, part->grows()} : Share{});
    }
    return divide(length - gapsBetween(parts, gap), shares);
}

} // namespace

std::vector<int> divide(int length, const std::vector<Share>& shares) {
    int preferred = 0;
    int canGive = 0;
    int growing = 0;
    for (const Share& share : shares) {
        preferred += share.extent.preferred;
        canGive += share.extent.preferred - share.extent.minimum;
        growing += share.grows ? 1 : 0;
    }
    int spare = std::max(length - preferred, 0);
    int missing = std::clamp(preferred - length, 0, canGive);
    std::vector<int> lengths;
    for (const Share& share : shares) {
        int own = share.extent.preferred;
        if (share.grows && spare > 0) {
            own += spare / growing;
            spare -= spare / growing--;
        }
        if (missing > 0) {
            // Rounding gives each its part of what is still missing, so that nothing is left over.
            const int gives = share.extent.preferred - share.extent.minimum;
            const int given = canGive > 0 ? MulDiv(missing, gives, canGive) : 0;
            own -= given;
            missing -= given;
            canGive -= gives;
        }
        lengths.push_back(own);
    }
    return lengths;
}

bool RowPart::present() const {
    return anyPresent(children_);
}

Room RowPart::room() const {
    return roomOf(children_, gap_, &Room::width, &Room::height);
}

bool RowPart::fills() const {
    return std::ranges::any_of(children_, [](const auto& part) { return part->present() && part->fills(); });
}

void RowPart::place(const RECT& rect) {
    const std::vector<int> widths = lengthsOf(children_, widthOf(rect), gap_, &Room::width);
    int x = rect.left;
    for (std::size_t i = 0; i < children_.size(); ++i) {
        Part& part = *children_[i];
        if (!part.present()) continue;
        const bool whole = part.grows() || part.fills();
        const int height = whole ? heightOf(rect) : std::min(part.room().height.preferred, heightOf(rect));
        x += part.leading();
        part.place({x, rect.top, x + widths[i], rect.top + height});
        x += widths[i] + gap_;
    }
}

bool BarPart::present() const {
    return anyPresent(groups_);
}

Room BarPart::room() const {
    return roomOf(groups_, gap_, &Room::width, &Room::height);
}

void BarPart::place(const RECT& rect) {
    const std::vector<int> widths = lengthsOf(groups_, widthOf(rect), gap_, &Room::width);
    int x = rect.left;
    for (std::size_t i = 0; i < groups_.size(); ++i) {
        Part& group = *groups_[i];
        if (!group.present()) continue;
        x += x > rect.left ? group.leading() : 0;
        if (&group == groups_.back().get()) x = std::max<int>(x, rect.right - widths[i]);
        group.place({x, rect.top, x + widths[i], rect.bottom});
        x += widths[i] + gap_;
    }
}

bool ColumnPart::present() const {
    return anyPresent(children_);
}

Room ColumnPart::room() const {
    return roomOf(children_, gap_, &Room::height, &Room::width);
}

void ColumnPart::place(const RECT& rect) {
    const std::vector<int> heights = lengthsOf(children_, heightOf(rect), gap_, &Room::height);
    int y = rect.top;
    for (std::size_t i = 0; i < children_.size(); ++i) {
        Part& part = *children_[i];
        if (!part.present()) continue;
        const bool whole = part.grows() || part.fills();
        const int width = whole ? widthOf(rect) : std::min(part.room().width.preferred, widthOf(rect));
        part.place({rect.left, y, rect.left + width, y + heights[i]});
        y += heights[i] + gap_;
    }
}

int ColumnPart::labelWidth() const {
    return widestLabel(children_);
}

void ColumnPart::setLabelWidth(int width) {
    for (const auto& part : children_)
        part->setLabelWidth(width);
}

Room GroupsPart::room() const {
    // Which fields are shown changes from one moment to the next, and the widest label with them.
    const int widest = labelWidth();
    for (const auto& part : children())
        part->setLabelWidth(widest);
    return ColumnPart::room();
}

void GroupsPart::place(const RECT& rect) {
    setLabelWidth(labelWidth());
    ColumnPart::place(rect);
}

int ContainerPart::labelWidth() const {
    return present() ? widestLabel(pages_) : 0;
}

void ContainerPart::setLabelWidth(int width) {
    for (const auto& page : pages_)
        page->setLabelWidth(width);
}

Room ContainerPart::room() const {
    Room inside;
    for (const auto& page : pages_) {
        if (!page->present()) continue;
        const Room room = page->room();
        inside = {larger(inside.width, room.width), larger(inside.height, room.height)};
    }
    const RECT padding = view_.padding();
    const Extent sides = Extent::fixed(padding.left + padding.right);
    const Extent ends = Extent::fixed(padding.top + padding.bottom);
    // The border's own caption has to fit as well.
    return {larger(inside.width + sides, view_.room().width), inside.height + ends};
}

void ContainerPart::place(const RECT& rect) {
    view_.place(rect);
    const RECT padding = view_.padding();
    const RECT inside{rect.left + padding.left, rect.top + padding.top, rect.right - padding.right,
                      rect.bottom - padding.bottom};
    for (const auto& page : pages_) {
        if (page->present()) page->place(inside);
    }
}

} // namespace tellurix::windows
