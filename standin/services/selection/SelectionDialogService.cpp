#include "standin/services/selection/SelectionDialogService.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/parts/M_Common.h"
#include "standin/services/selection/F_Selection.h"

#include <algorithm>
#include <stdexcept>

namespace tellurix::standin {

namespace {

/// The value of the line that a key names: its ID followed by the kind of line.
std::string presentValue(const host::TlxVar& session, const std::string& key) {
    const std::size_t digits = std::min(key.find_first_not_of("0123456789"), key.size());
    const std::string kind = key.substr(digits);
    const bool prices = kind == "VERTP";
    if (digits == 0 || (!prices && kind != "VERTM"))
        throw std::invalid_argument{"Die Selektion von „" + key + "“ kann nicht bearbeitet werden."};
    base::StatementText query{"SELECT SELEKTION_VALUE FROM "};
    query.fixed(prices ? "VERTRAG_PREISE" : "VERTRAG_MENGEN")
        .fixed(" WHERE ID = ")
        .number(key.substr(0, digits));
    const auto rows = session.connection->open(query.text());
    return rows->atEnd() ? std::string{} : rows->text("SELEKTION_VALUE");
}

} // namespace

std::optional<std::string> SelectionDialogService::select(const host::TlxVar& session, const std::string& key,
                                                          const std::string& upperType,
                                                          const std::string& out1, const std::string& out2) {
    return edit(session, presentValue(session, key), upperType, out1, out2);
}

std::optional<std::string> SelectionDialogService::edit(const host::TlxVar& session, const std::string& value,
                                                        const std::string&, const std::string&,
                                                        const std::string&) {
    const SelectionWords words{localizer_, session, locale_};
    SelectionExpression present;
    try {
        present = SelectionExpression::parse(value);
    } catch (const base::Refused& unreadable) {
        parts::ShowMessage(dialogs_.display(),
                           filled(words.named("unreadable"), {unreadable.message(session.language)}),
                           ui::box::exclamation, words.named("title"));
    }
    F_Selection::Choices choices;
    for (const AttributeKind& kind : timberAttributes())
        choices[kind.attribute] = choicesOf(session, kind);
    F_Selection form{dialogs_.display(), words, std::move(choices), std::move(present)};
    dialogs_.show(session, form);
    if (!form.chosen()) return std::nullopt;
    return form.chosen()->print();
}

} // namespace tellurix::standin
