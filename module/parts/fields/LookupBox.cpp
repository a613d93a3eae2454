#include "module/parts/fields/LookupBox.h"

#include "module/base/own_text.h"
#include "module/parts/fields/typed_text.h"

namespace tellurix::parts {

LookupSource queried(std::string listQuery, std::string keyQuery) {
    return {.list = [listQuery = std::move(listQuery)] { return listQuery; },
            .resolution = [keyQuery = std::move(keyQuery)](
                              ui::TextBox& box) { return keyQuery + typedText(box) + "'"; }};
}

LookupSource named(const std::string& list) {
    return {.list = [list] { return list + "_GRID"; },
            .resolution = [list](ui::TextBox&) { return list + "_VALID"; },
            .shown = "LONG"};
}

LookupBox::LookupBox(ui::TextBox& box, host::HostServices& services, const host::TlxVar& session,
                     std::function<std::string()> title, LookupSource source)
    : box_(box), services_(services), session_(session), source_(std::move(source)) {
    box_.onLeave = [this] { return leave(); };
    box_.onPick = [this, title = std::move(title)] {
        box_.setText(services_.listPicker.choose(session_, source_.list(), title(), box_.text()));
    };
}

void LookupBox::show(const std::string& text, const std::string& key) {
    box_.show(text);
    box_.setTag(key);
    resolvedText_ = text;
}

bool LookupBox::leave() {
    if (box_.text() == resolvedText_) return true;
    resolvedText_.reset();
    box_.setTag("");
    ui::TextBox* const shown = source_.shown.empty()       ? nullptr
                               : source_.beside != nullptr ? source_.beside
                                                           : &box_;
    const std::string typed = box_.text();
    if (!services_.lookupValidation.resolve(session_, source_.resolution(box_), box_, shown, source_.shown)) {
        // A host that shows nothing for what it did not find would take away what was typed.
        if (box_.text() != typed) box_.setText(typed);
        box_.setError(base::ownText(base::OwnText::notInList, session_.language));
        return false;
    }
    resolvedText_ = box_.text();
    box_.setError({});
    return true;
}

} // namespace tellurix::parts
