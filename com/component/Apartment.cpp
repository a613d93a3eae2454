#include "com/component/Apartment.h"

#include "com/server/ThreadMemory.h"

#include <algorithm>

namespace tellurix::windows {

namespace {

/// What outlives the apartments of each thread.
ThreadMemory<host::ModuleMemory> remembered;

} // namespace

Apartment::Apartment() {
    display_.setErrorHandling(&services_.errors());
    host::restoreModuleState(remembered.take());
}

Apartment::~Apartment() {
    // The kept screens refer to the services.
    remembered.put(host::releaseModuleState());
}

bool Apartment::mayShow(Kind kind) const {
    if (kind == Kind::contract) return shown_.empty();
    return std::ranges::none_of(shown_,
                                [&](Kind present) { return present == Kind::contract || present == kind; });
}

Apartment::Call::Call(Apartment& apartment, Kind kind, std::unique_ptr<HostsRecord> record, HWND owner)
    : apartment_(apartment), kind_(kind), session_(std::move(record)), owner_(owner) {
    if (!apartment.mayShow(kind))
        throw AutomationError(HRESULT_FROM_WIN32(ERROR_BUSY), apartment.shown_.front() == Kind::contract
                                                                  ? "Es ist noch ein Vertrag geöffnet."
                                                                  : "Es ist noch eine Meldung geöffnet.");
    apartment.shown_.push_back(kind);
    apartment.calls_.push_back(this);
    use();
}

void Apartment::Call::use() const {
    apartment_.services_.errors().setSession(&session_.values());
    apartment_.display_.setOwner(owner_);
    apartment_.display_.setLanguage(session_.values().language);
}

void Apartment::Call::screenIsClosed() {
    std::erase(apartment_.shown_, kind_);
}

Apartment::Call::~Call() {
    // A call within a call returns first.
    apartment_.calls_.pop_back();
    screenIsClosed();
    if (!apartment_.calls_.empty()) {
        apartment_.calls_.back()->use();
        return;
    }
    apartment_.display_.setOwner(nullptr);
    apartment_.services_.errors().setSession(nullptr);
}

} // namespace tellurix::windows
