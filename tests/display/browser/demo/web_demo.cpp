// Serves the demo form to a browser, for the browser's tests and for looking at the display alone.
//   web_demo [milliseconds that a session waits for a browser that went away]

#include "display/browser/network/Server.h"
#include "tests/support/DemoForm.h"

#include <signal.h>

#include <iostream>

int main(int argc, char** argv) {
    using namespace tellurix::browser;
    // Blocked before any thread starts, so that they wait for the call below.
    sigset_t stopping;
    sigemptyset(&stopping);
    sigaddset(&stopping, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopping, nullptr);

    ServerOptions options;
    if (argc > 1) options.grace = std::chrono::milliseconds{std::stoi(argv[1])};
    Server server{[](BrowserDisplay& display) {
                      tellurix::tests::DemoForm form{display};
                      display.showModal(form);
                  },
                  options};
    std::cout << server.address() << std::endl;
    int signal = 0;
    sigwait(&stopping, &signal);
    return 0;
}
