#pragma once

#include "module/base/StatementText.h"
#include "module/host/services.h"
#include "module/parts/fields/NumberField.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/TextBox.h"

#include <string>
#include <string_view>

namespace tellurix::parts {

/// The assignments of an UPDATE that writes what the boxes of a screen say, one after the other. Each
/// has its own literal, blanks and comma included, because these differ from one assignment to the
/// next: `date(",DATE1 = ", txtDate2)`. What is empty is written as NULL.
class Assignments {
public:
    /// @param statement the UPDATE up to its first assignment
    Assignments(base::StatementText& statement, host::HostServices& services, const host::TlxVar& session)
        : statement_(statement), services_(services), session_(session) {}

    /// The date between single quotes, as the host's converter writes it.
    void date(std::string_view assignment, const ui::TextBox& box);
    /// The number without quotes; a box without a number is NULL.
    void number(std::string_view assignment, const NumberField& field);
    /// A database key as a box keeps it.
    void key(std::string_view assignment, const std::string& key);
    /// 1 and NULL, never 0.
    void flagOrNull(std::string_view assignment, const ui::CheckBox& box);
    /// The text between single quotes, as it stands.
    /// @throws ui::RefusedInput when a quote in it would end its place
    void text(std::string_view assignment, ui::TextBox& box);

private:
    base::StatementText& statement_;
    host::HostServices& services_;
    const host::TlxVar& session_;
};

} // namespace tellurix::parts
