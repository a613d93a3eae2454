#include "standin/services/ErrorReporter.h"

#include "module/base/Refused.h"
#include "module/parts/M_Common.h"

namespace tellurix::standin {

namespace {

const char* keyOf(base::DatabaseErrorCategory category) {
    using enum base::DatabaseErrorCategory;
    switch (category) {
    case syntax:
        return "error.syntax";
    case unknownName:
        return "error.unknownName";
    case conversion:
        return "error.conversion";
    case constraint:
        return "error.constraint";
    case locked:
        return "error.locked";
    case connection:
        return "error.connection";
    case storageFull:
        return "error.storageFull";
    case readOnly:
        return "error.readOnly";
    case damaged:
        return "error.damaged";
    case missing:
        return "error.missing";
    case other:
        break;
    }
    return "error.other";
}

/// What the user can put right alone is a warning, all else an error.
int iconOf(base::DatabaseErrorCategory category) {
    using enum base::DatabaseErrorCategory;
    const bool usersOwn = category == conversion || category == constraint || category == locked;
    return usersOwn ? ui::box::exclamation : ui::box::critical;
}

} // namespace

void ErrorReporter::report(const std::exception& error) {
    if (const auto* refused = dynamic_cast<const base::Refused*>(&error)) {
        parts::ShowMessage(display_, refused->message(session_.language), ui::box::exclamation);
    } else if (const auto* database = dynamic_cast<const base::DatabaseError*>(&error)) {
        parts::ShowMessage(display_,
                           text(keyOf(database->category())) + "\n\n" +
                               filled(text("error.technical"), {database->what()}),
                           iconOf(database->category()));
    } else {
        parts::ShowMessage(display_, filled(text("error.unexpected"), {error.what()}), ui::box::critical);
    }
}

} // namespace tellurix::standin
