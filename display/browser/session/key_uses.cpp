#include "display/browser/session/key_uses.h"

#include <nlohmann/json.hpp>

namespace tellurix::browser {

namespace {

using nlohmann::json;
using ui::ControlKind;
using ui::Key;
using ui::KeyTraits;
using ui::KeyUse;

constexpr int greatestCode = 135; // F24

json answersFor(const KeyTraits& traits) {
    json answers{{"once", json::array()}, {"uses", json::object()}};
    for (int code = 1; code <= greatestCode; ++code) {
        const Key key{code};
        if (ui::actsOnce(traits, key)) answers["once"].push_back(code);
        for (const bool ctrl : {false, true}) {
            const KeyUse use = ui::keyUse(traits, {.key = key, .ctrl = ctrl});
            if (use != KeyUse::native)
                answers["uses"][(ctrl ? "ctrl+" : "") + std::to_string(code)] = nameOfUse(use);
        }
    }
    return answers;
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
    json all = json::object();
    for (int kind = 0; kind <= static_cast<int>(ControlKind::progressBar); ++kind) {
        for (int flags = 0; flags < 16; ++flags) {
            const KeyTraits traits{ControlKind{kind}, (flags & 4) != 0, (flags & 2) != 0, (flags & 1) != 0,
                                   (flags & 8) != 0};
            const bool isBox = traits.kind == ControlKind::textBox;
            if (isBox || (!traits.severalLines && !traits.locked && !traits.filtered))
                all[std::to_string(keyUsesOf(traits))] = answersFor(traits);
        }
    }
    return "export const keyUses = " + all.dump() + ";\n";
}

} // namespace tellurix::browser
