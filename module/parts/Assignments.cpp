#include "module/parts/Assignments.h"

#include "module/parts/fields/typed_text.h"

namespace tellurix::parts {

void Assignments::date(std::string_view assignment, const ui::TextBox& box) {
    statement_.fixed(assignment);
    if (box.text().empty()) {
        statement_.null();
    } else {
        statement_.quotedAsItStands(services_.dateConverter.toSql(box.text(), session_));
    }
}

void Assignments::number(std::string_view assignment, const NumberField& field) {
    statement_.fixed(assignment);
    if (const auto number = field.number()) {
        statement_.number(*number);
    } else {
        statement_.null();
    }
}

void Assignments::key(std::string_view assignment, const std::string& key) {
    statement_.fixed(assignment);
    key.empty() ? statement_.null() : statement_.number(key);
}

void Assignments::flagOrNull(std::string_view assignment, const ui::CheckBox& box) {
    statement_.fixed(assignment).fixed(box.checked() ? "1" : "NULL");
}

void Assignments::text(std::string_view assignment, ui::TextBox& box) {
    statement_.fixed(assignment).quotedAsItStandsOrNull(typedText(box));
}

} // namespace tellurix::parts
