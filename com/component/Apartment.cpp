#include "com/component/Apartment.h"

namespace tellurix::windows {

Apartment::Apartment() {
    display_.setErrorHandling(&services_.errors());
}

Apartment::~Apartment() {
    // The kept screens refer to the services.
    host::releaseModuleState();
}

Apartment::Call::Call(Apartment& apartment, const ::TlxVar& record, HWND owner)
    : apartment_(apartment), session_(record) {
    if (apartment.called_)
        throw AutomationError(HRESULT_FROM_WIN32(ERROR_BUSY), "Es ist noch ein Vertrag geöffnet.");
    apartment.called_ = true;
    apartment.services_.errors().setSession(&session_.values());
    apartment.display_.setOwner(owner);
    apartment.display_.setLanguage(session_.values().language);
}

Apartment::Call::~Call() {
    apartment_.display_.setOwner(nullptr);
    apartment_.services_.errors().setSession(nullptr);
    apartment_.called_ = false;
}

} // namespace tellurix::windows
