#pragma once

#include "module/host/TlxVar.h"
#include "module/ui/StatusLine.h"

#include <functional>
#include <string>
#include <vector>

namespace tellurix::parts {

/// What the user has done on a screen and can undo until he leaves it: its status line says it and offers
/// "Rückgängig", the last thing first. Whatever else is said there in between, the offer stays.
class UndoOffers {
public:
    /// @param session the screen's own copy of the session record
    UndoOffers(ui::StatusLine& status, const host::TlxVar& session) : status_(status), session_(session) {}
    // The status line calls it.
    UndoOffers(const UndoOffers&) = delete;
    UndoOffers& operator=(const UndoOffers&) = delete;

    /// Says what was done, and offers to undo it.
    /// @param undo undoes it and returns what is said then; where it throws, the offer stays
    void offer(std::string done, std::function<std::string()> undo);
    /// Says something else.
    void say(const std::string& text);
    /// A new visit begins: what was done in the last one stays done.
    void forget();

private:
    struct Done {
        std::string text;
        std::function<std::string()> undo;
    };
    void undoLast();

    ui::StatusLine& status_;
    const host::TlxVar& session_;
    std::vector<Done> done_;
};

} // namespace tellurix::parts
