#include "module/parts/LookupBox.h"

#include "module/parts/typed_text.h"

namespace tellurix::parts {

LookupBox::LookupBox(ui::TextBox& box, host::HostServices& services, const host::TlxVar& session,
                     std::function<std::string()> title, Lookup lookup)
    : box_(box), services_(services), session_(session), keyQuery_(std::move(lookup.keyQuery)) {
    box_.onLeave = [this] { return leave(); };
    box_.onPick = [this, title = std::move(title), listQuery = std::move(lookup.listQuery)] {
        box_.setText(services_.listPicker.choose(session_, listQuery, title(), box_.text()));
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
    const std::string query = keyQuery_ + typedText(box_) + "'";
    if (!services_.lookupValidation.resolve(session_, query, box_, nullptr, "")) return false;
    resolvedText_ = box_.text();
    return true;
}

} // namespace tellurix::parts
