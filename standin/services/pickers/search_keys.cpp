#include "standin/services/pickers/search_keys.h"

#include "module/base/own_text.h"
#include "module/ui/Form.h"
#include "module/ui/input/control_keys.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

/// How many rows a key moves, 0 for a key of the box itself.
int stepOf(ui::Key key, const ui::Grid& list) {
    switch (key) {
    case ui::Key::up:
        return -1;
    case ui::Key::down:
        return +1;
    case ui::Key::pageUp:
        return -list.visibleRows();
    case ui::Key::pageDown:
        return +list.visibleRows();
    default:
        return 0;
    }
}

} // namespace

void connectSearch(ui::TextBox& search, ui::Grid& list, std::function<void()> choose) {
    search.onKeyDown = [&list, choose](ui::KeyDown& key) {
        if (key.key == ui::Key::enter) {
            key.key = ui::Key::none;
            choose();
        } else if (const int step = stepOf(key.key, list); step != 0) {
            key.key = ui::Key::none;
            const int last = static_cast<int>(list.rows().size()) - 1;
            if (last >= 0)
                ui::choose(list, std::clamp(list.currentRow() + step, 0, last), list.currentColumn());
        }
    };
    search.setOwnKeys({base::OwnText::keyFound, base::OwnText::keyFoundOn});
    search.onChange.before([&search, &list] { sayNothingFound(search, list); });
    list.onDoubleClick = std::move(choose);
}

void sayNothingFound(const ui::TextBox& search, ui::Grid& list) {
    const std::string& language = list.form().language();
    list.setEmptyText(search.text().empty()
                          ? base::ownText(base::OwnText::nothingFound, language)
                          : base::ownText(base::OwnText::nothingFoundFor, language, {search.text()}));
}

void limitSearch(ui::TextBox& search) {
    search.setMaxLength(80);
}

} // namespace tellurix::standin
