// Serves the demo form to a browser, for the browser's tests and for looking at the display alone.
//   web_demo [milliseconds that a session waits for a browser that went away]

#include "web/DemoForm.h"
#include "web/Server.h"

#include <iostream>

int main(int argc, char** argv) {
    using namespace tellurix::workbench;
    ServerOptions options;
    if (argc > 1) options.grace = std::chrono::milliseconds{std::stoi(argv[1])};
    Server server{[](BrowserDisplay& display) {
                      DemoForm form{display};
                      display.showModal(form);
                  },
                  options};
    std::cout << server.address() << std::endl;
    server.runUntilSignal();
    return 0;
}
