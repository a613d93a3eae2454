#include "module/parts/fields/PersonBox.h"

#include "module/base/StatementText.h"
#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/base/whole_number.h"
#include "module/host/module_state.h"
#include "module/ui/input/number_box.h"

namespace tellurix::parts {

std::optional<std::string> personNumber(base::Connection& connection, std::int32_t person) {
    base::StatementText query{"SELECT NUMMER FROM PERSONAL WHERE ID_PERSONAL = "};
    const auto row = connection.open(query.number(person).text());
    return row->atEnd() ? std::nullopt : std::optional{row->text("NUMMER")};
}

PersonBox::PersonBox(ui::TextBox& number, ui::TextBox& shortName, host::HostServices& services,
                     const host::TlxVar& session, Choice choice)
    : number_(number),
      shortName_(shortName),
      services_(services),
      session_(session),
      choice_(std::move(choice)) {
    shortName_.setLocked(true);
    ui::makeDigitBox(number_);
    number_.onPick = [this] { pick(); };
    number_.onLeave = [this] { return leave(); };
}

void PersonBox::show(const std::string& key, const std::string& number, const std::string& shortName) {
    number_.setTag(key);
    number_.show(number);
    shortName_.show(shortName);
    resolvedNumber_ = number;
}

void PersonBox::pick() {
    host::HostContext& context = host::moduleState().context;
    const std::int32_t person = services_.personalPicker.choose(
        session_, choice_.pickerMode, choice_.accessLevel(), context.g_intStandardMandanten,
        base::wholeNumber<std::int32_t>(number_.tag()).value_or(0), context.blnOK);
    if (person <= 0) return;
    const auto number = personNumber(*session_.connection, person);
    if (!number) return;
    number_.setText(*number);
    if (!choice_.chosen) return;
    base::StatementText query{"SELECT KURZBEZEICHNUNG FROM PERSONAL WHERE ID_PERSONAL = "};
    const auto name = session_.connection->open(query.number(person).text());
    number_.setTag(std::to_string(person));
    shortName_.setText(name->atEnd() ? "" : name->text("KURZBEZEICHNUNG"));
    tell();
    resolvedNumber_ = *number;
}

void PersonBox::tell() {
    if (!choice_.chosen) return;
    // Until whoever is told has done with it, the number counts as not looked up: after a failure the same
    // one can be chosen again.
    resolvedNumber_.reset();
    choice_.chosen();
}

bool PersonBox::leave() {
    if (number_.text() == resolvedNumber_) return true;
    resolvedNumber_.reset();
    number_.setTag("");
    shortName_.setText("");
    if (!base::isNumeric(number_.text(), services_.locale)) number_.setText("");
    const std::string query = number_.text().empty()
                                  ? std::string{}
                                  : services_.personQuery.build(session_, "PERSONAL", number_.text(),
                                                                choice_.accessLevel(), choice_.validFilter);
    const bool found =
        services_.lookupValidation.resolve(session_, query, number_, &shortName_, "KURZBEZEICHNUNG");
    tell();
    if (found) resolvedNumber_ = number_.text();
    number_.setError(found ? std::string{} : base::ownText(base::OwnText::notInList, session_.language));
    return found;
}

} // namespace tellurix::parts
