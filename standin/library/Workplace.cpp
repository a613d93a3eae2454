#include "standin/library/Workplace.h"

#include "display/win32/native/active_window.h"

namespace tellurix::windows {

Workplace::Workplace() {
    display_.setErrorHandling(&services_.host().errors);
    services_.moduleService().onNotification = [this](const auto& notification) { notify(notification); };
}

void Workplace::notify(const standin::Notification& notification) {
    // Held for the call: the listener may choose another one.
    Dispatch told = listener;
    if (told) told.call(L"Notify", {notification.code, notification.type});
}

Workplace::Call::Call(Workplace& workplace, const CallArguments& arguments, std::size_t record)
    : workplace_(workplace),
      session_(recordIn(arguments.raw(record), "Session")),
      callers_(workplace.session_) {
    workplace_.session_ = session_.values();
    workplace_.display_.setOwner(activeWindow());
    workplace_.display_.setLanguage(session().language);
}

Workplace::Call::~Call() {
    workplace_.session_ = callers_;
}

} // namespace tellurix::windows
