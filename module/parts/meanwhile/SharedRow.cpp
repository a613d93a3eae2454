#include "module/parts/meanwhile/SharedRow.h"

#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/parts/fields/typed_text.h"
#include "module/ui/controls/caption.h"

#include <algorithm>

namespace tellurix::parts {

using base::Fields;
using base::OwnText;

namespace {

/// With all decimals: what is shown in fewer may differ all the same.
constexpr const char* exactMask = "0.00######";

std::function<std::string()> nameFrom(const ui::TextBox& box) {
    return [&box] { return nameOf(box); };
}

std::function<std::string()> textOf(const ui::TextBox& box) {
    return [&box] { return box.text(); };
}

} // namespace

void SharedRow::add(Field field) {
    fields_.push_back({.field = std::move(field), .read = {}, .shown = {}});
}

void SharedRow::text(ui::TextBox& box, const std::string& column) {
    add({.column = column,
         .name = nameFrom(box),
         .show = [&box, column](Fields& row) { box.show(row.text(column)); },
         .mine = textOf(box),
         .theirs = [column](Fields& row) { return row.text(column); },
         .in = {&box}});
}

void SharedRow::date(ui::TextBox& box, const std::string& column, std::function<std::string()> name) {
    add({.column = column,
         .name = name ? std::move(name) : nameFrom(box),
         .show = [&box, column](Fields& row) { box.show(base::dateText(row.field(column))); },
         .mine = textOf(box),
         .theirs = [column](Fields& row) { return base::dateText(row.field(column)); },
         .in = {&box}});
}

void SharedRow::number(NumberField& field, const std::string& column) {
    const base::Locale locale = services_.locale;
    add({.column = column,
         .name = nameFrom(field.box()),
         .show = [&field, column](Fields& row) { field.show(row.field(column)); },
         .mine =
             [&field, locale] {
                 const auto number = field.number();
                 const auto exact = number ? base::Decimal::parse(*number) : std::nullopt;
                 return exact ? base::formatNumber(*exact, exactMask, locale) : std::string{};
             },
         .theirs = [column,
                    locale](Fields& row) { return base::numberText(row.field(column), exactMask, locale); },
         .in = {&field.box()}});
}

void SharedRow::lookup(LookupBox& box, const std::string& keyColumn, const std::string& textColumn) {
    add({.column = keyColumn,
         .name = nameFrom(box.box()),
         .show = [&box, keyColumn,
                  textColumn](Fields& row) { box.show(row.text(textColumn), row.text(keyColumn)); },
         .mine = textOf(box.box()),
         .theirs = [textColumn](Fields& row) { return row.text(textColumn); },
         .in = {&box.box()}});
}

void SharedRow::person(PersonBox& box, const std::string& keyColumn, const std::string& numberColumn,
                       const std::string& nameColumn) {
    const auto both = [](const std::string& number, const std::string& name) {
        return name.empty() ? number : number + " " + name;
    };
    add({.column = keyColumn,
         .name = nameFrom(box.number()),
         .show =
             [&box, keyColumn, numberColumn, nameColumn](Fields& row) {
                 box.show(row.text(keyColumn), row.text(numberColumn), row.text(nameColumn));
             },
         .mine = [&box, both] { return both(box.number().text(), box.shortName().text()); },
         .theirs = [numberColumn, nameColumn,
                    both](Fields& row) { return both(row.text(numberColumn), row.text(nameColumn)); },
         .in = {&box.number(), &box.shortName()}});
}

void SharedRow::flag(ui::CheckBox& box, const std::string& column) {
    const auto words = [this](bool ticked) {
        return base::ownText(ticked ? OwnText::ticked : OwnText::notTicked, session_.language);
    };
    add({.column = column,
         .name = [&box] { return ui::plainCaption(box.caption()); },
         .show = [&box, column](Fields& row) { box.setChecked(row.flag(column)); },
         .mine = [&box, words] { return words(box.checked()); },
         .theirs = [column, words](Fields& row) { return words(row.flag(column)); },
         .in = {&box}});
}

void SharedRow::show(Fields& row) {
    for (Kept& kept : fields_)
        take(kept, row);
    leave();
}

void SharedRow::leave() {
    for (const Kept& kept : fields_)
        mark(kept.field, ui::ChangedBy::nobody);
    takenOver_.clear();
}

void SharedRow::keep(std::string_view column, base::Value value) {
    const auto kept = std::ranges::find(fields_, column, [](const Kept& some) { return some.field.column; });
    kept->read = std::move(value);
    kept->shown = kept->field.mine();
}

bool SharedRow::changed(const Kept& kept) {
    const auto typedInto = [](const ui::Control* control) {
        const auto* box = ui::as<ui::TextBox>(control);
        return box != nullptr && box->touched();
    };
    // A picked text was not typed.
    return std::ranges::any_of(kept.field.in, typedInto) || kept.field.mine() != kept.shown;
}

void SharedRow::mark(const Field& field, ui::ChangedBy who) {
    for (ui::Control* control : field.in)
        control->setChangedBy(who);
}

void SharedRow::takeFromOthers(Kept& kept, Fields& row) {
    const std::string before = kept.field.mine();
    take(kept, row);
    takenOver_.add(
        {.name = kept.field.name(), .before = before, .now = kept.shown, .mark = [field = kept.field] {
             mark(field, ui::ChangedBy::colleague);
         }});
}

void SharedRow::take(Kept& kept, Fields& row) {
    kept.field.show(row);
    kept.read = row.field(kept.field.column);
    kept.shown = kept.field.mine();
}

std::vector<SharedRow::Kept*> SharedRow::inConflict(Fields& now) {
    std::vector<Kept*> conflicts;
    for (Kept& kept : fields_) {
        base::Value value = now.field(kept.field.column);
        if (base::sameValue(value, kept.read)) continue;
        if (!changed(kept)) {
            takeFromOthers(kept, now);
        } else if (kept.field.mine() == kept.field.theirs(now)) {
            kept.read = std::move(value);
        } else {
            conflicts.push_back(&kept);
        }
    }
    return conflicts;
}

bool SharedRow::settle(const std::function<std::unique_ptr<base::Recordset>()>& read) {
    while (true) {
        const auto now = read();
        if (now->atEnd()) return true;
        const std::vector<Kept*> fields = inConflict(*now);
        if (fields.empty()) return true;
        std::vector<Conflict> conflicts;
        for (const Kept* kept : fields)
            conflicts.push_back({kept->field.name(), kept->field.mine(), kept->field.theirs(*now)});
        const auto answer = ConflictQuestion{services_, session_}.ask(conflicts);
        if (answer == ConflictQuestion::Answer::back) return false;
        for (Kept* kept : fields) {
            if (answer == ConflictQuestion::Answer::theirs) {
                take(*kept, *now);
                mark(kept->field, ui::ChangedBy::colleague);
            } else {
                kept->read = now->field(kept->field.column);
            }
        }
    }
}

} // namespace tellurix::parts
