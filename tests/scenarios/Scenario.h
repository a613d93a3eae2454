#pragma once

#include "module/ui/input/keys.h"
#include "module/ui/message_box.h"

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace tellurix::tests {

/// One thing that the user of a scenario does or looks at; README.md has the verbs.
struct Step {
    struct Word {
        std::string text;
        bool quoted = false;
    };

    int line = 0; ///< in the file, from 1
    std::string verb;
    std::vector<Word> words; ///< what stands behind the verb

    bool quoted(std::size_t index) const { return index < words.size() && words[index].quoted; }
    /// @throws ScenarioError when there is no such word
    const std::string& word(std::size_t index) const;
    /// A count or a place, from 1. @throws ScenarioError when the word is none
    int number(std::size_t index) const;
};

/// A step that is not understood, or that did not go as the scenario says.
class ScenarioError : public std::runtime_error {
public:
    ScenarioError(const Step& step, const std::string& what)
        : std::runtime_error{"line " + std::to_string(step.line) + " (" + step.verb + "): " + what} {}
};

/// The key that a word of a step names, with what is held down meanwhile: "Shift+Tab", "Alt+K". Ctrl
/// alone is a key too. @throws ScenarioError
ui::KeyDown keyOf(const Step& step, const std::string& word);

/// The button that an "answer" presses. @throws ScenarioError
ui::Answer answerOf(const Step& step);

/// Reads a scenario's steps; "open" has become the steps that it stands for.
/// @throws ScenarioError
std::vector<Step> readScenario(const std::filesystem::path& file);

} // namespace tellurix::tests
