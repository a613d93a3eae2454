#pragma once

#include "display/win32/layout/Part.h"

namespace tellurix::windows {

/// One control.
class ControlPart final : public Part {
public:
    explicit ControlPart(ControlView& view) : view_(view) {}

    bool present() const override { return view_.control().visible(); }
    Room room() const override { return view_.room(); }
    void place(const RECT& rect) override { view_.place(rect); }
    bool fills() const override { return view_.fills(); }

private:
    ControlView& view_;
};

/// Parts side by side. Those that neither grow nor fill keep their height.
class RowPart final : public Part {
public:
    RowPart(Parts children, int gap) : children_(std::move(children)), gap_(gap) {}

    bool present() const override;
    Room room() const override;
    void place(const RECT& rect) override;
    bool fills() const override;

private:
    Parts children_;
    int gap_;
};

/// Groups of buttons side by side, the last of them at the far end.
class BarPart final : public Part {
public:
    BarPart(Parts groups, int gap) : groups_(std::move(groups)), gap_(gap) {}

    bool present() const override;
    Room room() const override;
    void place(const RECT& rect) override;

private:
    Parts groups_;
    int gap_;
};

/// Parts one below the other. Those that neither grow nor fill keep their width.
class ColumnPart : public Part {
public:
    ColumnPart(Parts children, int gap) : children_(std::move(children)), gap_(gap) {}

    bool present() const override;
    Room room() const override;
    void place(const RECT& rect) override;
    int labelWidth() const override;
    void setLabelWidth(int width) override;

protected:
    const Parts& children() const { return children_; }

private:
    Parts children_;
    int gap_;
};

/// A column of groups, whose labels share one width.
class GroupsPart final : public ColumnPart {
public:
    using ColumnPart::ColumnPart;

    Room room() const override;
    void place(const RECT& rect) override;
    bool fills() const override { return false; }
};

/// A column inside the border of a frame, or the pages behind a row of tabs.
class ContainerPart final : public Part {
public:
    ContainerPart(ControlView& view, Parts pages) : view_(view), pages_(std::move(pages)) {}

    bool present() const override { return view_.control().visible(); }
    Room room() const override;
    void place(const RECT& rect) override;
    int labelWidth() const override;
    void setLabelWidth(int width) override;

private:
    ControlView& view_;
    Parts pages_;
};

} // namespace tellurix::windows
