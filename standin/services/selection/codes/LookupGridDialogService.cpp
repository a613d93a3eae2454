#include "standin/services/selection/codes/LookupGridDialogService.h"

#include "standin/services/selection/codes/F_LookupGrid.h"
#include "standin/services/selection/selection_words.h"

#include <stdexcept>

namespace tellurix::standin {

std::string LookupGridDialogService::choose(const host::TlxVar& session, const std::string& layout,
                                            const std::string& title, const std::string&,
                                            const std::string& mode, const std::string& current) {
    const AttributeKind* kind = findAttribute(layout);
    if (kind == nullptr) throw std::invalid_argument{"Es gibt keine Auswahlliste „" + layout + "“."};
    F_LookupGrid form{dialogs_.display(),
                      title,
                      SelectionWords{localizer_, session, locale_}.choiceCaptions(),
                      choicesOf(session, *kind),
                      codesOf(current),
                      mode == "01"};
    dialogs_.show(session, form, layout);
    if (!form.chosen()) return current;
    std::string codes;
    for (const std::string& code : *form.chosen())
        codes += (codes.empty() ? "" : ",") + code;
    return codes;
}

} // namespace tellurix::standin
