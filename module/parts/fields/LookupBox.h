#pragma once

#include "module/host/services.h"
#include "module/ui/controls/TextBox.h"

#include <functional>
#include <optional>
#include <string>

namespace tellurix::parts {

/// Where a lookup box takes its choices from.
struct LookupSource {
    /// What the picker is asked for: a query with the texts in its first column, or a named list.
    std::function<std::string()> list;
    /// What finds the key of the text in the box: a query, or a named list.
    /// @throws ui::RefusedInput when the text cannot stand in the query
    std::function<std::string(ui::TextBox&)> resolution;
    /// The column that the box shows of what was found; empty where it keeps what was typed.
    std::string shown = {};
    /// The box that shows it in place of the lookup box itself, or null.
    ui::TextBox* beside = nullptr;
};

/// @param listQuery all choices, in its first column
/// @param keyQuery the choice of a text, up to the quote that opens the text
LookupSource queried(std::string listQuery, std::string keyQuery);
/// A list that the host knows by name: "WVO_T_BELIEFERUNG" is chosen from as "WVO_T_BELIEFERUNG_GRID" and
/// found in as "WVO_T_BELIEFERUNG_VALID". The box shows the rows' LONG.
LookupSource named(const std::string& list);

/// Makes a box a lookup box: its picker lists what can be chosen, leaving it resolves the typed
/// text to a database key, and the key is kept in the box's `tag` (empty for no value).
///
/// A text that nobody touched is not looked up again: a value that is no longer offered must stay
/// in the contracts that already have it. A text that was not found leaves no key behind, and nothing is
/// known then but that: the former text typed again is looked up like any other.
class LookupBox {
public:
    /// @param session the screen's own copy of the session record
    /// @param title of the picker, asked for when it opens
    LookupBox(ui::TextBox& box, host::HostServices& services, const host::TlxVar& session,
              std::function<std::string()> title, LookupSource source);

    /// Shows a value as it was read: its text and its key.
    void show(const std::string& text, const std::string& key);
    /// The key, empty for no value.
    const std::string& key() const { return box_.tag(); }
    ui::TextBox& box() const { return box_; }

private:
    bool leave();

    ui::TextBox& box_;
    host::HostServices& services_;
    const host::TlxVar& session_;
    LookupSource source_;
    std::optional<std::string> resolvedText_; ///< what the key belongs to
};

} // namespace tellurix::parts
