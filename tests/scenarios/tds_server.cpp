// Serves a database file as a T-SQL server until it is ended, and prints its port:
//     tds_server FILE
#include "standin/services/values/SystemClock.h"
#include "tests/database/tds/TdsServer.h"

#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    if (count != 2) {
        std::cerr << "usage: tds_server FILE\n";
        return 2;
    }
    try {
        const tellurix::standin::SystemClock clock;
        const tellurix::tests::TdsServer server{arguments[1], clock, {}};
        std::cout << server.port() << std::endl;
        // Its end is that of whoever holds the other end of its input.
        std::cin.get();
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "tds_server: " << error.what() << "\n";
        return 1;
    }
}
