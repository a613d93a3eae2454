#include "display/win32/controls/TabsView.h"

#include "com/automation/wide.h"
#include "module/base/text.h"
#include "module/ui/controls/caption.h"

namespace tellurix::windows {

TabsView::TabsView(ViewHost& host, ui::Tabs& tabs) : ControlView(host, tabs), tabs_(tabs) {
    create(WC_TABCONTROLW, WS_TABSTOP);
}

RECT TabsView::padding() const {
    RECT page{0, 0, 1000, 1000};
    SendMessageW(handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
    const int inside = theme().scaled(8);
    return {page.left + inside, page.top + inside, 1000 - page.right + inside, 1000 - page.bottom + inside};
}

Room TabsView::measure() const {
    int width = theme().scaled(8);
    for (const std::string& caption : tabs_.captions())
        width += theme().textSize(ui::plainCaption(caption), false).cx + theme().scaled(16);
    const RECT space = padding();
    return {Extent::fixed(width), Extent::fixed(space.top + space.bottom)};
}

void TabsView::draw() {
    if (shown_ != tabs_.captions()) {
        shown_ = tabs_.captions();
        SendMessageW(handle(), TCM_DELETEALLITEMS, 0, 0);
        WPARAM index = 0;
        for (const std::string& caption : shown_) {
            std::wstring text = widen(base::replaceAll(ui::plainCaption(caption), "&", "&&"));
            TCITEMW item{};
            item.mask = TCIF_TEXT;
            item.pszText = text.data();
            SendMessageW(handle(), TCM_INSERTITEMW, index++, reinterpret_cast<LPARAM>(&item));
        }
    }
    SendMessageW(handle(), TCM_SETCURSEL, static_cast<WPARAM>(tabs_.selected()), 0);
}

void TabsView::notified(UINT code, NMHDR*) {
    if (code != static_cast<UINT>(TCN_SELCHANGE)) return;
    markStale();
    tell(ui::SelectEvent{&tabs_, static_cast<int>(SendMessageW(handle(), TCM_GETCURSEL, 0, 0)), 0});
}

LRESULT TabsView::onMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    const LRESULT result = native(message, wParam, lParam);
    if (message == WM_PAINT) {
        // One colour for the whole page, the same that the controls on it have behind their texts.
        RECT page{};
        GetClientRect(handle(), &page);
        SendMessageW(handle(), TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
        HDC dc = GetDC(handle());
        FillRect(dc, &page, theme().pageBrush());
        ReleaseDC(handle(), dc);
    }
    return result;
}

} // namespace tellurix::windows
