#include "standin/services/mail/F_Mail.h"

#include "module/base/text.h"
#include "standin/services/pickers/marking_keys.h"

#include <algorithm>

namespace tellurix::standin {

namespace {

constexpr int tickColumn = 0;
constexpr int textLines = 10;

} // namespace

F_Mail::F_Mail(ui::Display& display, Draft draft, Words words)
    : AskingForm(display, "F_Mail", std::move(words.title)),
      recipients_(std::move(draft.recipients)),
      count_(std::move(words.count)) {
    lblKind.setCaption(std::move(words.kind));
    grdRecipients.setColumns({{.caption = "✓", .width = 3},
                              {.caption = "Empfänger", .width = 44},
                              {.caption = "Hinweis", .width = 26}});
    txtText.setLines(textLines);
    txtSubject.setText(std::move(draft.subject));
    txtText.setText(std::move(draft.text));
    connectMarking(grdRecipients, [this] { toggle(); });
    // A letter has lines: Enter does what Ctrl+Enter does in the boxes of the other screens.
    txtText.onKeyDown = [](ui::KeyDown& key) { key.ctrl = key.ctrl || key.key == ui::Key::enter; };
    grdRecipients.onDoubleClick = [this] { toggle(); };
    btnSend.onClick = [this] { send(); };
    btnCancel.onClick = [this] { leave(); };
    setCancelButton(btnCancel);
    // Nothing sends by mistake: Ctrl+S, which saves elsewhere, has no button here.
    setLayout(ui::column({lblKind, grdRecipients, lblCount,
                          ui::fields(1, {ui::field(lblSubject, txtSubject), ui::field(lblText, txtText)}),
                          ui::bar({btnSend, btnCancel})}));
    showRecipients();
    grdRecipients.setCurrent(0, 1);
}

std::string F_Mail::tickBox(const Recipient& recipient) {
    if (!recipient.reachable) return {};
    return recipient.gets ? ui::Grid::ticked : ui::Grid::unticked;
}

void F_Mail::toggle() {
    const int row = grdRecipients.currentRow();
    if (row == ui::Grid::none) return;
    Recipient& recipient = recipients_[sorting_.originOf(row)];
    if (!recipient.reachable) return;
    recipient.gets = !recipient.gets;
    toggled_ = true;
    grdRecipients.setCell(row, tickColumn, tickBox(recipient));
    showCount();
}

void F_Mail::showRecipients() {
    std::vector<ui::Grid::Row> rows;
    for (const Recipient& recipient : recipients_)
        rows.push_back({tickBox(recipient), recipient.address, recipient.note});
    sorting_.show(std::move(rows));
    showCount();
}

void F_Mail::showCount() {
    const auto count = std::ranges::count_if(recipients_, &Recipient::gets);
    lblCount.setCaption(base::filled(count_, {std::to_string(count), std::to_string(recipients_.size())}));
    btnSend.setEnabled(count > 0);
}

void F_Mail::send() {
    sent_ = Draft{{}, txtSubject.text(), txtText.text()};
    std::ranges::copy_if(recipients_, std::back_inserter(sent_->recipients), &Recipient::gets);
    leave();
}

} // namespace tellurix::standin
