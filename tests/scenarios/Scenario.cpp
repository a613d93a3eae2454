#include "tests/scenarios/Scenario.h"

#include "module/base/text.h"

#include <cctype>
#include <charconv>
#include <fstream>
#include <map>

namespace tellurix::tests {

namespace {

/// A quoted text with its tabs and line ends, which a line of the file cannot hold.
std::string meant(const std::string& quoted) {
    return base::replaceAll(base::replaceAll(quoted, "\\t", "\t"), "\\n", "\n");
}

/// Cuts a line into its words; what stands in quotation marks is one word, blanks and all.
std::vector<Step::Word> wordsOf(const std::string& line, const Step& at) {
    std::vector<Step::Word> words;
    for (std::size_t i = line.find_first_not_of(' '); i < line.size(); i = line.find_first_not_of(' ', i)) {
        if (line[i] == '#') break;
        const bool quoted = line[i] == '"';
        const std::size_t start = quoted ? i + 1 : i;
        const std::size_t end = line.find(quoted ? '"' : ' ', start);
        if (quoted && end == std::string::npos) throw ScenarioError{at, "a quotation mark is missing"};
        const std::string text = line.substr(start, end - start);
        words.push_back({quoted ? meant(text) : text, quoted});
        if (end == std::string::npos) break;
        i = end + 1;
    }
    return words;
}

Step step(int line, std::string verb, std::vector<Step::Word> words) {
    return {.line = line, .verb = std::move(verb), .words = std::move(words)};
}

} // namespace

const std::string& Step::word(std::size_t index) const {
    if (index >= words.size()) throw ScenarioError{*this, "something is missing behind the verb"};
    return words[index].text;
}

int Step::number(std::size_t index) const {
    const std::string& text = word(index);
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < 1)
        throw ScenarioError{*this, "\"" + text + "\" is no number from 1"};
    return value;
}

ui::KeyDown keyOf(const Step& step, const std::string& word) {
    using ui::Key;
    static const std::map<std::string, Key> names{{"Backspace", Key::backspace},
                                                  {"Tab", Key::tab},
                                                  {"Enter", Key::enter},
                                                  {"Ctrl", Key::ctrl},
                                                  {"Esc", Key::escape},
                                                  {"Space", Key::space},
                                                  {"PageUp", Key::pageUp},
                                                  {"PageDown", Key::pageDown},
                                                  {"End", Key::end},
                                                  {"Home", Key::home},
                                                  {"Left", Key::left},
                                                  {"Up", Key::up},
                                                  {"Right", Key::right},
                                                  {"Down", Key::down},
                                                  {"Insert", Key::insert},
                                                  {"Delete", Key::del},
                                                  {"F1", Key::f1},
                                                  {"F2", Key::f2},
                                                  {"F4", Key::f4}};
    ui::KeyDown key;
    std::string name = word;
    for (std::size_t plus = name.find('+'); plus != std::string::npos; plus = name.find('+')) {
        const std::string held = name.substr(0, plus);
        key.shift |= held == "Shift";
        key.ctrl |= held == "Ctrl";
        key.alt |= held == "Alt";
        name.erase(0, plus + 1);
    }
    const bool letter = name.size() == 1 && (std::isupper(static_cast<unsigned char>(name[0])) != 0);
    if (!letter && !names.contains(name)) throw ScenarioError{step, "there is no key " + word};
    key.key = letter ? static_cast<Key>(name[0]) : names.at(name);
    return key;
}

ui::Answer answerOf(const Step& step) {
    static const std::map<std::string, ui::Answer> answers{{"OK", ui::Answer::ok},
                                                           {"Abbrechen", ui::Answer::cancel},
                                                           {"Ja", ui::Answer::yes},
                                                           {"Nein", ui::Answer::no}};
    const auto answer = answers.find(step.word(0));
    if (answer == answers.end()) throw ScenarioError{step, "there is no button " + step.word(0)};
    return answer->second;
}

std::vector<Step> readScenario(const std::filesystem::path& file) {
    std::ifstream stream{file};
    if (!stream) throw std::runtime_error{"cannot read " + file.string()};
    std::vector<Step> steps;
    std::string text;
    for (int line = 1; std::getline(stream, text); ++line) {
        Step read = step(line, {}, {});
        std::vector<Step::Word> words = wordsOf(text, read);
        if (words.empty()) continue;
        read.verb = words.front().text;
        words.erase(words.begin());
        read.words = std::move(words);
        if (read.verb != "open") {
            steps.push_back(std::move(read));
            continue;
        }
        steps.push_back(step(line, "window", {{"F_Start"}}));
        steps.push_back(step(line, "type", {{"txtSearch"}, {read.word(0), true}}));
        steps.push_back(step(line, "key", {{"Enter"}}));
        steps.push_back(step(line, "window", {{"F_Vertrag"}}));
    }
    return steps;
}

} // namespace tellurix::tests
