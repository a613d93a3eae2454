#include "display/browser/session/key_uses.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace tellurix::browser {

namespace {

using nlohmann::json;
using ui::ControlKind;
using ui::Key;
using ui::KeyTraits;
using ui::KeyUse;

constexpr int greatestCode = 135; // F24

/// Which keys act once; who gets most keys, with Ctrl or without; and the codes of those that somebody else
/// gets.
json answersFor(const KeyTraits& traits) {
    json answers{{"once", json::array()}};
    for (int code = 1; code <= greatestCode; ++code)
        if (ui::actsOnce(traits, Key{code})) answers["once"].push_back(code);
    for (const bool ctrl : {false, true}) {
        const auto use = [&](int code) { return ui::keyUse(traits, {.key = Key{code}, .ctrl = ctrl}); };
        const KeyUse most = use(greatestCode);
        json others = json::object();
        for (int code = 1; code <= greatestCode; ++code)
            if (use(code) != most) others[nameOfUse(use(code))].push_back(code);
        answers[ctrl ? "ctrl" : "plain"] = {{"most", nameOfUse(most)}, {"others", std::move(others)}};
    }
    return answers;
}

/// Where a value stands in a list, behind which it is added where it is missing.
std::size_t placeOf(json value, json& list) {
    const auto found = std::ranges::find(list, value);
    const auto place = static_cast<std::size_t>(found - list.begin());
    if (found == list.end()) list.push_back(std::move(value));
    return place;
}

} // namespace

int keyUsesOf(const KeyTraits& traits) {
    return static_cast<int>(traits.kind) * 16 + (traits.filtered ? 8 : 0) + (traits.listens ? 4 : 0) +
           (traits.severalLines ? 2 : 0) + (traits.locked ? 1 : 0);
}

const char* nameOfUse(KeyUse use) {
    switch (use) {
    case KeyUse::native:
        return "native";
    case KeyUse::rules:
        return "rules";
    case KeyUse::overheard:
        return "overheard";
    case KeyUse::nobody:
        break;
    }
    return "nobody";
}

std::string keyUsesModule() {
    // Many controls have the same answers.
    json answers = json::array();
    json of = json::object();
    for (int kind = 0; kind <= static_cast<int>(ControlKind::progressBar); ++kind) {
        for (int flags = 0; flags < 16; ++flags) {
            const KeyTraits traits{ControlKind{kind}, (flags & 4) != 0, (flags & 2) != 0, (flags & 1) != 0,
                                   (flags & 8) != 0};
            const bool isBox = traits.kind == ControlKind::textBox;
            if (isBox || (!traits.severalLines && !traits.locked && !traits.filtered))
                of[std::to_string(keyUsesOf(traits))] = placeOf(answersFor(traits), answers);
        }
    }
    return "export const keyUses = " + json{{"answers", answers}, {"of", of}}.dump() + ";\n";
}

} // namespace tellurix::browser
