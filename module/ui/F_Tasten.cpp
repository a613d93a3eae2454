#include "module/ui/F_Tasten.h"

#include "module/base/text.h"
#include "module/ui/controls/Tabs.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/controls/UpDown.h"
#include "module/ui/controls/caption.h"
#include "module/ui/controls/control_caption.h"

#include <algorithm>

namespace tellurix::ui {

using base::OwnText;

namespace {

bool has(const Control& control, OwnText key) {
    return std::ranges::find(control.ownKeys(), key) != control.ownKeys().end();
}

/// Whether the keys that lead through a table mean something else in this one.
bool movesByItself(const Grid& grid) {
    return has(grid, OwnText::keyDays);
}

} // namespace

F_Tasten::F_Tasten(const Form& window) : Form("F_Tasten") {
    setLanguage(window.language());
    setTitle(base::ownText(OwnText::keysOf, language(), {window.title()}));
    const auto heading = [this](OwnText text, int width) {
        return Grid::Column{.caption = base::ownText(text, language()), .width = width};
    };
    grdTasten.setColumns({heading(OwnText::keyHeading, 26), heading(OwnText::effectHeading, 64)});
    btnSchliessen.setCaption(base::ownText(OwnText::close, language()));
    btnSchliessen.onClick = [this] { unload(); };
    setCard();
    setCancelButton(btnSchliessen);
    setLayout(column({Layout{grdTasten}.growing(), bar({}, {}, {btnSchliessen})}));

    add(OwnText::keyGoOn);
    std::vector<const Grid*> grids;
    bool presses = false;
    bool types = false;
    for (const Control* control : window.controls()) {
        if (!control->showing()) continue;
        if (const Grid* grid = as<Grid>(control); grid != nullptr && !movesByItself(*grid))
            grids.push_back(grid);
        const TextBox* box = as<TextBox>(control);
        types |= box != nullptr && !box->locked();
        presses |= control->kind() == ControlKind::button || control->kind() == ControlKind::checkBox;
        addControl(*control);
    }
    if (presses) add(OwnText::keyPressOrTick);
    if (types) add(OwnText::keyUndoTyping);
    const std::string& offer = window.status().action();
    if (const char32_t key = accessKeyOf(offer); key != 0)
        add(OwnText::keyAccess, {base::encodeUtf8(key), plainCaption(offer)});
    if (const Button* save = window.primaryButton()) add(OwnText::keySave, {plainCaption(save->caption())});
    if (const Button* cancel = window.cancelButton()) {
        add(OwnText::keyCancel, {plainCaption(cancel->caption())});
    } else if (window.closes()) {
        add(OwnText::keyCloses);
    }
    addGrids(grids);
    add(OwnText::keyThese);
    grdTasten.setRows(std::move(rows_));
    grdTasten.setCurrent(0);
}

void F_Tasten::add(OwnText text, const std::vector<std::string>& values) {
    const std::string line = base::ownText(text, language(), values);
    const std::size_t tab = line.find('\t');
    Grid::Row row{line.substr(0, tab), line.substr(tab + 1)};
    if (std::ranges::find(rows_, row) == rows_.end()) rows_.push_back(std::move(row));
}

void F_Tasten::addControl(const Control& control) {
    const std::string caption = ownCaption(control);
    if (const char32_t key = accessKeyOf(caption); key != 0)
        add(OwnText::keyAccess, {base::encodeUtf8(key), plainCaption(caption)});
    for (const OwnText text : control.ownKeys())
        add(text, {spokenName(control)});
    if (as<Tabs>(&control) != nullptr) add(OwnText::keyPages);
    if (as<UpDown>(&control) != nullptr) add(OwnText::keyUpDown, {control.toolTip()});
    const TextBox* box = as<TextBox>(&control);
    if (box == nullptr || box->locked()) return;
    if (box->onPick) add(OwnText::keyPick, {spokenName(control)});
    if (box->lines() > 1) add(OwnText::keyLineEnd, {spokenName(control)});
}

void F_Tasten::addGrids(const std::vector<const Grid*>& grids) {
    if (grids.empty()) return;
    const auto any = [&grids](const auto& has) { return std::ranges::any_of(grids, has); };
    add(OwnText::keyGridMove);
    add(OwnText::keyGridEnds);
    if (any([](const Grid* grid) { return !has(*grid, OwnText::keySearches); })) add(OwnText::keyGridLetters);
    const bool cells = any([](const Grid* grid) { return static_cast<bool>(grid->onPaste); });
    if (any([](const Grid* grid) {
            return grid->onDoubleClick && !grid->onPaste && !has(*grid, OwnText::keyTake);
        }))
        add(OwnText::keyGridEnter);
    for (const Grid* grid : grids) {
        for (const auto& [key, text] :
             {std::pair{Key::insert, OwnText::keyGridInsert}, std::pair{Key::f2, OwnText::keyGridEdit},
              std::pair{Key::del, OwnText::keyGridDelete}}) {
            if (const Button* button = grid->pressedBy(key)) add(text, {plainCaption(button->caption())});
        }
    }
    if (cells) {
        add(OwnText::keyGridCell);
        add(OwnText::keyGridPaste);
    }
    add(OwnText::keyGridBlock);
    add(OwnText::keyGridCopy);
    if (any([](const Grid* grid) { return static_cast<bool>(grid->onHeadingClick); }))
        add(OwnText::keyGridSort);
    add(OwnText::keyGridWidth);
}

} // namespace tellurix::ui
