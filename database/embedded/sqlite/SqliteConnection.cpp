#include "database/embedded/sqlite/SqliteConnection.h"

#include "database/embedded/sqlite/ConditionMemory.h"
#include "database/embedded/sqlite/only_aggregate.h"
#include "database/embedded/sqlite/scalar_call.h"

#include <string>

namespace tellurix::embedded {

namespace {

using base::DatabaseErrorCategory;

int compareTexts(void* collation, int leftSize, const void* left, int rightSize, const void* right) noexcept {
    return static_cast<const Collation*>(collation)->compare(
        {static_cast<const char*>(left), static_cast<std::size_t>(leftSize)},
        {static_cast<const char*>(right), static_cast<std::size_t>(rightSize)});
}

/// SQLite compiles a statement anew by itself when the schema has changed; see SqlSession.
int allowCompiling(void* session, int, const char*, const char*, const char*, const char*) noexcept {
    auto& refusing = *static_cast<SqlSession*>(session);
    if (!refusing.refusesCompiling) return SQLITE_OK;
    // The error that SQLite makes of this depends on what was refused, so it is noted here.
    refusing.compilingRefused = true;
    return SQLITE_DENY;
}

DatabaseErrorCategory categoryOf(int code) {
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return DatabaseErrorCategory::locked;
    case SQLITE_CONSTRAINT:
        return DatabaseErrorCategory::constraint;
    case SQLITE_TOOBIG:
    case SQLITE_MISMATCH:
        return DatabaseErrorCategory::conversion;
    case SQLITE_FULL:
        return DatabaseErrorCategory::storageFull;
    case SQLITE_READONLY:
    case SQLITE_PERM:
        return DatabaseErrorCategory::readOnly;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return DatabaseErrorCategory::damaged;
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
        return DatabaseErrorCategory::connection;
    default:
        return DatabaseErrorCategory::other;
    }
}

/// What a user can put right is told by name, not in SQLite's words.
std::string describeFile(DatabaseErrorCategory category, const std::string& name,
                         const std::string& message) {
    switch (category) {
    case DatabaseErrorCategory::storageFull:
        return "There is no room left for the database " + name + "; nothing was saved";
    case DatabaseErrorCategory::readOnly:
        return "The database " + name + " is read-only; nothing was saved";
    case DatabaseErrorCategory::damaged:
        return "The database " + name + " is damaged: " + message;
    default:
        return "The database reports: " + message;
    }
}

std::string nameOf(const std::filesystem::path& file) {
    const std::u8string characters = file.u8string();
    return {characters.begin(), characters.end()};
}

/// The write protection of a file holds for everybody, also for a user whom the system lets pass.
bool isWriteProtected(const std::filesystem::path& file) {
    using std::filesystem::perms;
    std::error_code error;
    const perms given = std::filesystem::status(file, error).permissions();
    return !error && (given & (perms::owner_write | perms::group_write | perms::others_write)) == perms::none;
}

std::string afterColon(const std::string& message) {
    const std::size_t colon = message.find(": ");
    return colon == std::string::npos ? message : message.substr(colon + 2);
}

std::string describeConstraint(int code, const std::string& message) {
    // The name of an index: "index 'T.COL NULL'".
    if (code == SQLITE_CONSTRAINT_UNIQUE && message.find("index '") != std::string::npos)
        return "There is already a row with NULL in the unique key " + afterColon(message);
    switch (code) {
    case SQLITE_CONSTRAINT_NOTNULL:
        return "The column " + afterColon(message) + " does not take NULL";
    case SQLITE_CONSTRAINT_UNIQUE:
        return "There is already a row with this value of " + afterColon(message);
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        return "There is already a row with this key " + afterColon(message);
    default:
        return message;
    }
}

} // namespace

bool SqliteStatement::step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    if (code == SQLITE_DONE) {
        sqlite3_reset(statement_.get());
        return false;
    }
    // The message has to be read before the reset; the lock must not outlive the failure.
    const std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt*)> resetting(statement_.get(), &sqlite3_reset);
    connection_->fail(code);
}

SqliteConnection::SqliteConnection(const std::filesystem::path& file, bool create,
                                   std::chrono::milliseconds patience, const base::Clock& clock)
    : session_(clock), patience_(patience), name_(nameOf(file)) {
    if (!create && !std::filesystem::exists(file))
        throw Fault(DatabaseErrorCategory::missing, "The database " + name_ + " is not there");
    // Every connection belongs to one thread, so SQLite need not guard it.
    const int access = std::filesystem::exists(file) && isWriteProtected(file)
                           ? SQLITE_OPEN_READONLY
                           : SQLITE_OPEN_READWRITE | (create ? SQLITE_OPEN_CREATE : 0);
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(name_.c_str(), &handle, access | SQLITE_OPEN_NOMUTEX, nullptr);
    handle_.reset(handle);
    if (code != SQLITE_OK)
        throw Fault(DatabaseErrorCategory::connection,
                    "The database " + name_ + " cannot be opened: " +
                        (handle == nullptr ? sqlite3_errstr(code) : sqlite3_errmsg(handle)));
    const FileOrigin origin = originOf(*handle_);
    if (origin == FileOrigin::noDatabase)
        throw Fault(DatabaseErrorCategory::damaged, "The file " + name_ + " is no database");
    if (origin == FileOrigin::foreign) failForeign();
    configure(origin);
}

void SqliteConnection::failForeign() const {
    throw Fault(DatabaseErrorCategory::connection,
                "The file " + name_ + " is a database of another program; it has not been changed");
}

