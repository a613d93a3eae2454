#include "module/parts/LookupBox.h"

#include "module/parts/typed_text.h"

namespace tellurix::parts {

LookupSource queried(std::string listQuery, std::string keyQuery) {
    return {.list = [listQuery = std::move(listQuery)] { return listQuery; },
            .resolution = [keyQuery = std::move(keyQuery)](
                              ui::TextBox& box) { return keyQuery + typedText(box) + "'"; }};
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
    box_.setText(text);
    box_.setTag(key);
    resolvedText_ = text;
}

bool LookupBox::leave() {
    if (box_.text() == resolvedText_) return true;
    resolvedText_.reset();
    box_.setTag("");
    if (!services_.lookupValidation.resolve(session_, source_.resolution(box_), box_, nullptr, ""))
        return false;
    resolvedText_ = box_.text();
    return true;
}

} // namespace tellurix::parts
