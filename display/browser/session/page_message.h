#pragma once

#include "module/ui/input/keys.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace tellurix::browser {

/// What the page sends is not of the agreed form. The connection is closed; the session lives on.
class ProtocolError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One thing the user did, as the page says it: checked for its form, not yet for whether the
/// window and the control that it names are there.
struct PageMessage {
    enum class Kind {
        key,
        pickKey,
        character,
        accessKey,
        focus,
        text,
        selection,
        paste,
        click,
        step,
        select,
        doubleClick,
        heading,
        scroll,
        columnSized,
        pick,
        statusAction,
        close,
        answer, ///< of a message box
        file,   ///< has been sent, for a message box that asks for one
        redraw  ///< a page that has just connected asks for everything
    };

    Kind kind = Kind::redraw;
    /// Counts up within a session; the page waits until this number is acknowledged.
    std::uint64_t number = 0;
    int window = 0; ///< the window or message box it is meant for
    std::optional<std::size_t> control;
    ui::KeyDown key;
    char32_t character = 0;
    std::string text;
    int start = 0; ///< of the selection, in characters
    int length = 0;
    int index = 0; ///< item, page or row
    int column = 0;
    int width = 0; ///< of a column, in average characters; 0 to fit its texts, or not measured
    bool extends = false; ///< it marks the cells of a grid up to that one
    bool up = false;
    int answer = 0;
    /// Which connection asked for the redrawing; set by the session.
    std::uint64_t connection = 0;
};

/// The first message of a connection: which session the page wants to go on with.
struct Hello {
    std::string session; ///< empty for a new one
    /// The page that had the session is gone for certain, even if its connection still looks alive.
    bool takeOver = false;
    /// A session that is not there any more is replaced by a new one.
    bool orNew = true;
};

/// @throws ProtocolError
Hello parseHello(std::string_view json);
/// @throws ProtocolError
PageMessage parsePageMessage(std::string_view json);

} // namespace tellurix::browser
