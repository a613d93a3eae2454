#pragma once

#include "module/base/own_text.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tellurix::base {

/// What was asked for is not done, for a reason that lies with the input or with what somebody else has
/// done meanwhile. The message is for the user, who can act on it.
class Refused : public std::runtime_error {
public:
    struct Sentence {
        OwnText text;
        std::vector<std::string> values = {};
    };

    explicit Refused(std::vector<Sentence> sentences)
        : runtime_error(joined(sentences, "de")), sentences_(std::move(sentences)) {}
    explicit Refused(OwnText text) : Refused(std::vector<Sentence>{{text}}) {}
    /// With a message that is in the user's language already.
    explicit Refused(const std::string& message) : runtime_error(message) {}

    /// @param language of the session; `what()` is the German message
    std::string message(std::string_view language) const {
        return sentences_.empty() ? what() : joined(sentences_, language);
    }
    const std::vector<Sentence>& sentences() const { return sentences_; }

private:
    static std::string joined(const std::vector<Sentence>& sentences, std::string_view language) {
        std::string message;
        for (const Sentence& sentence : sentences)
            message += (message.empty() ? "" : " ") + ownText(sentence.text, language, sentence.values);
        return message;
    }

    std::vector<Sentence> sentences_;
};

} // namespace tellurix::base
