// Opens the screens one after the other, as a user does, on a database with the sample trade:
//     show_screens DATABASE
// For each one to be pictured it prints "NAME LEFT TOP WIDTH HEIGHT" and waits for a line.

#include "automation/wide.h"
#include "embedded/Database.h"
#include "home/F_Start.h"
#include "home/ModuleOpener.h"
#include "home/database_file.h"
#include "screens/Win32Display.h"
#include "web/DemoForm.h"
#include "windows/support/WindowsUser.h"

#include <chrono>
#include <functional>
#include <future>
#include <iostream>
#include <thread>

namespace tellurix::tests {

namespace {

using ui::Key;

class Tour {
public:
    explicit Tour(DWORD thread) : user_(thread) {}

    void contracts() {
        waitFor("F_Start");
        picture("start");
        type("txtSearch", "R-2025-002");
        user_.clickRow(user_.control("grdContracts"), 0, true);
        waitFor("F_Vertrag");
        picture("contract_editor");
        click("btnZusatz");
        picture("additional_texts");
        click("btnHeader");
        waitFor("F_HeaderVertrag");
        picture("header");
        open("txtDate3", "F_Calendar", "calendar");
        open("txtRechn", "F_ListPicker", "list_picker");
        close("F_Vertrag");
        click("PreisButton");
        waitFor("F_VertragPreise");
        picture("price_lines");
        click("btnPreiseAendern");
        type("txtWert", "1,5");
        picture("price_change");
        close("F_Vertrag");
        click("PosButton");
        waitFor("F_VertragMengen");
        picture("quantity_lines");
        click("cmdBearbeiten");
        click("cmdSelect");
        waitFor("F_Selection");
        picture("selection");
        close("F_VertragMengen");
        click("cmdAbbrechen");
        close("F_Vertrag");
        click("KundeButton");
        waitFor("F_PersonPicker");
        picture("person_picker");
        close("F_Vertrag");
        click("btnAbbrechen");
        waitFor("F_Start");
        leave();
    }

    void everyControl() {
        waitFor("DemoForm");
        picture("every_control");
        user_.key({.key = Key::tab, .shift = true});
        for (int tabs = 0; user_.focused() != "tabs" && tabs < 30; ++tabs)
            user_.key({.key = Key::tab, .shift = true});
        user_.key({.key = Key::right});
        picture("every_control_second_page");
        click("btnQuestion");
        picture("message");
        user_.key({.key = Key::escape});
        leave();
    }

private:
    void waitFor(const std::string& form) {
        for (int tries = 0; user_.top() == nullptr || WindowsUser::nameOf(user_.top()) != form; ++tries) {
            if (tries == 500) throw std::runtime_error{"there is no window " + form};
            std::this_thread::sleep_for(std::chrono::milliseconds{20});
        }
        // The first window of a program that just had none may not get the keyboard by itself.
        SetForegroundWindow(user_.top());
        user_.settle();
    }

    void picture(const std::string& name) {
        user_.settle();
        // What is still to be painted comes after everything else.
        std::this_thread::sleep_for(std::chrono::milliseconds{300});
        HWND window = user_.message() != nullptr ? user_.message() : user_.top();
        RECT place{};
        GetWindowRect(window, &place);
        std::cout << name << ' ' << place.left << ' ' << place.top << ' ' << place.right - place.left << ' '
                  << place.bottom - place.top << std::endl;
        std::string taken;
        std::getline(std::cin, taken);
    }

    void click(const std::string& control) { user_.click(user_.control(control)); }

    void type(const std::string& box, const std::string& text) {
        click(box);
        user_.type(text);
    }

    /// Opens the picker of a box, and closes it again.
    void open(const std::string& box, const std::string& form, const std::string& name) {
        const std::string below = WindowsUser::nameOf(user_.top());
        click(box);
        user_.key({.key = Key::f4});
        waitFor(form);
        picture(name);
        close(below);
    }

    /// Closes the last window; nothing answers any more after that.
    void leave() { PostMessageW(user_.top(), WM_CLOSE, 0, 0); }

    void close(const std::string& below) {
        user_.close();
        waitFor(below);
    }

    WindowsUser user_;
};

/// Works the windows of this thread from another one. A tour that fails ends the process: nobody else
/// would close the windows.
std::future<void> travel(void (Tour::*route)()) {
    return std::async(std::launch::async, [route, thread = GetCurrentThreadId()] {
        try {
            Tour tour{thread};
            (tour.*route)();
        } catch (const std::exception& error) {
            std::cerr << error.what() << std::endl;
            TerminateProcess(GetCurrentProcess(), 1);
        }
    });
}

void showContracts(windows::Win32Display& display, const std::string& file) {
    const workbench::SystemClock clock;
    const embedded::Database database{file, clock};
    const auto connection = database.connect();
    host::TlxVar session{.connection = connection.get(),
                         .accessLevel = 9,
                         .homeCurrency = "EUR",
                         .site = "",
                         .user = "muster",
                         .language = "de"};
    const auto catalogue = workbench::TextCatalogue::builtIn();
    workbench::WorkbenchServices services{display, session, catalogue};
    workbench::ModuleOpener opener{services, session};
    workbench::F_Start start{services, session, opener, {}, workbench::F_Start::Closing::allowed};
    const auto tour = travel(&Tour::contracts);
    start.Run();
    tour.wait();
}

} // namespace

} // namespace tellurix::tests

int main(int, char** arguments) {
    using namespace tellurix;
    workbench::createWhenMissing(arguments[1], workbench::DatabaseContents::sample, workbench::SystemClock{});
    windows::Win32Display display;
    {
        workbench::DemoForm form{display};
        const auto tour = tests::travel(&tests::Tour::everyControl);
        display.showModal(form);
        tour.wait();
    }
    tests::showContracts(display, arguments[1]);
    return 0;
}
