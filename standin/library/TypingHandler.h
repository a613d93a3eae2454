#pragma once

#include "com/automation/DispatchObject.h"
#include "com/session/Session.h"
#include "standin/library/mirrors.h"
#include "standin/services/selection/codes/TypeAheadService.h"

namespace tellurix::windows {

/// Completes what is typed into a box of the calling screen, which calls it for every character and
/// change: KeyPress(box, character code), Change(box).
class TypingHandler final : public DispatchObject {
public:
    /// @param record copied, and kept as long as the box is completed
    TypingHandler(const HostsRecord& record, const std::string& query, const std::string& displayColumn);

    std::int32_t keyPress(Dispatch box, std::int32_t character);
    void change(Dispatch box);

protected:
    const DispatchTable& table() const override;
    const char* source() const override { return "Tellurix_Loc.TypeAhead"; }

private:
    Session session_;
    BoxMirror mirror_;
    standin::TypeAheadService service_;
};

} // namespace tellurix::windows
