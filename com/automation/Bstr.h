#pragma once

#include "com/automation/com.h"

#include <string>
#include <string_view>
#include <utility>

namespace tellurix::windows {

/// A text of automation's own kind.
class Bstr {
public:
    Bstr() = default;
    /// @param text UTF-8
    explicit Bstr(std::string_view text);
    Bstr(const Bstr&) = delete;
    Bstr& operator=(const Bstr&) = delete;
    Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
    Bstr& operator=(Bstr&& other) noexcept {
        std::swap(text_, other.text_);
        return *this;
    }
    ~Bstr() { SysFreeString(text_); }

    BSTR get() const { return text_; }
    /// For a function that answers with a text.
    BSTR* put() {
        *this = Bstr();
        return &text_;
    }
    /// Hands the text over to the caller.
    BSTR detach() { return std::exchange(text_, nullptr); }

private:
    BSTR text_ = nullptr;
};

/// The text in UTF-8; no text at all is an empty one.
std::string textOf(BSTR text);

} // namespace tellurix::windows
