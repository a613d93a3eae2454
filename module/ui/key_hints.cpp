#include "module/ui/key_hints.h"

#include "module/base/own_text.h"
#include "module/ui/Form.h"
#include "module/ui/controls/caption.h"
#include "module/ui/controls/visit.h"

#include <utility>

namespace tellurix::ui {

namespace {

using base::OwnText;

/// More than these are looked for behind F1.
constexpr std::size_t mostHints = 4;

class Hints {
public:
    explicit Hints(const Form& form) : form_(form) {}

    std::vector<KeyHint> made() {
        const Control* focused = form_.focused();
        if (!addOpenCell()) {
            if (const Grid* grid = as<Grid>(focused)) addGrid(*grid);
            const TextBox* box = as<TextBox>(focused);
            if (box != nullptr && box->onPick && !box->locked()) add(OwnText::hintPick);
            addPressed(OwnText::keySave, form_.primaryButton());
            addEscape();
        }
        if (hints_.size() >= mostHints) hints_.resize(mostHints - 1);
        add(OwnText::hintKeys);
        return std::move(hints_);
    }

private:
    void add(OwnText text, const std::vector<std::string>& values = {}) {
        const std::string line = base::ownText(text, form_.language(), values);
        const std::size_t tab = line.find('\t');
        hints_.push_back({line.substr(0, tab), line.substr(tab + 1)});
    }

    void addPressed(OwnText text, const Button* button) {
        if (button != nullptr && button->usable()) add(text, {plainCaption(button->caption())});
    }

    void addEscape() {
        if (form_.cancelButton() == nullptr) {
            if (form_.closes()) add(OwnText::keyCancel, {base::ownText(OwnText::close, form_.language())});
        } else if (form_.cancelButton() != form_.primaryButton()) {
            addPressed(OwnText::keyCancel, form_.cancelButton());
        }
    }

    bool addOpenCell() {
        for (const Control* control : form_.controls()) {
            const Grid* grid = as<Grid>(control);
            if (grid == nullptr || grid->cellEditor() == nullptr) continue;
            for (const OwnText text : {OwnText::hintTake, OwnText::hintDiscard, OwnText::hintRow})
                add(text);
            return true;
        }
        return false;
    }

    void addGrid(const Grid& grid) {
        addPressed(OwnText::keyGridInsert, grid.pressedBy(Key::insert));
        if (grid.anyOpen()) {
            add(OwnText::hintCell);
        } else {
            addPressed(OwnText::keyGridEdit, grid.pressedBy(Key::f2));
            if (!grid.rows().empty()) add(OwnText::hintCopy);
        }
    }

    const Form& form_;
    std::vector<KeyHint> hints_;
};

} // namespace

std::vector<KeyHint> keyHints(const Form& form) {
    return Hints{form}.made();
}

} // namespace tellurix::ui
