#pragma once

#include "module/parts/EditMode.h"
#include "module/parts/OpenContract.h"
#include "module/ui/Layout.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tellurix::logistics {

/// The contract that the logistics form is open on, with its logistics record.
struct LogisticsContract : parts::OpenContract {
    std::int64_t record = 0; ///< `WVO_VERTRAG.ID`
    std::string unit = {};   ///< of its first quantity line that has one; empty for none
};

/// One of the three areas of the logistics form. Its controls are controls of the form; each area is
/// looked at and edited for itself.
class Area {
public:
    Area() = default;
    virtual ~Area() = default;
    Area(const Area&) = delete;
    Area& operator=(const Area&) = delete;

    /// What stands on the page of the area.
    virtual ui::Layout layout() = 0;
    /// Begins with another contract, or anew with the same one. Nothing is read yet, and nothing of an
    /// earlier visit stays: typed texts, widths of columns, the edit mode.
    virtual void open(const LogisticsContract& contract) = 0;
    /// Reads and shows what the database has.
    /// @param key the row that becomes the current one, where there is one with that key; without a key
    ///        the current row stays
    virtual void reload(std::optional<std::int64_t> key) = 0;
    virtual parts::EditMode& mode() = 0;
    /// Whether the user has entered something that has not been saved yet.
    virtual bool changed() const = 0;
    /// Gives the columns the widths that the user had chosen, and keeps those that they have now.
    virtual void restoreColumns() {}
    virtual void saveColumns() {}
    /// The form closes without what has not been saved.
    virtual void discard() {}
};

} // namespace tellurix::logistics
