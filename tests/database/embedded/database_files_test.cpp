// What can be wrong with the file itself: it is somebody else's, gone, full, read-only or damaged.

#include "database/embedded/sqlite/SqliteConnection.h"
#include "tests/database/embedded/EmbeddedTest.h"

#include <cstdlib>
#include <fstream>
#include <sqlite3.h>
#include <sstream>

namespace tellurix::embedded {
namespace {

namespace fs = std::filesystem;

class DatabaseFiles : public EmbeddedTest {
protected:
    std::string opening(const fs::path& other) const {
        return failureOf([&] { Database(other, clock()); });
    }
    fs::path beside(const char* name) const { return file().parent_path() / name; }

    /// A database that SQLite makes without us.
    static void make(const fs::path& file, const std::string& script) {
        sqlite3* handle = nullptr;
        ASSERT_EQ(sqlite3_open(file.string().c_str(), &handle), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(handle, script.c_str(), nullptr, nullptr, nullptr), SQLITE_OK);
        sqlite3_close(handle);
    }
    static std::string bytesOf(const fs::path& file) {
        std::ostringstream bytes;
        bytes << std::ifstream(file, std::ios::binary).rdbuf();
        return bytes.str();
    }
    static std::string begin(const std::string& text) { return text.substr(0, text.find(':')); }
};

TEST_F(DatabaseFiles, WhatIsNoDatabaseOfOursIsRefusedUnchanged) {
    struct Case {
        const char* rule;
        std::string script;
    };
    const Case cases[] = {
        {"tables", "CREATE TABLE NOTES (ID INTEGER PRIMARY KEY, BODY TEXT COLLATE NOCASE)"},
        {"tables and a version", "CREATE TABLE NOTES (BODY TEXT); PRAGMA user_version=7"},
        {"a mark", "PRAGMA application_id=123; CREATE TABLE T (NAME nvarchar(5) COLLATE BINARY)"},
        {"a log", "PRAGMA journal_mode=WAL; CREATE TABLE NOTES (BODY TEXT)"},
        {"nothing but a version", "PRAGMA user_version=7"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.rule);
        const fs::path foreign = beside("notes.db");
        make(foreign, c.script);
        const std::string before = bytesOf(foreign);
        EXPECT_EQ(opening(foreign), "connection: The file " + foreign.string() +
                                        " is a database of another program; it has not been changed");
        EXPECT_EQ(bytesOf(foreign), before);
        fs::remove(foreign);
    }
    std::ofstream(beside("letter.txt")) << std::string(5000, 'x');
    EXPECT_EQ(begin(opening(beside("letter.txt"))), "damaged");
    std::ofstream(beside("short.txt")) << "x";
    EXPECT_EQ(begin(opening(beside("short.txt"))), "damaged");
    EXPECT_EQ(begin(opening(beside("none.db"))), "missing");
    EXPECT_FALSE(fs::exists(beside("none.db")));
}

TEST_F(DatabaseFiles, OursFromBeforeTheMarkAreKnownAndMarked) {
    for (const char* table : {"CREATE TABLE T (A nvarchar(5) NULL, N int)", "CREATE TABLE T (N int)"}) {
        SCOPED_TRACE(table);
        const fs::path old = beside("old.db");
        {
            const Database made(old, clock(), {.create = true});
            made.connect()->execute(table);
            made.connect()->execute("INSERT INTO T (N) VALUES (5)");
        }
        make(old, "PRAGMA application_id=0");
        EXPECT_EQ(answer(*Database(old, clock()).connect(), "SELECT N FROM T"), "5");
        EXPECT_EQ(bytesOf(old).substr(68, 4), "TLXV");
        fs::remove(old);
    }
}

#ifndef _WIN32 // an open file can neither be moved nor deleted there
TEST_F(DatabaseFiles, AFileThatIsDeletedOrReplacedWhileOpenTakesNothingMore) {
    const auto connection = connect();
    connection->execute("CREATE TABLE T (N int) INSERT INTO T VALUES (1)");
    const auto rows = connection->openUpdatable("SELECT N FROM T");
    fs::rename(file(), beside("away.db"));
    const std::string gone =
        "missing: The database " + file().string() + " is no longer in its place; nothing was saved";
    const auto write = [&](const char* text) { return failureOf([&] { connection->execute(text); }); };
    EXPECT_EQ(write("INSERT INTO T VALUES (2)"), gone);
    EXPECT_EQ(write("CREATE TABLE U (N int)"), gone);
    rows->setField("N", std::int64_t{3});
    EXPECT_EQ(failureOf([&] { rows->update(); }), gone);
    EXPECT_EQ(failureOf([&] { rows->remove(); }), gone);
    // What has been read can still be shown.
    EXPECT_EQ(answer(*connection, "SELECT N FROM T"), "1");
    std::ofstream(file()) << "another file";
    EXPECT_EQ(write("INSERT INTO T VALUES (2)"), gone);
    fs::rename(beside("away.db"), file());
    EXPECT_EQ(write("INSERT INTO T VALUES (2)"), "none");
}

TEST_F(DatabaseFiles, AnotherProgramThatLooksOnTakesNothingAway) {
    const auto first = connect();
    first->execute("CREATE TABLE T (N int) INSERT INTO T VALUES (1)");
    const auto second = Database(file(), clock()).connect();
    EXPECT_EQ(answer(*second, "SELECT N FROM T"), "1");
    // The last user of a file removes its log; who looks on must see that there are others.
    const std::string script = "import sqlite3; c = sqlite3.connect('" + file().string() +
                               "'); c.execute('SELECT count(*) FROM sqlite_schema').fetchall(); c.close()";
    ASSERT_EQ(std::system(("/usr/bin/python3 -c \"" + script + "\"").c_str()), 0);
    first->execute("UPDATE T SET N = 2");
    EXPECT_EQ(answer(*Database(file(), clock()).connect(), "SELECT N FROM T"), "2");
    EXPECT_TRUE(fs::exists(file().string() + "-wal"));
}
#endif

TEST_F(DatabaseFiles, AReadOnlyFileIsReadAndSaysSoWhenItIsWritten) {
    connect()->execute("CREATE TABLE T (N int) INSERT INTO T VALUES (1)");
    EXPECT_FALSE(database().isReadOnly());
    fs::permissions(file(), fs::perms::owner_read);
    const Database readOnly(file(), clock());
    EXPECT_TRUE(readOnly.isReadOnly());
    const auto connection = readOnly.connect();
    EXPECT_EQ(answer(*connection, "DECLARE @t TABLE (N int) INSERT INTO @t SELECT N FROM T SELECT N FROM @t"),
              "1");
    EXPECT_EQ(failureOf([&] { connection->execute("UPDATE T SET N = 2"); }),
              "readOnly: The database " + file().string() + " is read-only; nothing was saved");
}

TEST_F(DatabaseFiles, AFullDiskIsTold) {
    connect()->execute("CREATE TABLE T (A nvarchar(max))");
    SqliteConnection full(file(), false, std::chrono::seconds{1}, clock());
    full.run("PRAGMA max_page_count=3");
    try {
        full.run("INSERT INTO T VALUES (hex(zeroblob(100000)))");
        ADD_FAILURE();
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.category(), base::DatabaseErrorCategory::storageFull) << fault.what();
    }
}

TEST_F(DatabaseFiles, ADamagedFileIsTold) {
    {
        const auto connection = connect();
        connection->execute("CREATE TABLE T (A nvarchar(max))");
        for (int row = 0; row < 20; ++row)
            connection->execute("INSERT INTO T VALUES ('" + std::string(3000, 'x') + "')");
    }
    constexpr std::streamoff page = 4096;
    std::fstream bytes(file(), std::ios::binary | std::ios::in | std::ios::out);
    bytes.seekp(page);
    bytes << std::string(static_cast<std::size_t>(page) * 4, 'z');
    bytes.close();
    EXPECT_EQ(begin(failureOf([&] { answer(*connect(), "SELECT COUNT(*) FROM T"); })), "damaged");
}

} // namespace
} // namespace tellurix::embedded
