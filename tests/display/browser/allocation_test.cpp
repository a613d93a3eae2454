#include "display/browser/network/Server.h"
#include "tests/display/browser/RawPage.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <new>

namespace tellurix::browser {
namespace {

/// How many allocations succeed before one fails, on all threads but the test's own.
std::atomic<int> left = -1;
thread_local bool spared = false;

TEST(Allocation, OneThatFailsEndsAConnectionAndNothingElse) {
    spared = true;
    Server server{[](BrowserDisplay&) {}};
    const std::string target = server.address().substr(server.address().find("/?"));
    const std::string asking = "GET " + target +
                               " HTTP/1.1\r\nHost: 127.0.0.1:" + std::to_string(server.port()) +
                               "\r\nConnection: close\r\n\r\n";
    bool reached = true;
    for (int succeed = 0; reached && succeed < 1000; ++succeed) {
        left = succeed;
        request(server.port(), asking);
        { const RawPage comesAndGoes{server.address()}; }
        reached = left.exchange(-1) < 0;
        ASSERT_EQ(request(server.port(), asking).status, 200)
            << "after the failure of allocation " << succeed;
    }
    EXPECT_FALSE(reached) << "at last everything passes without a failure";
}

} // namespace
} // namespace tellurix::browser

// Never inlined: a compiler that sees into one of them takes the pair for a mistake.
// NOLINTBEGIN(cppcoreguidelines-owning-memory): what owns memory is made of them.
[[gnu::noinline]] void* operator new(std::size_t size) {
    using namespace tellurix::browser;
    if (!spared && left >= 0 && left-- == 0) throw std::bad_alloc{};
    if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
    throw std::bad_alloc{};
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
// NOLINTEND(cppcoreguidelines-owning-memory)
