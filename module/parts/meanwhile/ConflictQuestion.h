#pragma once

#include "module/host/services.h"
#include "module/ui/Form.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Label.h"
#include "module/ui/controls/TextBox.h"

#include <string>
#include <vector>

namespace tellurix::parts {

/// A field that the user has changed and, since it was read, somebody else as well.
struct Conflict {
    std::string field;  ///< what the user knows it by
    std::string mine;   ///< what the user has, as a text; empty for nothing
    std::string theirs; ///< what the database has by now
};

/// Shows what two have changed, and asks whose is to stay. Closing the window goes back.
class ConflictQuestion final : public ui::Form {
public:
    enum class Answer { mine, theirs, back };

    /// @param session the calling screen's own copy of the session record
    ConflictQuestion(host::HostServices& services, const host::TlxVar& session);

    Answer ask(const std::vector<Conflict>& conflicts);

private:
    host::HostServices& services_;
    const host::TlxVar& session_;
    Answer answer_ = Answer::back;

    ui::Label lblFrage{*this, "lblFrage"};
    ui::TextBox txtUnterschiede{*this, "txtUnterschiede", 70};
    ui::Button btnMeines{*this, "btnMeines"};
    ui::Button btnDeren{*this, "btnDeren"};
    ui::Button btnZuruck{*this, "btnZuruck"};
};

} // namespace tellurix::parts
