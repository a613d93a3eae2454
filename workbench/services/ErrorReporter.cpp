#include "services/ErrorReporter.h"

#include "common/M_Common.h"
#include "common/Refused.h"

namespace tellurix::workbench {

namespace {

const char* keyOf(common::DatabaseErrorCategory category) {
    using enum common::DatabaseErrorCategory;
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
int iconOf(common::DatabaseErrorCategory category) {
    using enum common::DatabaseErrorCategory;
    const bool usersOwn = category == conversion || category == constraint || category == locked;
    return usersOwn ? ui::box::exclamation : ui::box::critical;
}

} // namespace

void ErrorReporter::report(const std::exception& error) {
    if (const auto* refused = dynamic_cast<const common::Refused*>(&error)) {
        common::ShowMessage(display_, refused->message(session_.language), ui::box::exclamation);
    } else if (const auto* database = dynamic_cast<const common::DatabaseError*>(&error)) {
        common::ShowMessage(display_,
                            text(keyOf(database->category())) + "\n\n" +
                                filled(text("error.technical"), {database->what()}),
                            iconOf(database->category()));
    } else {
        common::ShowMessage(display_, filled(text("error.unexpected"), {error.what()}), ui::box::critical);
    }
}

} // namespace tellurix::workbench
