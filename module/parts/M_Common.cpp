#include "module/parts/M_Common.h"

#include "module/base/StatementText.h"
#include "module/base/number_format.h"
#include "module/base/text.h"
#include "module/host/contract_type.h"
#include "module/ui/controls/TextBox.h"

#include <limits>

namespace tellurix::parts {

namespace {

constexpr std::int16_t backspace = 8;
constexpr std::int16_t rejected = 0;

/// Whether a typed number, rounded to a whole one, lies in the range of an integer type.
template <typename Integer>
bool fitsInteger(const std::string& text, const base::Locale& locale) {
    const auto number = base::parseNumber(text, locale);
    if (!number) return false;
    const std::int64_t whole = number->rounded(0).units();
    return whole >= std::numeric_limits<Integer>::min() && whole <= std::numeric_limits<Integer>::max();
}

bool convertsTo(base::FieldType type, const std::string& text, const base::Locale& locale) {
    switch (type) {
    case base::FieldType::smallInteger:
        return fitsInteger<std::int16_t>(text, locale);
    case base::FieldType::integer:
        return fitsInteger<std::int32_t>(text, locale);
    case base::FieldType::tinyInteger:
        return fitsInteger<std::uint8_t>(text, locale);
    case base::FieldType::floating:
    case base::FieldType::decimal:
        return base::isNumeric(text, locale);
    case base::FieldType::flag: {
        const std::string upper = base::toUpper(text);
        return base::isNumeric(text, locale) || upper == "TRUE" || upper == "FALSE" || upper == "WAHR" ||
               upper == "FALSCH";
    }
    default:
        return true;
    }
}

std::string focusedText(const ui::Form& form) {
    const ui::Control* focused = form.focused();
    if (const auto* box = ui::as<ui::TextBox>(focused)) return box->text();
    if (const auto* combo = ui::as<ui::ComboBox>(focused)) return combo->selectedText();
    return {};
}

} // namespace

ui::Answer ShowMessage(ui::Display& display, const std::string& prompt, int flags, const std::string& title,
                       const std::string& /*helpFile*/, int /*helpContext*/) {
    return display.messageBox(prompt, flags, title.empty() ? "Tellurix" : title);
}

void SelectActiveText(ui::Form& form) {
    if (auto* box = ui::as<ui::TextBox>(form.focused())) box->selectAll();
}

std::int16_t CheckKeyForColumn(const host::TlxVar& session, const ui::Form& form, std::int16_t keyCode,
                               const std::string& table, const std::string& column,
                               const base::Locale& locale) {
    if (keyCode == backspace) return keyCode;
    std::string text = focusedText(form);
    if (keyCode != 0) text += base::encodeUtf8(static_cast<char32_t>(static_cast<std::uint16_t>(keyCode)));
    if (text == "-") return keyCode;
    if (text.empty()) text = "0";

    base::StatementText statement{"SELECT "};
    statement.identifier(column).fixed(" FROM ").identifier(table);
    // Only the column's type is asked for: no row of the table is fetched for a key press.
    const base::ExecuteResult answer = session.connection->execute(statement.text());
    return convertsTo(answer.rows->fieldType(0), text, locale) ? keyCode : rejected;
}

void SafeSetFocus(ui::Control& control) {
    try {
        control.form().setFocus(control);
    } catch (const std::exception&) {
        // The focus is a courtesy; what its handler could not do must not stop the caller.
    }
}

void SelectComboItem(ui::ComboBox& combo, const std::string& text) {
    const std::string wanted = base::toUpper(text);
    int found = 0;
    for (std::size_t i = 0; i < combo.items().size(); ++i) {
        if (base::toUpper(combo.items()[i].text) == wanted) {
            found = static_cast<int>(i);
            break;
        }
    }
    combo.select(found);
}

std::string GetTypeColumn(const std::string& kind, const std::string& type,
                          host::HostMainWindow* mainWindow) {
    const int number = host::contractTypeNumber(type);
    if (number < 0) return {};
    const std::string digit = number == 0 ? "" : std::to_string(number);
    const std::string upperKind = base::toUpper(kind);
    if (upperKind == "ABSCHLAG") {
        const bool articles = mainWindow != nullptr && mainWindow->IsArtikel();
        return "ABSCHLAG" + digit + (articles ? "_A" : "");
    }
    return upperKind == "RECHZUSATZ" ? "KONF_RECHZUSATZ" + digit : std::string{};
}

} // namespace tellurix::parts
