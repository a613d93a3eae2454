#pragma once

#include "display/win32/controls/ControlView.h"
#include "module/ui/controls/ListBox.h"

namespace tellurix::windows {

/// What closed and open lists share: the items, and the messages that set them.
class ItemView : public ControlView {
protected:
    struct Messages {
        UINT add, clear, select, selected;
    };
    ItemView(ViewHost& host, ui::ItemList& list, Messages messages)
        : ControlView(host, list), list_(list), messages_(messages) {}

    void draw() override;
    /// The user chose the item that the native control shows.
    void tellSelection();
    ui::ItemList& list() const { return list_; }

private:
    ui::ItemList& list_;
    Messages messages_;
};

/// A drop-down list.
class ComboBoxView final : public ItemView {
public:
    ComboBoxView(ViewHost& host, ui::ItemList& list);

    Room measure() const override;
    void placeControl(const RECT& rect) override;
    bool hasOpenList() const override;
    void closeList() override;
    void notified(UINT code, NMHDR* details) override;

private:
    int borders_;
    bool cancelled_ = false;
};

/// A list that shows several items at once.
class ListBoxView final : public ItemView {
public:
    ListBoxView(ViewHost& host, ui::ListBox& list);

    Room measure() const override;
    void notified(UINT code, NMHDR* details) override;

private:
    ui::ListBox& listBox_;
};

} // namespace tellurix::windows
