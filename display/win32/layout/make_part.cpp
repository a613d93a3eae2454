#include "display/win32/layout/Boxes.h"
#include "display/win32/layout/Part.h"

namespace tellurix::windows {

namespace {

using ui::Layout;

std::unique_ptr<Part> makeRow(const Layout& layout, ViewHost& host) {
    Parts parts = makeParts(layout.children, host);
    // A label stands closer to its own box than to the box before it.
    for (std::size_t i = 1; i < parts.size(); ++i)
        if (layout.children[i].kind == Layout::Kind::field) parts[i]->setLeading(host.theme().gap());
    return std::make_unique<RowPart>(std::move(parts), host.theme().gap());
}

/// A list takes what width is left over, unless its details do.
std::unique_ptr<Part> makeSides(const Layout& layout, ViewHost& host) {
    Parts parts = makeParts(layout.children, host);
    if (!layout.children.back().grows) parts.front()->setGrowing(true);
    return std::make_unique<RowPart>(std::move(parts), host.theme().gap());
}

/// The buttons; those that lead elsewhere stand apart, and what closes the window at the far end.
std::unique_ptr<Part> makeBar(const Layout& layout, ViewHost& host) {
    Parts parts = makeParts(layout.children, host);
    for (std::size_t i = 1; i < parts.size(); ++i)
        parts[i]->setLeading(host.theme().groupGap());
    return std::make_unique<BarPart>(std::move(parts), host.theme().gap());
}

/// A grid and the sums below it.
std::unique_ptr<Part> makeSums(const Layout& layout, ViewHost& host) {
    Parts parts;
    parts.push_back(std::make_unique<ControlPart>(host.viewOf(*layout.control)));
    parts.front()->setGrowing(true);
    parts.push_back(makePart(layout.children.front(), host));
    return std::make_unique<ColumnPart>(std::move(parts), host.theme().gap());
}

std::unique_ptr<Part> makeFrame(const Layout& layout, ViewHost& host) {
    Parts content;
    content.push_back(std::make_unique<ColumnPart>(makeParts(layout.children, host), host.theme().gap()));
    return std::make_unique<ContainerPart>(host.viewOf(*layout.control), std::move(content));
}

std::unique_ptr<Part> makeTabs(const Layout& layout, ViewHost& host) {
    return std::make_unique<ContainerPart>(host.viewOf(*layout.control), makeParts(layout.children, host));
}

std::unique_ptr<Part> make(const Layout& layout, ViewHost& host) {
    switch (layout.kind) {
    case Layout::Kind::control:
        return std::make_unique<ControlPart>(host.viewOf(*layout.control));
    case Layout::Kind::row:
    case Layout::Kind::filters:
        return makeRow(layout, host);
    case Layout::Kind::field:
    case Layout::Kind::fields:
        return makeFieldTable(layout, host);
    case Layout::Kind::table:
        return makeTable(layout, host);
    case Layout::Kind::sides:
        return makeSides(layout, host);
    case Layout::Kind::bar:
        return makeBar(layout, host);
    case Layout::Kind::sums:
        return makeSums(layout, host);
    case Layout::Kind::frame:
    case Layout::Kind::section:
        return makeFrame(layout, host);
    case Layout::Kind::tabs:
        return makeTabs(layout, host);
    case Layout::Kind::groups:
        return std::make_unique<GroupsPart>(makeParts(layout.children, host), host.theme().gap());
    case Layout::Kind::column:
        break;
    }
    return std::make_unique<ColumnPart>(makeParts(layout.children, host), host.theme().gap());
}

} // namespace

std::unique_ptr<Part> makePart(const Layout& layout, ViewHost& host) {
    auto part = make(layout, host);
    part->setGrowing(layout.grows);
    return part;
}

Parts makeParts(const std::vector<Layout>& layouts, ViewHost& host) {
    Parts parts;
    for (const Layout& layout : layouts)
        parts.push_back(makePart(layout, host));
    return parts;
}

} // namespace tellurix::windows
