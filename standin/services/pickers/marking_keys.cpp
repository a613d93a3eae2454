#include "standin/services/pickers/marking_keys.h"

#include <utility>

namespace tellurix::standin {

void connectMarking(ui::Grid& list, std::function<void()> toggle, std::function<void()> done) {
    list.setOwnKeys(done ? std::vector{base::OwnText::keyMark, base::OwnText::keyTake}
                         : std::vector{base::OwnText::keyMark});
    list.onKeyDown = [toggle = std::move(toggle), done = std::move(done)](ui::KeyDown& key) {
        if (key.ctrl || key.alt) return;
        if (key.key == ui::Key::space) {
            key.key = ui::Key::none;
            toggle();
        } else if (key.key == ui::Key::enter && done) {
            key.key = ui::Key::none;
            done();
        }
    };
}

} // namespace tellurix::standin
