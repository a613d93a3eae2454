#pragma once

#include "module/host/TlxVar.h"
#include "module/host/boolean16.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::host {

/// What the host asks the user, in windows of its own.

/// Lets the user search and choose a person.
class HostPersonalPicker {
public:
    virtual ~HostPersonalPicker() = default;
    /// @param mode who is offered: "2PVM" clients, "2PVAP" delivery addresses, "2PVK" and "2PVA1" …
    ///        "2PVA8" the customers of a contract type
    /// @param currentPerson `ID_PERSONAL` of the one chosen so far, 0 for none
    /// @param confirmed the host context's `blnOK`; the picker may set it
    /// @return `ID_PERSONAL` of the chosen person, 0 or less for none
    virtual std::int32_t choose(const TlxVar& session, const std::string& mode, int accessLevel,
                                std::int16_t standardClient, std::int32_t currentPerson,
                                Boolean16& confirmed) = 0;
};

/// Lets the user choose one text of a list, or a date.
class ListPicker {
public:
    /// Instead of a query: a calendar, which answers "dd.mm.yyyy".
    static constexpr const char* calendar = "DATUM";

    virtual ~ListPicker() = default;
    /// @param query an SQL text whose first column has the texts, the key of a list of the host
    ///        ("WVO_T_BELIEFERUNG_GRID", …), or `calendar`
    /// @param current the text in the box now
    /// @return the chosen text, or `current` when the user cancelled
    std::string choose(const TlxVar& session, const std::string& query, const std::string& title,
                       const std::string& current) {
        return choose(session, query, title, current, "");
    }

    /// The host's own operation.
    /// @param text always empty
    virtual std::string choose(const TlxVar& session, const std::string& query, const std::string& title,
                               const std::string& current, const std::string& text) = 0;
};

/// The host's keyed lists. Which rows a list has, and what it calls them, is the host's knowledge:
///
/// | to choose from | to find a text in | rows |
/// | --- | --- | --- |
/// | "VERTRAG_GRID" | "VERTRAG_VALID" | contracts by `VERTRAG_NAME`; a row's key is `ID_VERTRAG` |
/// | "TYPEOFVERTRAG_GRID" | "TYPEOFVERTRAG_VALID" | contract-type codes, which are the keys, too |
class KeyedLists {
public:
    /// What limits a list of contracts. A host whose lists know no limits may ignore it.
    struct Limits {
        std::string type;          ///< only contracts of this type; empty for all
        std::int32_t contract = 0; ///< the one that the user works on, which is not offered
    };

    virtual ~KeyedLists() = default;
    /// @param current the text in the box now
    /// @return the key of the chosen row, empty when the user cancelled
    virtual std::string choose(const TlxVar& session, const std::string& list, const std::string& title,
                               const Limits& limits, const std::string& current) = 0;
    /// @return the keys of all rows with that text
    virtual std::vector<std::string> find(const TlxVar& session, const std::string& list,
                                          const std::string& text, const Limits& limits) = 0;
    /// @return a contract's type code, empty when the host does not say
    virtual std::string typeOf(const TlxVar& session, std::int32_t contract) = 0;
};

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
    /// The same for a selection that no contract line holds yet.
    /// @param value the present selection value, may be empty
    virtual std::optional<std::string> edit(const TlxVar& session, const std::string& value,
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

/// A list from which several rows can be chosen, by their keys.
class MultiSelectionList {
public:
    virtual ~MultiSelectionList() = default;
    /// @param list the list's key, by which the host knows its title: "VERTRAG_KUNDE_WVO"
    /// @param query the rows; the first column is the key and not shown, the others are named as the
    ///        user reads them
    /// @param marked the keys that are marked at first
    /// @return the keys that are marked in the end, nothing when the user cancelled
    virtual std::optional<std::vector<std::int64_t>> choose(const TlxVar& session, const std::string& list,
                                                            const std::string& query,
                                                            const std::vector<std::int64_t>& marked) = 0;
};

/// Lets the user choose an article of the catalogue.
class CatalogueSelection {
public:
    virtual ~CatalogueSelection() = default;
    /// @param mode what is offered: "WAREN"
    /// @param upperType contract-type code in capital letters
    /// @param current `ART_ID` of the article chosen so far, 0 for none
    /// @return `ART_ID` of the chosen article, 0 or less for none
    virtual std::int32_t choose(const TlxVar& session, const std::string& mode, const std::string& upperType,
                                std::int32_t current) = 0;
};

} // namespace tellurix::host
