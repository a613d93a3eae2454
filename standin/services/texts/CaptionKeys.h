#pragma once

#include <string>

namespace tellurix::standin {

/// Under which keys the catalogue keeps the words of one form: "F_Vertrag.title",
/// "F_Vertrag.btnHeader.caption", "F_Vertrag.btnHeader.toolTip".
struct CaptionKeys {
    std::string form; ///< its name

    std::string title() const { return form + ".title"; }
    /// @param kind "caption", or "captions" for several (see `ui::captionKind`)
    std::string caption(const std::string& control, const std::string& kind) const {
        return form + "." + control + "." + kind;
    }
    std::string toolTip(const std::string& control) const { return form + "." + control + ".toolTip"; }
};

} // namespace tellurix::standin
