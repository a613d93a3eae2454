#include "module/parts/UndoOffers.h"

#include "module/base/own_text.h"

namespace tellurix::parts {

void UndoOffers::offer(std::string done, std::function<std::string()> undo) {
    done_.push_back({std::move(done), std::move(undo)});
    say({});
}

void UndoOffers::say(const std::string& text) {
    if (done_.empty()) return status_.say(text);
    // What would be undone has to be seen beside the offer.
    const std::string& last = done_.back().text;
    const char* end = text.ends_with('.') ? " " : ". ";
    status_.say(text.empty() ? last : text + end + last,
                base::ownText(base::OwnText::undo, session_.language), [this] { undoLast(); });
}

void UndoOffers::undoLast() {
    const std::string said = done_.back().undo();
    done_.pop_back();
    say(said);
}

void UndoOffers::forget() {
    done_.clear();
    status_.clear();
}

} // namespace tellurix::parts
