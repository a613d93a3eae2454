#include "tests/support/windows/WindowsUser.h"

#include "com/automation/wide.h"

#include <array>
#include <atomic>
#include <stdexcept>
#include <vector>

namespace tellurix::tests {

using windows::narrow;
using windows::widen;

namespace {

/// A key that no screen knows. When the thread fetches it, all input before it has been dealt with.
constexpr WORD markKey = VK_F24;
/// A key is lost while one window has gone and the next one is not there yet.
constexpr DWORD markAgainAfter = 20;
constexpr int marks = 1000;
/// Tells the marks apart; a keyboard's scan code has seven bits for it.
constexpr WORD markNumbers = 0x7F;
std::atomic<WORD> fetchedMark{0};
/// Lets the grids of this process answer.
constexpr wchar_t driverAtom[] = L"Tellurix.TestDriver";
constexpr wchar_t nameProperty[] = L"Tellurix.Name";

/// Set when a mark has been fetched; it may be one of those that were sent again for the mark before.
HANDLE markFetched() {
    static const HANDLE event = CreateEventW(nullptr, FALSE, FALSE, nullptr);
    return event;
}

LRESULT CALLBACK watch(int code, WPARAM wParam, LPARAM lParam) {
    auto* message = reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && message->wParam == markKey &&
        (message->message == WM_KEYUP || message->message == WM_SYSKEYUP)) {
        message->message = WM_NULL;
        fetchedMark = static_cast<WORD>((message->lParam >> 16) & markNumbers);
        SetEvent(markFetched());
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

INPUT keyInput(WORD key, wchar_t unit, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = unit;
    input.ki.dwFlags = flags;
    return input;
}

void send(std::vector<INPUT> inputs) {
    if (SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT)) != inputs.size())
        throw std::runtime_error{"the keyboard is blocked"};
}

std::wstring classOf(HWND window) {
    std::array<wchar_t, 64> name{};
    return {name.data(), static_cast<std::size_t>(GetClassNameW(window, name.data(), name.size()))};
}

std::string windowText(HWND window) {
    std::wstring text(static_cast<std::size_t>(SendMessageW(window, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        SendMessageW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()))));
    return narrow(text);
}

/// A search among windows. Callbacks of Windows have a calling convention that lambdas have not.
struct Search {
    std::function<bool(HWND)> wanted;
    HWND found = nullptr;
};

BOOL CALLBACK lookAt(HWND window, LPARAM search) {
    auto& wish = *reinterpret_cast<Search*>(search);
    if (IsWindowVisible(window) && wish.wanted(window)) wish.found = window;
    return wish.found == nullptr;
}

/// The first window of a thread that is so, the topmost first.
HWND firstWindow(DWORD thread, std::function<bool(HWND)> wanted) {
    Search search{std::move(wanted)};
    EnumThreadWindows(thread, lookAt, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

/// A caption as it is read: without the marks of access keys.
std::string plain(const std::string& caption) {
    std::string text;
    for (std::size_t i = 0; i < caption.size(); ++i) {
        if (caption[i] == '&' && i + 1 < caption.size()) ++i;
        text += caption[i];
    }
    return text;
}

/// Whether a window has no room, or another one lies over it.
bool covered(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&place), 2);
    if (place.right <= place.left) return true;
    return ChildWindowFromPointEx(GetParent(window), {place.left + 1, (place.top + place.bottom) / 2},
                                  CWP_SKIPINVISIBLE) != window;
}

/// What one of the windows about a control says, as far as it can be seen.
std::string wordsAbout(HWND control, int number) {
    Search search{[=](HWND window) {
        return classOf(window) == L"Static" && GetDlgCtrlID(window) == number &&
               GetWindowLongPtrW(window, GWLP_USERDATA) == reinterpret_cast<LONG_PTR>(control);
    }};
    EnumChildWindows(GetParent(control), lookAt, reinterpret_cast<LPARAM>(&search));
    return search.found == nullptr || covered(search.found) ? std::string{} : windowText(search.found);
}

} // namespace

WindowsUser::WindowsUser(DWORD thread)
    : thread_(thread), hook_(SetWindowsHookExW(WH_GETMESSAGE, watch, nullptr, thread)) {
    AddAtomW(driverAtom);
}

WindowsUser::~WindowsUser() {
    DeleteAtom(FindAtomW(driverAtom));
    UnhookWindowsHookEx(hook_);
}

HWND WindowsUser::top() const {
    return firstWindow(thread_,
                       [](HWND window) { return IsWindowEnabled(window) && !nameOf(window).empty(); });
}

std::string WindowsUser::nameOf(HWND window) {
    std::array<wchar_t, 256> name{};
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(GetPropW(window, nameProperty)));
    if (atom == 0) return {};
    return narrow({name.data(), GlobalGetAtomNameW(atom, name.data(), name.size())});
}

std::string WindowsUser::focused() const {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(thread_, &info);
    return info.hwndFocus == nullptr ? std::string{} : nameOf(info.hwndFocus);
}

HWND WindowsUser::control(const std::string& name) const {
    Search search{[&name](HWND window) { return nameOf(window) == name; }};
    EnumChildWindows(top(), lookAt, reinterpret_cast<LPARAM>(&search));
    if (search.found == nullptr) throw std::runtime_error{nameOf(top()) + " shows no " + name};
    return search.found;
}

std::string WindowsUser::textOf(HWND control) {
    const std::wstring kind = classOf(control);
    if (kind == L"Button") return SendMessageW(control, BM_GETCHECK, 0, 0) == BST_CHECKED ? "ja" : "nein";
    if (kind == L"Static") return plain(windowText(control));
    return windowText(control);
}

