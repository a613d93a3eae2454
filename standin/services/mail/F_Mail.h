#pragma once

#include "module/ui/controls/Button.h"
#include "module/ui/controls/Grid.h"
#include "module/ui/controls/TextBox.h"
#include "module/ui/input/TextSorting.h"
#include "standin/services/AskingForm.h"

#include <optional>
#include <string>
#include <vector>

namespace tellurix::standin {

/// Shows a mail before it goes: who gets it, subject and text, which the user may change. Space takes a
/// recipient out, or back in; those that cannot be reached stay out.
class F_Mail final : public AskingForm {
public:
    struct Recipient {
        std::string address;
        std::string note; ///< why it does not get the mail, or empty
        bool reachable = true;
        bool gets = true;
    };
    struct Draft {
        std::vector<Recipient> recipients;
        std::string subject;
        std::string text;
    };
    struct Words {
        std::string title;
        std::string kind;  ///< how the recipients are named in it
        std::string count; ///< of those who get it, and of all
    };

    F_Mail(ui::Display& display, Draft draft, Words words);

    /// What the user sends, with those who get it; nothing when it was cancelled.
    const std::optional<Draft>& sent() const { return sent_; }

private:
    bool changed() const override { return toggled_ || txtSubject.touched() || txtText.touched(); }
    void toggle();
    /// None for somebody who cannot be reached.
    static std::string tickBox(const Recipient& recipient);
    void showRecipients();
    void showCount();
    void send();

    std::vector<Recipient> recipients_;
    std::string count_;
    std::optional<Draft> sent_;
    bool toggled_ = false; ///< somebody gets it or not as the user says

    ui::Label lblKind{*this, "lblKind"};
    ui::Grid grdRecipients{*this, "grdRecipients", 8};
    ui::TextSorting sorting_{grdRecipients, base::Locale::german()};
    ui::Label lblCount{*this, "lblCount"};
    ui::Label lblSubject{*this, "lblSubject", "&Betreff"};
    ui::TextBox txtSubject{*this, "txtSubject", 70};
    ui::Label lblText{*this, "lblText", "&Text"};
    ui::TextBox txtText{*this, "txtText", 70};
    ui::Button btnSend{*this, "btnSend", "&Senden"};
    ui::Button btnCancel{*this, "btnCancel", "Abbrechen"};
};

} // namespace tellurix::standin
