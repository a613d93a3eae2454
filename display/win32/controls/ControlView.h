#pragma once

#include "display/win32/DisplayState.h"
#include "display/win32/controls/ErrorSign.h"
#include "display/win32/native/Theme.h"
#include "module/ui/controls/Control.h"
#include "module/ui/input/events.h"

#include <commctrl.h>
#include <windows.h>

#include <exception>
#include <optional>

namespace tellurix::windows {

class ControlView;

/// What a view needs of the window that it stands in.
class ViewHost {
public:
    virtual HWND window() const = 0;
    virtual const Theme& theme() const = 0;
    virtual const DisplayState& display() const = 0;
    /// The user did something. Nothing is done yet: the event waits for the loop of the display, so
    /// that no handler of a screen ever runs inside a window procedure.
    virtual void happened(ui::Event event) = 0;
    /// The view of that control.
    virtual ControlView& viewOf(const ui::Control& control) = 0;
    /// Whether the control that the form gives the focus is this one.
    virtual bool isFocused(const ControlView& view) const = 0;
    /// Deals with a message for a view if it is the keyboard's. @return false when the native control gets it
    virtual bool keyboard(ControlView& view, UINT message, WPARAM wParam, LPARAM lParam) = 0;
    /// What the view needs of room changed, or whether it is seen.
    virtual void roomChanged() = 0;
    /// A text that is shown while the pointer rests over a window.
    virtual void setToolTip(HWND over, const std::string& text) = 0;
    /// Something went wrong inside a window procedure; the loop of the display deals with it.
    virtual void failed(std::exception_ptr error) = 0;

protected:
    ~ViewHost() = default;
};

/// How much room something needs at least, and how much it would like to have.
struct Extent {
    int minimum = 0;
    int preferred = 0;

    static Extent fixed(int length) { return {length, length}; }
    Extent operator+(const Extent& other) const {
        return {minimum + other.minimum, preferred + other.preferred};
    }
    bool operator==(const Extent&) const = default;
};

struct Room {
    Extent width;
    Extent height;
    bool operator==(const Room&) const = default;
};

/// One control on the screen: a native window, whose messages it translates into events.
class ControlView {
public:
    ControlView(ViewHost& host, ui::Control& control)
        : host_(host), control_(control), error_(host.theme(), host.window()) {}
    virtual ~ControlView();
    ControlView(const ControlView&) = delete;
    ControlView& operator=(const ControlView&) = delete;

    ui::Control& control() const { return control_; }
    HWND handle() const { return handle_; }
    /// Whether a window is the native control, or a part of the view beside it.
    virtual bool has(HWND window) const { return window == handle_ || error_.has(window); }

    /// The room that it needs, as of its last drawing.
    const Room& room() const { return room_; }
    /// Whether it takes all the width that there is: what shows much at once.
    virtual bool fills() const { return false; }
    /// Between its edges and what stands inside of it, as it is now.
    virtual RECT padding() const { return {}; }
    /// Puts it somewhere, with its error beside it; in coordinates of the window's client area.
    void place(const RECT& rect);
    /// Puts it over a cell of a table. Its error stands below the cell, or above it where the table ends.
    /// @param cell what is seen of it: empty when it is scrolled away
    void placeOver(const RECT& cell, const RECT& table);
    const RECT& rect() const { return rect_; }
    /// The frame or tab page around it: decides about its background.
    void setOnPage(bool onPage) { onPage_ = onPage; }
    HBRUSH background() const;

    /// Shows the control as it is now, if it changed or the user changed the native one.
    void update();
    /// The native control shows something that the form may not agree to.
    void markStale() { stale_ = true; }

    /// A list hangs open over the window and gets all keys.
    virtual bool hasOpenList() const { return false; }
    /// Takes the item that an open list stands on, and closes it.
    virtual void closeList() {}
    /// The selection in a box, when the form does not know it yet.
    virtual std::optional<ui::Event> newSelection() { return std::nullopt; }
    /// How wide the current column of a grid is shown, in average characters; 0 for all other controls.
    virtual int columnWidth() const { return 0; }
    /// The native control has got the focus on behalf of the form.
    virtual void focusPlaced() {}

    /// WM_COMMAND and WM_NOTIFY of the native control.
    virtual void notified(UINT /*code*/, NMHDR* /*details*/) {}
    /// WM_COMMAND of a part beside it.
    virtual void partNotified(UINT /*code*/) {}
    /// WM_CTLCOLOR… of one of its windows: sets up the device context. @return the background
    virtual HBRUSH colourOf(HWND window, HDC dc) const;

protected:
    /// Makes the native window. It goes by `destroy`, or along with the window that it stands in.
    void create(const wchar_t* windowClass, DWORD style, DWORD extendedStyle = 0);
    void destroy();
    /// Makes a native window that belongs to this view beside the main one.
    HWND createPart(const wchar_t* windowClass, DWORD style, DWORD extendedStyle, const std::wstring& text);
    virtual Room measure() const = 0;
    virtual void placeControl(const RECT& rect);
    virtual HBRUSH colour(HDC dc) const;
    /// Frames the control as one with an error, or takes that away; one that has an error stays framed.
    void setFlashing(bool flashing);
    /// What is shown while the pointer rests over it; a warning before anything else.
    virtual std::string tip() const {
        return control_.warning().empty() ? control_.toolTip() : control_.warning();
    }
    /// Shows what is particular to this kind of control.
    virtual void draw() = 0;
    /// Nothing has been drawn so far: everything has to be, not only what changed in the form.
    bool isNew() const { return new_; }
    /// A message for the native window.
    virtual LRESULT onMessage(UINT message, WPARAM wParam, LPARAM lParam);
    /// Lets the native control deal with a message.
    LRESULT native(UINT message, WPARAM wParam, LPARAM lParam);

    ViewHost& host() const { return host_; }
    const Theme& theme() const { return host_.theme(); }
    /// The user did something with this control.
    void tell(ui::Event event);
    /// Makes the native windows seen and usable, or not.
    virtual void enable(bool visible, bool enabled);
    static void enable(HWND window, bool visible, bool enabled);
    /// Sets the native window's text if it is another one.
    void showText(const std::wstring& text);
    static void move(HWND window, const RECT& rect);
    bool isAt(const RECT& rect) const { return EqualRect(&rect, &rect_) != FALSE; }
    /// For controls whose native window is larger than what is seen of it.
    void rememberPlace(const RECT& rect) { rect_ = rect; }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT dispatch(UINT message, WPARAM wParam, LPARAM lParam);
    /// Pressing the mouse gives native controls the focus. Whether the form agrees is known from the
    /// event that the press causes, or, where it causes none, from a focus event of its own.
    LRESULT pressed(UINT message, WPARAM wParam, LPARAM lParam);

    void drawError();
    void placeErrorAtCell();
    void showErrorSign();
    /// Draws the frame of a control with an error over its own.
    void frameError() const;
    /// As `measure`, with what stands beside it.
    Room measureWithError() const;

    ViewHost& host_;
    ui::Control& control_;
    ErrorSign error_;
    HWND handle_ = nullptr;
    WNDPROC nativeProcedure_ = nullptr;
    RECT rect_{};
    std::optional<RECT> table_; ///< in which it stands over a cell
    Room room_;
    bool shown_ = false; ///< of the control alone, whatever is around it
    bool onPage_ = false;
    bool flashing_ = false;
    bool new_ = true;
    bool stale_ = false;
    bool pressing_ = false;
    bool told_ = false; ///< since the mouse was pressed
};

} // namespace tellurix::windows
