// Plays a scenario on the host program's start page in native windows:
//     play_on_windows SCENARIO DATABASE
#include "com/automation/AutomationError.h"
#include "com/automation/wide.h"
#include "database/embedded/Database.h"
#include "module/base/text.h"
#include "standin/services/values/SystemClock.h"
#include "standin/windows_host/HostSession.h"
#include "standin/windows_host/libraries.h"
#include "tests/scenarios/Scenario.h"
#include "tests/scenarios/windows/opened_files.h"
#include "tests/support/windows/WindowsUser.h"

#include <algorithm>
#include <functional>
#include <future>
#include <iostream>
#include <map>
#include <thread>

namespace tellurix::tests {
namespace {

std::string databaseFile; ///< that the scenario is played on

using Verb = std::function<void(WindowsUser&, const Step&)>;

HWND usable(WindowsUser& user, const Step& step) {
    HWND control = user.control(step.word(0));
    if (!IsWindowEnabled(control)) throw ScenarioError{step, "it cannot be used"};
    return control;
}

/// Goes to a box and selects its text.
void goOver(WindowsUser& user, const Step& step) {
    user.click(usable(user, step));
    if (user.focused() != step.word(0)) throw ScenarioError{step, "it does not get the focus"};
    user.key({.key = static_cast<ui::Key>('A'), .ctrl = true});
}

/// With "\n" for line ends.
std::string onClipboard() {
    if (!OpenClipboard(nullptr)) throw std::runtime_error{"the clipboard is in use"};
    std::string text;
    if (HANDLE held = GetClipboardData(CF_UNICODETEXT)) {
        text = windows::narrow(static_cast<const wchar_t*>(GlobalLock(held)));
        GlobalUnlock(held);
    }
    CloseClipboard();
    return base::replaceAll(text, "\r\n", "\n");
}

void putOnClipboard(const std::string& text) {
    const std::wstring wide = windows::widen(text);
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, (wide.size() + 1) * sizeof(wchar_t));
    std::copy_n(wide.c_str(), wide.size() + 1, static_cast<wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
    if (!OpenClipboard(nullptr)) throw std::runtime_error{"the clipboard is in use"};
    EmptyClipboard();
    SetClipboardData(CF_UNICODETEXT, memory);
    CloseClipboard();
}

void type(WindowsUser& user, const Step& step) {
    if (!step.quoted(0)) goOver(user, step);
    const std::string& text = step.words.back().text;
    if (text.empty()) user.key({.key = ui::Key::del});
    user.type(text);
}

void click(WindowsUser& user, const Step& step) {
    if (step.word(0) == "status") return user.click(user.control("statusAction"));
    HWND control = usable(user, step);
    if (step.words.size() == 1) return user.click(control);
    user.click(control, step.word(1) == "up" ? 1 : 3, 4);
}

void select(WindowsUser& user, const Step& step) {
    HWND control = usable(user, step);
    if (step.quoted(1)) {
        if (!user.choose(control, step.word(1))) throw ScenarioError{step, "there is no such choice"};
        return;
    }
    user.clickRow(control, step.number(1) - 1, false);
}

void paste(WindowsUser& user, const Step& step) {
    // A click into a grid would go to another cell.
    if (!WindowsUser::isGrid(user.control(step.word(0)))) goOver(user, step);
    putOnClipboard(step.word(1));
    user.key({.key = static_cast<ui::Key>('V'), .ctrl = true});
}

void expectCells(HWND grid, const Step& step) {
    const auto shown = WindowsUser::rowOf(grid, step.number(1) - 1);
    for (std::size_t i = 2; i < step.words.size(); ++i) {
        if (std::find(shown.begin(), shown.end(), step.word(i)) == shown.end())
            throw ScenarioError{step, "no cell of the row is \"" + step.word(i) + "\""};
    }
}

void expectError(WindowsUser& user, const Step& step) {
    const std::string shown = WindowsUser::errorOf(user.control(step.word(1)));
    if (shown != step.words.back().text) throw ScenarioError{step, "it is \"" + shown + "\""};
}

void expectFile(const Step& step) {
    std::string opened;
    for (int tries = 0; tries < 500; ++tries) {
        opened = lastOpenedFile();
        if (opened.find(step.word(1)) != std::string::npos) return;
        Sleep(10);
    }
    throw ScenarioError{step, "it is \"" + opened + "\""};
}

void expect(WindowsUser& user, const Step& step) {
    if (step.word(0) == "clipboard") {
        if (onClipboard() != step.word(1)) throw ScenarioError{step, "it holds \"" + onClipboard() + "\""};
        return;
    }
    if (step.word(0) == "file") return expectFile(step);
    const bool focus = step.word(0) == "focus";
    if (step.word(0) == "error") return expectError(user, step);
    if (!focus && !step.quoted(1)) return expectCells(user.control(step.word(0)), step);
    const std::string shown = focus ? user.focused() : WindowsUser::textOf(user.control(step.word(0)));
    if (shown != step.word(1)) throw ScenarioError{step, "it is \"" + shown + "\""};
}

void answer(WindowsUser& user, const Step& step) {
    HWND message = user.message();
    if (message == nullptr) throw ScenarioError{step, "there is no message"};
    const std::string text = WindowsUser::messageText(message);
    if (text.find(step.word(1)) == std::string::npos) throw ScenarioError{step, "the message is: " + text};
    user.answer(message, answerOf(step));
}

/// On a connection of somebody else's.
void colleague(const Step& step) {
    const standin::SystemClock clock;
    embedded::Database{databaseFile, clock}.connect()->execute(step.word(0));
}

/// Says where the topmost window stands, "NAME LEFT TOP WIDTH HEIGHT", and waits for a line from whoever
/// takes the picture.
void picture(WindowsUser& user, const Step& step) {
    // What is to be painted comes after everything else.
    Sleep(300);
    RECT place{};
    GetWindowRect(user.message() != nullptr ? user.message() : user.top(), &place);
    std::cout << step.word(0) << ' ' << place.left << ' ' << place.top << ' ' << place.right - place.left
              << ' ' << place.bottom - place.top << std::endl;
    std::string taken;
    std::getline(std::cin, taken);
}

void expectWindow(WindowsUser& user, const Step& step) {
    const std::string name = WindowsUser::nameOf(user.top());
    if (name != step.word(0)) throw ScenarioError{step, "the topmost window is " + name};
}

const std::map<std::string, Verb>& verbs() {
    static const std::map<std::string, Verb> known{
        {"window", expectWindow},
        {"type", type},
        {"key",
         [](WindowsUser& user, const Step& step) {
             for (const auto& word : step.words)
                 user.key(keyOf(step, word.text));
         }},
        {"click", click},
        {"select", select},
        {"doubleClick",
         [](WindowsUser& user, const Step& step) {
             user.clickRow(usable(user, step), step.number(1) - 1, true);
         }},
        {"paste", paste},
        {"expect", expect},
        {"answer", answer},
        {"picture", picture},
        {"colleague", [](WindowsUser&, const Step& step) { colleague(step); }},
        {"close", [](WindowsUser& user, const Step&) { user.close(); }},
    };
    return known;
}

void perform(WindowsUser& user, const Step& step) {
    const auto verb = verbs().find(step.verb);
    if (verb == verbs().end()) throw ScenarioError{step, "there is no such verb"};
    HWND message = user.message();
    if (message != nullptr && step.verb != "answer" && step.verb != "picture")
        throw ScenarioError{step, "unexpected message: " + WindowsUser::messageText(message)};
    try {
        verb->second(user, step);
    } catch (const ScenarioError&) {
        throw;
    } catch (const std::exception& error) {
        throw ScenarioError{step, error.what()};
    }
}

/// The thread of the windows waits in modal loops that only a user ends, so a failure ends the process.
[[noreturn]] void fail(const std::string& why) {
    std::cerr << why << std::endl;
    TerminateProcess(GetCurrentProcess(), 1);
    std::abort();
}

void play(DWORD thread, const std::string& file) {
    try {
        WindowsUser user{thread};
        for (int tries = 0; user.top() == nullptr; ++tries) {
            if (tries == 1000) throw std::runtime_error{"no window opens"};
            Sleep(10);
        }
        user.settle();
        for (const Step& step : readScenario(file))
            perform(user, step);
        if (WindowsUser::nameOf(user.top()) != "F_Start")
            throw std::runtime_error{"the scenario leaves a window open"};
        PostMessageW(user.top(), WM_CLOSE, 0, 0);
    } catch (const std::exception& error) {
        fail(file + ", " + error.what());
    }
}

} // namespace
} // namespace tellurix::tests

int main(int count, char** arguments) {
    using namespace tellurix;
    if (count != 3) {
        std::cerr << "usage: play_on_windows SCENARIO DATABASE\n";
        return 2;
    }
    try {
        windows::check(::OleInitialize(nullptr), "OleInitialize");
        windows::registerLibraries();
        {
            windows::HostOptions options;
            options.database = arguments[2];
            options.user = "test";
            tests::databaseFile = arguments[2];
            tests::registerSpreadsheetProgram();
            windows::HostSession session{options};
            std::thread user{tests::play, GetCurrentThreadId(), std::string{arguments[1]}};
            session.run();
            user.join();
        }
        OleUninitialize();
        return 0;
    } catch (const std::exception& error) {
        tests::fail(error.what());
    }
}
