#pragma once

#include "module/host/services.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tellurix::parts {

/// The number by which a person is known to the user; nothing when there is no such person.
/// @param person `ID_PERSONAL`
std::optional<std::string> personNumber(base::Connection& connection, std::int32_t person);

/// Makes two boxes a person box: a person's number is typed or picked in the first, whose `tag`
/// keeps `ID_PERSONAL`, and the second shows the short name. A person that nobody touched is not
/// looked up again, as in a lookup box.
class PersonBox {
public:
    /// Who can be chosen, and with which access level.
    struct Choice {
        std::string pickerMode;           ///< mode of the person picker: "2PVM", "2PVAP"
        std::string validFilter;          ///< filter of the person query: "PERSONAL_VALID", …
        std::function<int()> accessLevel; ///< of the contract, asked for when it is needed
        /// Told of another person, or of none any more. With it a picked person counts at once, without it
        /// on leaving the box.
        std::function<void()> chosen = {};
    };

    PersonBox(ui::TextBox& number, ui::TextBox& shortName, host::HostServices& services,
              const host::TlxVar& session, Choice choice);

    /// Shows a person as it was read; an empty key for none.
    void show(const std::string& key, const std::string& number, const std::string& shortName);
    /// `ID_PERSONAL` as text, empty for none.
    const std::string& key() const { return number_.tag(); }
    ui::TextBox& number() const { return number_; }
    ui::TextBox& shortName() const { return shortName_; }

private:
    void pick();
    bool leave();
    void tell();

    ui::TextBox& number_;
    ui::TextBox& shortName_;
    host::HostServices& services_;
    const host::TlxVar& session_;
    Choice choice_;
    std::optional<std::string> resolvedNumber_; ///< what the key belongs to
};

} // namespace tellurix::parts
