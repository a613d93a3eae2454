#pragma once

#include "module/base/database.h"
#include "module/host/services.h"
#include "module/parts/fields/LookupBox.h"
#include "module/parts/fields/NumberField.h"
#include "module/parts/fields/PersonBox.h"
#include "module/parts/meanwhile/ConflictQuestion.h"
#include "module/parts/meanwhile/TakenOver.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/TextBox.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tellurix::parts {

/// The fields of a screen over one row of the database, which others write as well. It fills the controls,
/// keeps every field as it was read, and before the screen writes brings together what the user and what
/// somebody else has done since then.
///
/// Whether the user has changed a field is judged by what he did: a text that was typed anew counts, even
/// where it says the same.
class SharedRow {
public:
    /// One field, in whatever controls it stands.
    struct Field {
        std::string column; ///< of the row, which is compared
        std::function<std::string()> name;
        /// Puts what a row has into the controls, as not touched.
        std::function<void(base::Fields& row)> show;
        /// What the controls have, and what a row has, in the same words: equal texts are no conflict.
        std::function<std::string()> mine;
        std::function<std::string(base::Fields& row)> theirs;
        /// The controls that it stands in: a box that was typed into counts as changed, whatever it says.
        std::vector<ui::Control*> in = {};
    };

    /// @param session the screen's own copy of the session record
    SharedRow(host::HostServices& services, const host::TlxVar& session)
        : services_(services), session_(session) {}

    /// What controls are called is what their labels say, unless they are given a name.
    void text(ui::TextBox& box, const std::string& column);
    void date(ui::TextBox& box, const std::string& column, std::function<std::string()> name = {});
    void number(NumberField& field, const std::string& column);
    void lookup(LookupBox& box, const std::string& keyColumn, const std::string& textColumn);
    void person(PersonBox& box, const std::string& keyColumn, const std::string& numberColumn,
                const std::string& nameColumn);
    void flag(ui::CheckBox& box, const std::string& column);
    void add(Field field);

    /// Shows a row as it was read: nobody has changed anything yet.
    void show(base::Fields& row);
    /// No row is shown any more: what stands in the controls came from nobody.
    void leave();
    /// As if a field had just been read so: the screen has shown, or written, it by itself.
    void keep(std::string_view column, base::Value value);

    /// Brings the controls together with the row as it is now. What only somebody else has changed goes into
    /// them; about what both have changed the user is asked, and then the row is read again, because that
    /// takes its time.
    /// @param read reads the row, with all columns; at its end where it is gone, which is left to the screen
    /// @return false when the user wants to go back: nothing is to be written
    bool settle(const std::function<std::unique_ptr<base::Recordset>()>& read);

    /// The fields that came from somebody else since the row was shown.
    const TakenOver& takenFromOthers() const { return takenOver_; }
    /// The same in a sentence; empty for none.
    std::string takenOver() const { return takenOver_.sentence(session_.language); }

private:
    struct Kept {
        Field field;
        base::Value read;  ///< what the row had
        std::string shown; ///< what the controls made of it
    };
    static bool changed(const Kept& kept);
    static void take(Kept& kept, base::Fields& row);
    static void mark(const Field& field, ui::ChangedBy who);
    /// Only somebody else has changed it.
    void takeFromOthers(Kept& kept, base::Fields& row);
    std::vector<Kept*> inConflict(base::Fields& now);

    host::HostServices& services_;
    const host::TlxVar& session_;
    std::vector<Kept> fields_;
    TakenOver takenOver_;
};

} // namespace tellurix::parts
