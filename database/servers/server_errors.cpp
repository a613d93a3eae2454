#include "database/servers/server_errors.h"

namespace tellurix::servers {

using Category = base::DatabaseErrorCategory;

Category categoryOfNumber(int number) {
    switch (number) {
    case 102: // incorrect syntax near …
    case 105: // unclosed quotation mark
    case 156: // incorrect syntax near a keyword
    case 170:
    case 319:
        return Category::syntax;
    case 207:  // column
    case 208:  // table
    case 911:  // database
    case 3701: // what is to be dropped
    case 4104: // a column with its table
        return Category::unknownName;
    case 220: // arithmetic overflow
    case 232:
    case 241: // date from a text
    case 242: // date out of range
    case 244:
    case 245: // number from a text
    case 248:
    case 2628: // text too long
    case 8114:
    case 8115:
    case 8134: // division by zero
    case 8152: // text too long
        return Category::conversion;
    case 515:  // NOT NULL
    case 547:  // foreign key or check
    case 2601: // unique index
    case 2627: // key
        return Category::constraint;
    case 1204:
    case 1205: // deadlock
    case 1222: // lock timeout
        return Category::locked;
    case 4060:  // no such database
    case 18456: // login failed
        return Category::connection;
    case 1101: // the file group is full
    case 1105:
    case 9002: // the log is full
        return Category::storageFull;
    case 3906: // the database is read-only
        return Category::readOnly;
    default:
        return Category::other;
    }
}

} // namespace tellurix::servers
