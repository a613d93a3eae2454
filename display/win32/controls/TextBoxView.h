#pragma once

#include "display/win32/controls/ControlView.h"
#include "display/win32/controls/TypingHint.h"
#include "module/ui/controls/TextBox.h"

namespace tellurix::windows {

/// A box to type into, with the small button beside it when it has a picker. The native control edits
/// the text, unless a filter or a key handler of the form has to see each character first.
class TextBoxView final : public ControlView {
public:
    TextBoxView(ViewHost& host, ui::TextBox& box);

    bool has(HWND window) const override;
    Room measure() const override;
    void placeControl(const RECT& rect) override;
    std::optional<ui::Event> newSelection() override;
    void notified(UINT code, NMHDR* details) override;
    void partNotified(UINT code) override;
    HBRUSH colour(HDC dc) const override;
    HBRUSH colourOf(HWND window, HDC dc) const override;

private:
    struct Selection {
        int start = 0;
        int length = 0;
        bool operator==(const Selection&) const = default;
    };

    void make();
    DWORD wantedStyle() const;
    void draw() override;
    void drawPick();
    void drawRefusal();
    void showSelection();
    void enable(bool visible, bool enabled) override;
    LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam) override;
    void edited();
    void paste();
    Selection selection() const;
    bool severalLines() const { return box_.lines() > 1; }

    ui::TextBox& box_;
    HWND pick_ = nullptr;
    TypingHint hint_;
    int refusals_ = 0; ///< as they were counted when the box was drawn last
    DWORD style_ = 0;
    Selection known_; ///< as the form knows it
};

} // namespace tellurix::windows
