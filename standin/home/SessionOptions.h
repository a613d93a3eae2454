#pragma once

#include "standin/home/options.h"

#include <map>
#include <string>

namespace tellurix::standin {

/// With which session a stand-in host works, as the command lines of all of them say it.
struct SessionOptions {
    std::string database; ///< file of the embedded database; empty for the default one
    std::string language = "de";
    std::string site;
    std::string homeCurrency = "CHF";
    std::string user; ///< empty for the name of the signed-on user
    int accessLevel = 0;
    std::map<std::string, std::string> settings; ///< named settings that replace those in the database

    /// `--database`, which sets the member.
    Option databaseOption();
    /// The options that set the others.
    Options sessionOptions();
};

} // namespace tellurix::standin
