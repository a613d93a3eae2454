// Named settings from the command line of a host program.
#include "standin/windows_host/HostOptions.h"
#include "standin/windows_host/HostSession.h"
#include "tests/standin/windows_host/HostTest.h"

namespace tellurix::tests {
namespace {

using HostSettings = HostTest;

TEST_F(HostSettings, CountInTheModuleInsteadOfTheStoredOnes) {
    for (const char* percent : {"0", "1"}) {
        SCOPED_TRACE(percent);
        const std::vector<std::string> arguments{"--database", file().string(),
                                                 std::string{"--setting=MESZAHL="} + percent};
        const windows::HostSession session{windows::HostOptions::parse(arguments)};
        open(wolfsberg, [&](WindowsUser& user) {
            user.click(user.control("PreisButton"));
            const bool wanted = std::string_view{percent} == "1";
            if (wanted)
                EXPECT_NO_THROW(user.control("txtMsz"));
            else
                EXPECT_ANY_THROW(user.control("txtMsz"));
            user.key({.key = ui::Key::escape});
            user.key({.key = ui::Key::escape});
        });
    }
}

} // namespace
} // namespace tellurix::tests
