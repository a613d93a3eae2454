#include "database/embedded/execution/StatementCache.h"

namespace tellurix::embedded {

std::shared_ptr<Batch> StatementCache::find(std::string_view text) {
    const auto found = byText_.find(text);
    if (found != byText_.end()) {
        entries_.splice(entries_.begin(), entries_, found->second);
        return entries_.front();
    }
    auto batch = std::make_shared<Batch>(text);
    if (text.size() > longestKept) return batch;
    if (entries_.size() >= capacity) {
        byText_.erase(entries_.back()->text());
        entries_.pop_back();
    }
    entries_.push_front(batch);
    byText_.emplace(batch->text(), entries_.begin());
    return batch;
}

void StatementCache::clear() {
    byText_.clear();
    entries_.clear();
}

} // namespace tellurix::embedded
