#pragma once

#include "module/host/TlxVar.h"
#include "module/ui/TextBox.h"

#include <optional>
#include <string>

namespace tellurix::host {

/// The host's services around the selection value of a contract line: the text that says to which
/// timber the line applies.

/// The general selection dialog, which can say more than the quick selection of the line screens.
class SelectionDialog {
public:
    virtual ~SelectionDialog() = default;
    /// Edits the selection of one line, whose present value the dialog reads itself.
    /// @param key the line: its `ID` followed by "VERTP" (price lines) or "VERTM" (quantity lines)
    /// @param upperType contract-type code in capital letters
    /// @param out1, out2 the host context's texts for service calls
    /// @return the new selection value, which may be empty; nothing when the user cancelled
    virtual std::optional<std::string> select(const TlxVar& session, const std::string& key,
                                              const std::string& upperType, const std::string& out1,
                                              const std::string& out2) = 0;
};

/// A list from which several codes can be chosen.
class LookupGridDialog {
public:
    virtual ~LookupGridDialog() = default;
    /// @param layout of the list: the named setting "HOLZART_GRID", "HOLZSORTE_GRID", "GUETEKLASSE_GRID"
    ///        or "STKL_GRID"
    /// @param current what is chosen so far
    /// @return the chosen codes separated by commas, or `current` when the user cancelled
    std::string choose(const TlxVar& session, const std::string& layout, const std::string& title,
                       const std::string& current) {
        return choose(session, layout, title, "", "01", current);
    }

    /// The host's own operation.
    /// @param text always empty
    /// @param mode always "01": several choices
    /// @param current for a dialog that can start from it; the host's own knows only the others
    virtual std::string choose(const TlxVar& session, const std::string& layout, const std::string& title,
                               const std::string& text, const std::string& mode,
                               const std::string& current) = 0;
};

/// Completes what is typed into a box from the rows of a query.
class TypeAhead {
public:
    virtual ~TypeAhead() = default;
    /// Binds a box, on every focus anew. What stands behind the last comma is completed.
    /// @param query the rows that are offered
    /// @param displayColumn the column that holds their texts
    virtual void bind(const TlxVar& session, ui::TextBox& box, const std::string& query,
                      const std::string& displayColumn) = 0;
};

/// Turns a selection value into a condition on the delivered logs.
class SelectionTranslator {
public:
    virtual ~SelectionTranslator() = default;
    /// @param kind, sameKind what the condition is for, given twice: "1LV" for logs of a contract
    /// @param value a selection value that is not empty
    /// @param formValue a text of the calling screen; may be empty
    /// @return " FROM LOGS … WHERE …", to follow "SELECT LOGS.ID_LOG " inside a subquery
    /// @throws std::invalid_argument naming the piece that cannot be read
    virtual std::string translate(const TlxVar& session, const std::string& kind, const std::string& sameKind,
                                  const std::string& value, const std::string& upperType,
                                  const std::string& formValue) = 0;
};

} // namespace tellurix::host
