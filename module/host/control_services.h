#pragma once

#include "module/host/CalculationForm.h"
#include "module/host/TlxVar.h"
#include "module/ui/Form.h"
#include "module/ui/controls/ComboBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"

#include <cstdint>
#include <string>

namespace tellurix::host {

/// What the host does with the controls and forms of a screen, lent to it for the call.

/// Texts in the user's language.
class HostLocalizer {
public:
    virtual ~HostLocalizer() = default;
    /// Puts the form into the user's language: its captions, and the words of the rules of input.
    void localize(const TlxVar& session, ui::Form& form) {
        form.setLanguage(session.language);
        translate(session, form);
    }
    /// Replaces the captions of the form's controls by those of the user's language.
    virtual void translate(const TlxVar& session, ui::Form& form) = 0;
    /// The text of that number, e.g. 223 for an invalid entry.
    virtual std::string text(int number, const TlxVar& session) = 0;
};

/// Resolves what was typed into a lookup box to the key of a row.
class LookupValidation {
public:
    virtual ~LookupValidation() = default;
    /// Runs the query, stores the first column of the found row as the `tag` of the box and shows
    /// `displayColumn` in the second box. An empty box has no key and needs no query.
    /// @param query or the key of a list of the host in which the text is looked up:
    /// "WVO_T_BELIEFERUNG_VALID", …
    /// @param shown a second box to fill, or the box itself, or null
    /// @return false when nothing was found: the user has been told, the tag is empty, the text stays
    bool resolve(const TlxVar& session, const std::string& query, ui::TextBox& box, ui::TextBox* shown,
                 const std::string& displayColumn) {
        return resolve(session, -1, query, box, shown, displayColumn, nullptr, "");
    }

    /// The host's own operation.
    /// @param option always -1
    /// @param third a third box, which no screen has: always null
    /// @param text always empty
    virtual bool resolve(const TlxVar& session, std::int32_t option, const std::string& query,
                         ui::TextBox& box, ui::TextBox* shown, const std::string& displayColumn,
                         ui::TextBox* third, const std::string& text) = 0;
};

/// Keeps the column widths and the order of grids for each user.
class GridLayoutStore {
public:
    virtual ~GridLayoutStore() = default;
    virtual void save(const TlxVar& session, const ui::Grid& grid, const std::string& key) = 0;
    /// Leaves the grid as it is when nothing was saved under the key.
    virtual void restore(const TlxVar& session, ui::Grid& grid, const std::string& key) = 0;
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

/// Keeps named models by their category: "ABSCHLAG", "ABSCHLAG1" … "ABSCHLAG8". Where the host works on
/// articles, "_A" stands behind the category of a model that is copied.
class ModelService {
public:
    virtual ~ModelService() = default;
    /// Fills a list with the names of the category's models, each with its key as item data.
    virtual void fill(const TlxVar& session, ui::ComboBox& list, const std::string& category) = 0;
    /// Replaces the lines by those of a model.
    /// @param model the item data of the list
    virtual void copy(const TlxVar& session, const std::string& category, std::int32_t model,
                      CalculationForm& form) = 0;
    /// Lets the user see, save, rename and delete models. Fills the list again; the model that the
    /// present lines were saved under is selected then.
    virtual void manage(const TlxVar& session, const std::string& category, CalculationForm& form,
                        ui::ComboBox& list) = 0;
};

} // namespace tellurix::host
