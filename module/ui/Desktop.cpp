#include "module/ui/Desktop.h"

#include "module/base/text.h"
#include "module/ui/F_Tasten.h"
#include "module/ui/controls/Button.h"
#include "module/ui/controls/Chart.h"
#include "module/ui/controls/CheckBox.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/ListBox.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/controls/UpDown.h"
#include "module/ui/controls/caption.h"
#include "module/ui/controls/control_caption.h"
#include "module/ui/input/RefusedInput.h"
#include "module/ui/input/control_keys.h"

#include <algorithm>

namespace tellurix::ui {

namespace {

/// The access key of a control, 0 for none. The captions of pages and columns mark none.
char32_t accessKeyOf(const Control& control) {
    return ui::accessKeyOf(ownCaption(control));
}

constexpr Key undoKey{'Z'}; // with Ctrl

bool editable(const TextBox* box) {
    return box != nullptr && box->changeable();
}

/// Whether a key makes a character that can be part of a text; those of other signs have no code.
bool isTyped(Key key) {
    return key == Key::none || key == Key::space || (key >= Key{'0'} && key <= Key{'Z'});
}

/// Whether a click, Space and its access key press it.
bool isPressed(const Control& control) {
    return as<Button>(&control) != nullptr || as<CheckBox>(&control) != nullptr;
}

} // namespace

void Desktop::runModal(Form& form, const std::function<Event()>& nextEvent) {
    struct Window {
        Window(std::vector<Form*>& windows, Form& form) : windows_(windows) { windows_.push_back(&form); }
        ~Window() {
            // What is offered there was for this visit.
            windows_.back()->status().clear();
            windows_.pop_back();
        }
        std::vector<Form*>& windows_;
    } window{windows_, form};

    form.load();
    if (Control* first = form.firstControl()) dispatch(FocusEvent{first});
    while (form.loaded())
        dispatch(nextEvent());
}

void Desktop::dispatch(const Event& event) {
    Form* form = top();
    if (form == nullptr || !form->loaded()) return;
    try {
        std::visit([this, form](const auto& happened) { handle(*form, happened); }, event);
    } catch (const RefusedInput& refused) {
        // The last sentence says what to do; where it is, is seen.
        const auto& sentences = refused.sentences();
        refused.control().setError(sentences.empty() ? refused.what()
                                                     : base::ownText(sentences.back().text,
                                                                     refused.control().form().language(),
                                                                     sentences.back().values));
        errors_.report(refused);
        goTo(refused.control());
    } catch (const std::exception& error) {
        errors_.report(error);
    }
}

bool Desktop::doLater() {
    Form* form = top();
    if (form == nullptr || !form->loaded()) return false;
    try {
        return form->doLater();
    } catch (const std::exception& error) {
        errors_.report(error);
        return true;
    }
}

void Desktop::goTo(Control& control) {
    try {
        control.form().setFocus(control);
    } catch (const std::exception& error) {
        errors_.report(error);
    }
}

bool Desktop::leave(Form& form) {
    Control* from = form.focused();
    if (from != nullptr && from->onLeave && from->usable() && !from->onLeave()) {
        form.setFocus(*from);
        return false;
    }
    if (from != nullptr) from->left();
    return form.loaded() && form.focused() == from;
}

bool Desktop::moveFocus(Form& form, Control& to) {
    if (form.focused() == &to) return true;
    // Leaving may disable where the focus would go to; then setting it is refused.
    return to.takesFocus() && to.usable() && leave(form) && form.setFocus(to);
}

void Desktop::moveByTab(Form& form, bool backwards) {
    if (form.tabOrder().empty() || !leave(form)) return;

    // What leaving changed (a frame that became usable) counts for where Tab goes.
    const std::vector<Control*> order = form.tabOrder();
    if (order.empty()) return;
    const auto at = std::ranges::find(order, form.focused());
    std::size_t next = 0;
    if (at != order.end()) {
        const auto index = static_cast<std::size_t>(at - order.begin());
        next = (index + (backwards ? order.size() - 1 : 1)) % order.size();
    }
    form.setFocus(*order[next]);
}

void Desktop::press(Form& form, Control& control) {
    if (!control.usable()) return;
    Button* button = as<Button>(&control);
    const bool checks = button == nullptr || button->causesValidation();
    if (checks ? !moveFocus(form, control) : !form.setFocus(control)) return;
    if (button != nullptr) {
        button->onClick();
    } else if (CheckBox* check = as<CheckBox>(&control)) {
        check->setChecked(!check->checked());
        check->noteChange();
        check->onClick();
    }
}

void Desktop::pick(Form& form, Control& control) {
    TextBox* box = as<TextBox>(&control);
    if (!editable(box) || !box->onPick || !moveFocus(form, control)) return;
    box->onPick();
    box->selectAll();
}

void Desktop::handle(Form& form, const KeyDownEvent& event) {
    KeyDown key = event.key;
    Control* control = form.focused();
    if (!isTyped(key.key)) search_.forget();
    if (control != nullptr && control->onKeyDown) {
        control->onKeyDown(key);
        if (key.key != event.key.key) search_.forget();
        if (key.key == Key::none || !form.loaded()) return;
    }
    if (windowKey(form, key) || control == nullptr) return;
    if (key.key == Key::enter) {
        enter(form, *control, key);
    } else if (key.key == Key::f4) {
        pick(form, *control);
    } else if (key.key == Key::space && isPressed(*control)) {
        press(form, *control);
    } else if (Grid* grid = as<Grid>(control)) {
        gridKey(form, *grid, {key, event.columnWidth});
    } else if (TextBox* box = as<TextBox>(control); box != nullptr && key.ctrl && key.key == undoKey) {
        if (editable(box) && box->undo()) box->onChange();
    } else {
        applyKey(*control, key.key);
    }
}

void Desktop::gridKey(Form& form, Grid& grid, const KeyDownEvent& event) {
    const auto& [key, shift, ctrl, alt] = event.key;
    Button* button = shift || ctrl || alt ? nullptr : grid.pressedBy(key);
    if (button == nullptr) return applyGridKey(grid, event);
    press(form, *button);
    // The next key is meant for the rows again.
    if (form.loaded() && form.focused() == button) form.setFocus(grid);
}

void Desktop::showKeys(const Form& form) {
    if (showsKeys_) return;
    struct Showing {
        explicit Showing(bool& flag) : flag(flag) { flag = true; }
        ~Showing() { flag = false; }
        bool& flag;
    } const showing{showsKeys_};
    F_Tasten keys{form};
    display_.showModal(keys);
}

bool Desktop::windowKey(Form& form, const KeyDown& key) {
    if (key.key == Key::escape && !form.escape()) return true;
    if (key.key == Key::escape && form.cancelButton() != nullptr) {
        press(form, *form.cancelButton());
    } else if (key.key == Key::escape || (key.key == Key::f4 && key.alt)) {
        form.unload();
    } else if (key.key == Key::tab && !key.ctrl && !key.alt) {
        moveByTab(form, key.shift);
    } else if (key.key == Key::f1) {
        showKeys(form);
    } else if (key.key == Key{'S'} && key.ctrl) {
        if (Button* save = form.primaryButton()) press(form, *save);
    } else {
        return false;
    }
    return true;
}

void Desktop::enter(Form& form, Control& control, const KeyDown& key) {
    if (as<Button>(&control) != nullptr) {
        press(form, control);
    } else if (Grid* grid = as<Grid>(&control); grid != nullptr && key.ctrl && grid->onHeadingClick) {
        grid->onHeadingClick(grid->currentColumn());
    } else if (grid != nullptr && grid->onDoubleClick) {
        grid->onDoubleClick();
    } else if (ListBox* list = as<ListBox>(&control); list != nullptr && list->onDoubleClick) {
        list->onDoubleClick();
    } else if (TextBox* box = as<TextBox>(&control); key.ctrl && editable(box) && box->lines() > 1) {
        typeCharacter(*box, U'\n');
    } else {
        moveByTab(form, key.shift);
    }
}

void Desktop::handle(Form& form, const PickKeyEvent&) {
    if (form.focused() != nullptr) pick(form, *form.focused());
}

void Desktop::handle(Form& form, const KeyPressEvent& event) {
    // Control characters are keys, not text: their key-down event has dealt with them.
    if (event.character < 32 || event.character == 127) return;
    if (TextBox* box = as<TextBox>(form.focused()); editable(box)) {
        typeCharacter(*box, event.character);
    } else if (Grid* grid = as<Grid>(form.focused()); grid != nullptr && grid->usable()) {
        char32_t character = event.character;
        grid->onKeyPress(character);
        if (character == 0 || !form.loaded()) return;
        const int row = search_.typed(*grid, character, RowSearch::Clock::now());
        if (row != Grid::none) choose(*grid, row, grid->currentColumn());
    }
}

void Desktop::handle(Form& form, const AccessKeyEvent& event) {
    const char32_t wanted = base::toUpper(event.character);
    std::vector<Control*> targets;
    for (Control* control : form.controls()) {
        if (accessKeyOf(*control) != wanted) continue;
        const Label* label = as<Label>(control);
        Control* target = label == nullptr ? control : form.labelled(*label);
        if (target != nullptr && target->takesFocus() && target->usable()) targets.push_back(target);
    }
    if (targets.empty()) {
        if (ui::accessKeyOf(form.status().action()) == wanted) handle(form, StatusActionEvent{});
        return;
    }
    if (targets.size() > 1) {
        // A key that several controls share goes from one to the next and presses none of them.
        const auto at = std::ranges::find(targets, form.focused());
        moveFocus(form, at == targets.end() || at + 1 == targets.end() ? *targets.front() : **(at + 1));
    } else if (isPressed(*targets.front())) {
        press(form, *targets.front());
    } else {
        moveFocus(form, *targets.front());
    }
}

void Desktop::handle(Form& form, const FocusEvent& event) {
    if (event.control != nullptr) moveFocus(form, *event.control);
}

void Desktop::handle(Form& form, const TextEditedEvent& event) {
    if (event.box == nullptr) return;
    TextBox& box = *event.box;
    if (!editable(&box) || !moveFocus(form, box)) {
        box.markDirty(); // the display shows what has not come about
    } else if (box.edited(event.text, event.selectionStart, event.selectionLength)) {
        form.status().goOn();
        box.onChange();
    } else {
        // Something that helps the user type has written it.
        box.selectAll();
        typeText(box, event.text);
    }
}

void Desktop::handle(Form& form, const SelectionEvent& event) {
    if (event.box != nullptr && form.focused() == event.box) event.box->select(event.start, event.length);
}

void Desktop::handle(Form& form, const PasteEvent& event) {
    TextBox* box = as<TextBox>(event.control);
    Grid* grid = as<Grid>(event.control);
    if (editable(box) && moveFocus(form, *box)) typeText(*box, event.text);
    if (grid != nullptr && grid->usable() && moveFocus(form, *grid)) grid->onPaste(event.text);
}

void Desktop::handle(Form& form, const ClickEvent& event) {
    if (event.control != nullptr) press(form, *event.control);
}

void Desktop::handle(Form& form, const StepEvent& event) {
    UpDown* upDown = as<UpDown>(event.control);
    if (upDown == nullptr || !upDown->usable() || !moveFocus(form, *upDown)) return;
    (event.up ? upDown->onUp : upDown->onDown)();
}

void Desktop::handle(Form& form, const SelectEvent& event) {
    if (const Chart* chart = as<Chart>(event.control)) {
        // It never has the focus: what stands in the box that has it is checked first, as for a button.
        if (chart->usable() && leave(form)) chart->onSelect(event.index);
        return;
    }
    if (event.control == nullptr || !event.control->usable() || !moveFocus(form, *event.control)) return;
    if (Grid* grid = as<Grid>(event.control); grid != nullptr && event.extends)
        return grid->extendTo({event.index, event.column});
    choose(*event.control, event.index, event.column);
}

void Desktop::handle(Form& form, const DoubleClickEvent& event) {
    if (event.control == nullptr || !event.control->usable() || !moveFocus(form, *event.control)) return;
    if (Grid* grid = as<Grid>(event.control)) grid->onDoubleClick();
    if (ListBox* list = as<ListBox>(event.control)) list->onDoubleClick();
}

void Desktop::handle(Form& form, const HeadingEvent& event) {
    Grid* grid = as<Grid>(event.control);
    if (grid == nullptr || !grid->usable() || !grid->onHeadingClick || !moveFocus(form, *grid)) return;
    grid->onHeadingClick(event.column);
}

void Desktop::handle(Form&, const ScrollEvent& event) {
    if (Grid* grid = as<Grid>(event.control)) grid->onScroll();
}

void Desktop::handle(Form&, const ColumnSizedEvent& event) {
    Grid* grid = as<Grid>(event.control);
    if (grid == nullptr || !grid->usable()) return;
    if (event.column < 0 || event.column >= static_cast<int>(grid->columns().size())) return;
    grid->sizeColumn(event.column, event.width);
    grid->onColumnSized();
}

void Desktop::handle(Form& form, const PickEvent& event) {
    if (event.control != nullptr) pick(form, *event.control);
}

void Desktop::handle(Form& form, const StatusActionEvent&) {
    // As for a button, what stands in the box that has the focus is checked first.
    if (leave(form)) form.status().act();
}

void Desktop::handle(Form& form, const CloseEvent&) {
    form.unload();
}

} // namespace tellurix::ui
