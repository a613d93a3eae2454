#pragma once

#include "module/base/database.h"

#include <string>

namespace tellurix::host {

/// The currency that every contract can use beside the home currency.
inline constexpr const char* euro = "EUR";

/// The host's session: who works, in which database, with which settings. The host builds it and
/// hands it over by reference; every screen copies it whole at the start of its `Run` and passes it
/// on to the host's services and to its child screens. The module never changes one.
struct TlxVar {
    /// The open connection that every statement runs on. Day-first: 'dd.mm.yyyy' is a date on it.
    base::Connection* connection = nullptr;
    /// The user's access level; contracts without a level of their own use it.
    int accessLevel = 0;
    /// Short name of the home currency, the other one beside `euro`.
    std::string homeCurrency;
    /// The site, which some screens compare with "WVO" and "UELZEN".
    std::string site;
    std::string user;
    /// Language of the user: "de", "en".
    std::string language = "de";
};

} // namespace tellurix::host
