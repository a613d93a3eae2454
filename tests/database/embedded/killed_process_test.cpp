// A process that is killed while it writes leaves whole statements behind, nothing else.

#include "database/embedded/sqlite/SqliteConnection.h"
#include "tests/database/embedded/EmbeddedTest.h"

#include <csignal>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace tellurix::embedded {
namespace {

class KilledProcess : public EmbeddedTest {
protected:
    std::string checkIntegrity() const {
        SqliteConnection connection(file(), false, std::chrono::seconds{1}, clock());
        SqliteStatement statement = connection.prepare("PRAGMA integrity_check");
        return statement.step() ? std::string(statement.text(0)) : "no answer";
    }

    /// Every statement keeps all rows of PAAR equal; a half-written one would show.
    [[noreturn]] void writeForEver() const {
        const auto connection = connect();
        for (int round = 0;; ++round) {
            connection->execute("UPDATE PAAR SET N = N + 1");
            connection->execute("INSERT INTO ZEILE (RUNDE) SELECT " + std::to_string(round) +
                                " FROM PAAR WHERE ID <= 100");
        }
    }
};

TEST_F(KilledProcess, LeavesWholeStatements) {
    {
        const auto connection = connect();
        connection->execute("CREATE TABLE PAAR (ID int IDENTITY(1,1) PRIMARY KEY, N int NOT NULL)");
        connection->execute("CREATE TABLE ZEILE (ID int IDENTITY(1,1) PRIMARY KEY, RUNDE int NOT NULL)");
        connection->execute("DECLARE @i int = 0 WHILE @i < 200 BEGIN INSERT INTO PAAR (N) VALUES (0) "
                            "SET @i = @i + 1 END");
    }
    std::int64_t before = 0;
    for (int attempt = 0; attempt < 8; ++attempt) {
        const pid_t child = fork();
        ASSERT_GE(child, 0);
        if (child == 0) writeForEver();
        // Long enough that it surely writes, and each time stopped at another point.
        const auto connection = connect();
        const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds{20};
        std::int64_t now = before;
        while (now < before + 3 && std::chrono::steady_clock::now() < deadline)
            now = connection->open("SELECT MAX(N) AS N FROM PAAR")->integer("N");
        std::this_thread::sleep_for(std::chrono::microseconds{attempt * 313});
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        ASSERT_GE(now, before + 3) << "the child did not write";

        const auto after = connect();
        EXPECT_EQ(answer(*after, "SELECT COUNT(DISTINCT N) FROM PAAR"), "1") << "attempt " << attempt;
        EXPECT_EQ(
            answer(*after,
                   "SELECT RUNDE FROM ZEILE GROUP BY RUNDE HAVING COUNT(*) - COUNT(*) / 100 * 100 <> 0"),
            "no rows");
        // The next writer is not held up by the dead one.
        EXPECT_EQ(failureOf([&] { after->execute("UPDATE PAAR SET N = N + 1"); }), "none");
        before = after->open("SELECT MAX(N) AS N FROM PAAR")->integer("N");
    }
    EXPECT_EQ(checkIntegrity(), "ok");
}

} // namespace
} // namespace tellurix::embedded
