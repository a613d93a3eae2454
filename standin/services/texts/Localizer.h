#pragma once

#include "module/host/services.h"
#include "standin/services/texts/TextCatalogue.h"

#include <map>
#include <string>

namespace tellurix::standin {

/// The texts of the catalogue in the session's language.
///
/// A caption that the language does not have stays the design's own. Screens are kept between calls
/// while the user may change the language, so a caption that was replaced comes back by itself.
class Localizer final : public host::HostLocalizer {
public:
    explicit Localizer(const TextCatalogue& catalogue) : catalogue_(catalogue) {}

    void translate(const host::TlxVar& session, ui::Form& form) override;
    std::string text(int number, const host::TlxVar& session) override;
    /// A text of the services' own.
    std::string named(std::string_view key, const host::TlxVar& session) const;
    /// The same, or `otherwise` when the language has none.
    std::string namedOr(std::string_view key, const host::TlxVar& session,
                        const std::string& otherwise) const;
    /// The caption under a key of the catalogue, such as "F_Vertrag.btnSave.caption".
    /// @param shown what the control shows now
    std::string translated(const host::TlxVar& session, const std::string& key, const std::string& shown);

private:
    const TextCatalogue& catalogue_;
    /// The design's own text under each key that was replaced.
    std::map<std::string, std::string> design_;
};

} // namespace tellurix::standin
