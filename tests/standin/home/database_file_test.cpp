#include "standin/home/database_file.h"

#include "database/embedded/Database.h"
#include "standin/home/schema_step.h"
#include "tests/support/SampleDatabase.h"
#include "tests/support/StandingClock.h"
#include "tests/support/TestFolder.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tellurix::tests {
namespace {

namespace fs = std::filesystem;
using standin::DatabaseContents;

class DatabaseFile : public testing::Test {
protected:
    void create() { createWhenMissing(file_, DatabaseContents::sample, clock_); }
    std::int64_t contracts() const {
        return embedded::Database(file_, clock_)
            .connect()
            ->open("SELECT COUNT(*) AS N FROM VERTRAEGE")
            ->integer("N");
    }

    const base::Clock& clock_ = testClock();
    TestFolder folder_;
    fs::path file_ = folder_ / "tellurix.db";
};

/// Stands for a full disk: no file of the process may grow beyond this.
void limitFiles(std::uintmax_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

TEST_F(DatabaseFile, OnAFullDiskThereIsNoFileOrAWholeOne) {
    create();
    const std::uintmax_t whole = fs::file_size(file_);
    const std::int64_t all = contracts();
    ASSERT_GT(all, 0);
    for (const int percent : {10, 60, 90, 99}) {
        SCOPED_TRACE(percent);
        fs::remove(file_);
        const pid_t child = fork();
        if (child == 0) {
            limitFiles(whole * static_cast<std::uintmax_t>(percent) / 100);
            try {
                create();
            } catch (const base::DatabaseError& error) {
                ::_exit(error.category() == base::DatabaseErrorCategory::storageFull ? 1 : 2);
            }
            ::_exit(0);
        }
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(WEXITSTATUS(status), 1);
        EXPECT_EQ(folder_.files(), std::set<std::string>{});
    }
}

TEST_F(DatabaseFile, OneOfAnEarlierVersionGetsWhatItLacks) {
    create();
    const embedded::Database database(file_, clock_);
    const auto connection = database.connect();
    const auto value = [&](const std::string& query) { return firstRow(*connection, query); };
    const std::string present = value("SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA'");
    // As a file was before there were models, and articles for certain contract types.
    for (
        const char* statement :
        {"DROP TABLE WORKBENCH_MODEL", "DROP TABLE WORKBENCH_MODEL_LINE", "DROP TABLE WARENKATALOG",
         "CREATE TABLE WARENKATALOG (ART_ID int IDENTITY(1,1) NOT NULL PRIMARY KEY, BEZEICH1 nvarchar(60) NULL)",
         "INSERT INTO WARENKATALOG (BEZEICH1) VALUES ('Fracht')",
         "DELETE FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA'"})
        connection->execute(statement);
    const std::string contracts = value("SELECT COUNT(*), MAX(VERTRAG_NAME) FROM VERTRAEGE");

    standin::addWhatIsMissing(*connection);
    EXPECT_EQ(value("SELECT * FROM WARENKATALOG"), "1 | Fracht | NULL | NULL | NULL | NULL | NULL | NULL");
    connection->execute("UPDATE WARENKATALOG SET EINHPREIS = 1.23456, VER_TYPE = 'A1', DISABLE = 1");
    EXPECT_EQ(value("SELECT EINHPREIS,VER_TYPE,DISABLE FROM WARENKATALOG WHERE VER_TYPE = 'a1'"),
              "1.2346 | A1 | true");
    connection->execute("INSERT INTO WORKBENCH_MODEL (CATEGORY,MODEL) VALUES ('ABSCHLAG','Frei')");
    EXPECT_THROW(
        connection->execute("INSERT INTO WORKBENCH_MODEL (CATEGORY,MODEL) VALUES ('ABSCHLAG','FREI')"),
        base::DatabaseError)
        << "the index is there, too";
    EXPECT_EQ(value("SELECT COUNT(*), MAX(VERTRAG_NAME) FROM VERTRAEGE"), contracts);
    EXPECT_EQ(value("SELECT VALUE FROM WORKBENCH_SETTING WHERE NAME = 'SCHEMA'"), present);
    // Once is enough, and a file of a later version is nothing for us.
    for (const std::string& version : {present, std::string{"999"}}) {
        connection->execute("UPDATE WORKBENCH_SETTING SET VALUE = '" + version + "' WHERE NAME = 'SCHEMA'");
        connection->execute("DROP TABLE IF EXISTS WORKBENCH_MODEL_LINE");
        standin::addWhatIsMissing(*connection);
        EXPECT_THROW(connection->open("SELECT * FROM WORKBENCH_MODEL_LINE"), base::DatabaseError) << version;
    }
    // Nor is somebody else's.
    connection->execute("DROP TABLE WORKBENCH_SETTING");
    standin::addWhatIsMissing(*connection);
    EXPECT_THROW(connection->open("SELECT * FROM WORKBENCH_SETTING"), base::DatabaseError);
}

TEST_F(DatabaseFile, WhatAKilledStartLeftBehindIsRemoved) {
    const pid_t child = fork();
    if (child == 0) ::_exit(0);
    waitpid(child, nullptr, 0);
    const std::string dead = "tellurix.db.new-" + std::to_string(child);
    const std::string atWork = "tellurix.db.new-" + std::to_string(::getppid());
    const std::string others = "other.db.new-" + std::to_string(child);
    for (const std::string& name : {atWork, others})
        folder_.write(name, "half");
    for (const bool exists : {false, true}) {
        SCOPED_TRACE(exists);
        folder_.write(dead, "half");
        folder_.write(dead + "-wal", "half");
        create();
        EXPECT_EQ(folder_.files(), (std::set<std::string>{"tellurix.db", atWork, others}));
    }
}

} // namespace
} // namespace tellurix::tests