void SqliteConnection::configure(FileOrigin origin) {
    sqlite3_extended_result_codes(handle_.get(), 1);
    sqlite3_busy_timeout(handle_.get(), static_cast<int>(patience_.count()));
    // A session's stack is small, and SQLite goes down into an expression by recursion.
    constexpr int deepestExpression = 250;
    sqlite3_limit(handle_.get(), SQLITE_LIMIT_EXPR_DEPTH, deepestExpression);
    sqlite3_create_collation_v2(handle_.get(), Collation::name, SQLITE_UTF8,
                                const_cast<Collation*>(&session_.collation), compareTexts, nullptr);
    registerArithmetic(handle_.get(), session_);
    registerConversions(handle_.get(), session_);
    registerTextFunctions(handle_.get(), session_);
    registerDateFunctions(handle_.get(), session_);
    registerOnlyAggregate(handle_.get(), session_);
    registerConditionMemory(handle_.get(), session_);
    // Nothing is written before it is certain whose the file is.
    if (origin == FileOrigin::unmarked && !holdsOurs()) failForeign();
    run("PRAGMA temp_store=MEMORY");
    if (!isReadOnly()) {
        // The mark goes first, into the file itself: a log could be lost, or be looked at by nobody.
        if (origin != FileOrigin::own) run("PRAGMA application_id=" + std::to_string(ownApplicationId));
        // Readers and one writer work side by side; a commit is one append to the log. A killed process
        // loses nothing that was committed; only a power failure can lose the last moments, whole
        // statements at a time, which is worth a commit without waiting for the disk.
        run("PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL;");
    }
    rebuildAfterNewCollation();
    sqlite3_set_authorizer(handle_.get(), allowCompiling, &session_);
}

std::int64_t SqliteConnection::number(std::string_view query) {
    SqliteStatement statement = prepare(query);
    return statement.step() ? statement.integer(0) : 0;
}

/// Files from before there was a mark are known by their columns, or, without any text among these, by
/// the version of the rules of comparison.
bool SqliteConnection::holdsOurs() {
    // The mark may still be in the log, where the file's first bytes do not show it.
    return number("PRAGMA application_id") == ownApplicationId ||
           number("SELECT count(*) FROM sqlite_schema WHERE sql GLOB '* COLLATE " +
                  std::string(Collation::name) + "[ ,)]*'") > 0 ||
           number("PRAGMA user_version") == session_.collation.version();
}

bool SqliteConnection::isReadOnly() const {
    return sqlite3_db_readonly(handle_.get(), "main") == 1;
}

void SqliteConnection::requireFileInPlace() {
    int moved = 0;
    sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
    if (moved != 0)
        throw Fault(DatabaseErrorCategory::missing,
                    "The database " + name_ + " is no longer in its place; nothing was saved");
}

void SqliteConnection::moveLogIntoFile() {
    run("PRAGMA synchronous=FULL");
    if (number("PRAGMA wal_checkpoint(TRUNCATE)") != 0)
        throw Fault(DatabaseErrorCategory::locked, "The database " + name_ + " is held by another session");
}

/// Indexes are sorted by the rules of the ICU that wrote them.
void SqliteConnection::rebuildAfterNewCollation() {
    if (number("PRAGMA user_version") == session_.collation.version()) return;
    if (isReadOnly())
        throw Fault(DatabaseErrorCategory::readOnly,
                    "The database " + name_ +
                        " is sorted by the rules of another version, and it is read-only; "
                        "it has to be opened once where it can be written");
    SqliteTransaction transaction(*this);
    run(std::string("REINDEX ") + Collation::name);
    run("PRAGMA user_version=" + std::to_string(session_.collation.version()));
    transaction.commit();
}

SqliteStatement SqliteConnection::prepare(std::string_view sql, bool lasting) {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v3(handle_.get(), sql.data(), static_cast<int>(sql.size()),
                                        lasting ? SQLITE_PREPARE_PERSISTENT : 0, &statement, nullptr);
    if (code != SQLITE_OK) fail(code);
    return {*this, statement};
}

void SqliteConnection::run(const std::string& sql) {
    const int code = sqlite3_exec(handle_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) fail(code);
}

void SqliteConnection::fail(int code) {
    if (session_.compilingRefused) throw SchemaChanged{};
    if (session_.failure) {
        const Fault fault = *session_.failure;
        session_.failure.reset();
        throw fault;
    }
    const int extended = sqlite3_extended_errcode(handle_.get());
    const std::string message = sqlite3_errmsg(handle_.get());
    if (message == "parser stack overflow" || message.starts_with("Expression tree is too large"))
        throw NestedTooDeeply{};
    // Where room is shared out (quotas, limits of a process) a full disk is a write that fails.
    const bool noRoom = extended == SQLITE_IOERR_WRITE || extended == SQLITE_IOERR_SHMSIZE;
    const DatabaseErrorCategory category = noRoom ? DatabaseErrorCategory::storageFull : categoryOf(code);
    if (category == DatabaseErrorCategory::locked)
        throw Fault(category, "The database is held by another session; gave up after " +
                                  std::to_string(patience_.count()) + " ms. Please try again later");
    if (category == DatabaseErrorCategory::constraint)
        throw Fault(category, describeConstraint(extended, message));
    if (message == "integer overflow") failConversion("A sum does not fit its type");
    throw Fault(category, describeFile(category, name_, message));
}

SqliteTransaction::SqliteTransaction(SqliteConnection& connection, Kind kind) : connection_(connection) {
    connection_.run(kind == Kind::write ? "BEGIN IMMEDIATE" : "BEGIN");
}

SqliteTransaction::~SqliteTransaction() {
    // A failure here means that SQLite has already undone everything.
    if (open_) sqlite3_exec(connection_.handle(), "ROLLBACK", nullptr, nullptr, nullptr);
}

void SqliteTransaction::commit() {
    connection_.run("COMMIT");
    open_ = false;
}

} // namespace tellurix::embedded
