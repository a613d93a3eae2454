#include "standin/services/selection/codes/TypeAheadService.h"

#include "module/base/text.h"

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace tellurix::standin {

namespace {

/// What one box is completed from, kept by its handlers below.
class Completion {
public:
    explicit Completion(ui::TextBox& box) : box_(box) {}

    void offer(const host::TlxVar& session, std::string query, std::string column) {
        session_ = session;
        query_ = std::move(query);
        column_ = std::move(column);
        codes_.reset();
    }

    void characterTyped(char32_t character) {
        typed_ = true;
        if (character == U',' && showsCompletion()) box_.select(length(), 0);
    }

    void textChanged() {
        if (!std::exchange(typed_, false)) return;
        std::u32string text = base::decodeUtf8(box_.text());
        if (box_.selectionLength() > 0 || static_cast<std::size_t>(box_.selectionStart()) != text.size())
            return;
        const std::size_t comma = text.rfind(U',');
        std::size_t start = comma == std::u32string::npos ? 0 : comma + 1;
        while (start < text.size() && text[start] == U' ')
            ++start;
        const std::u32string code = completed(text.substr(start));
        if (code.empty()) return;
        const int caret = static_cast<int>(text.size());
        text.replace(start, std::u32string::npos, code);
        if (box_.maxLength() > 0 && text.size() > static_cast<std::size_t>(box_.maxLength())) return;
        box_.setText(base::encodeUtf8(text));
        box_.select(caret, static_cast<int>(text.size()) - caret);
        completedText_ = box_.text();
        completionStart_ = caret;
    }

private:
    int length() const { return static_cast<int>(base::decodeUtf8(box_.text()).size()); }

    /// The completed part still stands there selected, as it was put there.
    bool showsCompletion() const {
        return box_.selectionLength() > 0 && box_.text() == completedText_ &&
               box_.selectionStart() == completionStart_ &&
               box_.selectionStart() + box_.selectionLength() == length();
    }

    /// The code that is `entry` or else the first one that starts with it; empty when there is none.
    std::u32string completed(std::u32string_view entry) {
        if (entry.empty()) return {};
        const std::u32string wanted = inCapitals(entry);
        const std::u32string* longer = nullptr;
        for (const std::u32string& code : codes()) {
            const std::u32string capitals = inCapitals(code);
            if (capitals == wanted) return code;
            if (longer == nullptr && capitals.starts_with(wanted)) longer = &code;
        }
        return longer == nullptr ? std::u32string{} : *longer;
    }

    const std::vector<std::u32string>& codes() {
        if (codes_) return *codes_;
        std::vector<std::u32string> codes;
        const auto rows = session_.connection->open(query_);
        for (; !rows->atEnd(); rows->moveNext())
            codes.push_back(base::decodeUtf8(rows->text(column_)));
        return codes_.emplace(std::move(codes));
    }

    static std::u32string inCapitals(std::u32string_view text) {
        std::u32string capitals{text};
        for (char32_t& character : capitals)
            character = base::toUpper(character);
        return capitals;
    }

    ui::TextBox& box_;
    host::TlxVar session_;
    std::string query_;
    std::string column_;
    std::optional<std::vector<std::u32string>> codes_;
    bool typed_ = false;
    std::string completedText_;
    int completionStart_ = 0;
};

struct CharacterTyped {
    std::shared_ptr<Completion> completion;

    void operator()(char32_t& character) const {
        if (character != 0) completion->characterTyped(character);
    }
};

struct TextChanged {
    std::shared_ptr<Completion> completion;

    void operator()() const { completion->textChanged(); }
};

} // namespace

void TypeAheadService::bind(const host::TlxVar& session, ui::TextBox& box, const std::string& query,
                            const std::string& displayColumn) {
    // A box is bound on every focus; its handlers are put in once.
    const TextChanged* bound = box.onChange.find<TextChanged>();
    const auto completion = bound != nullptr ? bound->completion : std::make_shared<Completion>(box);
    completion->offer(session, query, displayColumn);
    if (bound != nullptr) return;
    // Behind the box's filter, and before whoever looks at the completed text.
    box.onKeyPress.after(CharacterTyped{completion});
    box.onChange.before(TextChanged{completion});
}

} // namespace tellurix::standin
