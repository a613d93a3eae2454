#pragma once

#include "standin/services/Dialogs.h"
#include "standin/services/pickers/persons/F_PersonPicker.h"
#include "standin/services/texts/Localizer.h"

namespace tellurix::standin {

/// Searches the persons that a mode offers, in the database with every key: lists of persons are
/// long, and only the first ones are fetched.
class PersonPicker final : public host::HostPersonalPicker {
public:
    static constexpr std::size_t shownAtMost = 200;
    /// Answered when the user cancels; "Keine Auswahl" answers 0.
    static constexpr std::int32_t cancelled = -1;

    PersonPicker(Dialogs& dialogs, Localizer& localizer) : dialogs_(dialogs), localizer_(localizer) {}

    /// Starts on the current person, or on the standard client where clients are chosen. `confirmed`
    /// becomes true when a person was chosen and stays as it is otherwise.
    std::int32_t choose(const host::TlxVar& session, const std::string& mode, int accessLevel,
                        std::int16_t standardClient, std::int32_t currentPerson,
                        host::Boolean16& confirmed) override;

private:
    F_PersonPicker::Found search(const host::TlxVar& session, const std::string& modeColumn, int accessLevel,
                                 const std::string& typed) const;

    Dialogs& dialogs_;
    Localizer& localizer_;
};

} // namespace tellurix::standin
