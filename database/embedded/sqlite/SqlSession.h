#pragma once

#include "database/embedded/values/Collation.h"
#include "database/embedded/values/Fault.h"
#include "database/embedded/values/date_text.h"
#include "module/base/Clock.h"

#include <optional>
#include <string>

namespace tellurix::embedded {

/// The options set by SET on which a computation can depend.
struct SessionOptions {
    bool noCount = false;
    /// The first day of the week, 1 = Monday. Monday and the day-first order are what a login
    /// with German as its language has.
    int dateFirst = 1;
    DateOrder dateOrder = DateOrder::dayMonthYear;

    friend bool operator==(const SessionOptions&, const SessionOptions&) = default;
};

/// What a connection remembers between statements: the options set by SET, and the place where a
/// function that runs inside SQLite leaves its error, because only a bare text passes through.
struct SqlSession {
    explicit SqlSession(const base::Clock& sessionClock) : clock(sessionClock) {}

    const base::Clock& clock;
    const Collation collation;
    SessionOptions options;
    /// Folded name of the one table whose keys may be given; empty when there is none.
    std::string identityInsert;

    std::optional<Fault> failure;
    /// Set while a translated statement runs: SQLite must not quietly compile it anew for a
    /// changed schema, because the translation depends on the schema too.
    bool refusesCompiling = false;
    bool compilingRefused = false; ///< it has tried to
};

} // namespace tellurix::embedded