std::string WindowsUser::errorOf(HWND control) {
    return wordsAbout(control, 0);
}

std::string WindowsUser::hintOf(HWND control) {
    return wordsAbout(control, 1);
}

bool WindowsUser::isGrid(HWND control) {
    return classOf(control) == L"TellurixGrid";
}

std::vector<std::string> WindowsUser::rowOf(HWND grid, int row) {
    static const UINT cellText = RegisterWindowMessageW(L"Tellurix.CellText");
    std::array<wchar_t, 256> text{};
    std::vector<std::string> texts;
    while (SendMessageW(grid, cellText, MAKEWPARAM(row, texts.size()),
                        reinterpret_cast<LPARAM>(text.data())) != 0)
        texts.push_back(narrow(text.data()));
    return texts;
}

void WindowsUser::settle() const {
    static std::atomic<WORD> lastMark{0};
    const WORD mark = lastMark = static_cast<WORD>(lastMark % markNumbers + 1);
    for (int i = 0; i < marks; ++i) {
        send({keyInput(markKey, mark, KEYEVENTF_KEYUP)});
        if (WaitForSingleObject(markFetched(), markAgainAfter) == WAIT_OBJECT_0 && fetchedMark == mark)
            return;
    }
    throw std::runtime_error{"the program does not answer"};
}

void WindowsUser::key(const ui::KeyDown& key) {
    // The codes of the screens' keys are those of Windows.
    std::vector<WORD> keys;
    if (key.ctrl) keys.push_back(VK_CONTROL);
    if (key.shift) keys.push_back(VK_SHIFT);
    if (key.alt) keys.push_back(VK_MENU);
    keys.push_back(static_cast<WORD>(key.key));
    std::vector<INPUT> inputs;
    for (const WORD down : keys)
        inputs.push_back(keyInput(down, 0, 0));
    for (auto up = keys.rbegin(); up != keys.rend(); ++up)
        inputs.push_back(keyInput(*up, 0, KEYEVENTF_KEYUP));
    send(std::move(inputs));
    settle();
}

void WindowsUser::type(const std::string& text) {
    for (const wchar_t unit : widen(text)) {
        send({keyInput(0, unit, KEYEVENTF_UNICODE), keyInput(0, unit, KEYEVENTF_UNICODE | KEYEVENTF_KEYUP)});
        settle();
    }
}

void WindowsUser::withCtrl(const std::function<void()>& act) {
    send({keyInput(VK_CONTROL, 0, 0)});
    settle(); // what is posted would come before a key
    act();
    send({keyInput(VK_CONTROL, 0, KEYEVENTF_KEYUP)});
    settle();
}

void WindowsUser::wheel(HWND window, int delta, WORD keys, UINT message) {
    post(window, message, MAKEWPARAM(keys, static_cast<WORD>(delta)), 0);
    settle();
}

void WindowsUser::post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (!PostMessageW(window, message, wParam, lParam)) throw std::runtime_error{"the window is gone"};
}

void WindowsUser::press(HWND window, UINT message, POINT place) {
    post(window, message, MK_LBUTTON, MAKELPARAM(place.x, place.y));
    post(window, WM_LBUTTONUP, 0, MAKELPARAM(place.x, place.y));
}

void WindowsUser::click(HWND window, int part, int parts) {
    RECT area{};
    GetClientRect(window, &area);
    press(window, WM_LBUTTONDOWN, {area.right / 2, area.bottom * part / parts});
    settle();
}

void WindowsUser::clickRow(HWND grid, int row, bool twice) {
    static const UINT cellPlace = RegisterWindowMessageW(L"Tellurix.CellPlace");
    RECT cell{};
    if (SendMessageW(grid, cellPlace, MAKEWPARAM(row, 0), reinterpret_cast<LPARAM>(&cell)) == 0)
        throw std::runtime_error{"there is no such row"};
    const POINT place{(cell.left + cell.right) / 2, (cell.top + cell.bottom) / 2};
    press(grid, WM_LBUTTONDOWN, place);
    if (twice) press(grid, WM_LBUTTONDBLCLK, place);
    settle();
}

void WindowsUser::close() {
    post(top(), WM_CLOSE, 0, 0);
    settle();
}

bool WindowsUser::choose(HWND list, const std::string& entry) {
    const std::wstring wanted = widen(entry);
    const LRESULT index = SendMessageW(list, CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                                       reinterpret_cast<LPARAM>(wanted.c_str()));
    if (index < 0) return false;
    SendMessageW(list, CB_SETCURSEL, static_cast<WPARAM>(index), 0);
    // What the list tells its window after the user has chosen.
    post(GetParent(list), WM_COMMAND, static_cast<WPARAM>(MAKELONG(GetDlgCtrlID(list), CBN_SELCHANGE)),
         reinterpret_cast<LPARAM>(list));
    settle();
    return true;
}

HWND WindowsUser::message() const {
    return firstWindow(thread_, [](HWND window) { return classOf(window) == L"#32770"; });
}

std::string WindowsUser::messageText(HWND message) {
    constexpr int textItem = 0xFFFF;
    return windowText(GetDlgItem(message, textItem));
}

void WindowsUser::answer(HWND message, ui::Answer answer) {
    HWND button = GetDlgItem(message, static_cast<int>(answer));
    // Where there is only one button, it can be the one for Esc.
    if (button == nullptr && answer == ui::Answer::ok) button = GetDlgItem(message, IDCANCEL);
    if (button == nullptr) throw std::runtime_error{"the message has no such button"};
    click(button);
}

} // namespace tellurix::tests
