#include "module/contract/AdditionalTexts.h"

#include "module/base/StatementText.h"
#include "module/base/own_text.h"
#include "module/contract/contract_row.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"

namespace tellurix::contract {

AdditionalTexts::AdditionalTexts(ui::Form& form, ui::Button& opener)
    : opener_(opener),
      picZusatzText(form, "picZusatzText", "Zusatztexte"),
      lblZusatz(form, "lblZusatz", "Zusatztext"),
      txtZusatz(form, "txtZusatz", 30),
      lblZusatzText{ui::Label{form, "lblZusatzText(0)", "Zusatztext 1"},
                    ui::Label{form, "lblZusatzText(1)", "Zusatztext 2"}},
      txtZusatzText(ui::controlArray<ui::TextBox, 2>(form, "txtZusatzText", 30)),
      cmdZusatzText(form, "cmdZusatzText", "&Zus.text"),
      texts_{{{"ZUSATZTEXT", txtZusatz, {}},
              {"ZUSATZTEXT_1", txtZusatzText[0], {}},
              {"ZUSATZTEXT_2", txtZusatzText[1], {}}}} {
    picZusatzText.setVisible(false);
    for (ui::Button* button : {&opener_, &cmdZusatzText}) {
        button->setToolTip("Zusatztext");
        button->onClick = [this] { toggle(); };
    }
    for (Text& text : texts_) {
        text.box.setLines(2);
        text.box.onLeave = [this, &text] {
            write(text);
            return true;
        };
    }
}

ui::Layout AdditionalTexts::layout() {
    return ui::frame(picZusatzText, {ui::fields(3, {ui::field(lblZusatz, txtZusatz),
                                                    ui::field(lblZusatzText[0], txtZusatzText[0]),
                                                    ui::field(lblZusatzText[1], txtZusatzText[1])}),
                                     ui::row({cmdZusatzText})});
}

void AdditionalTexts::open(parts::OpenContract contract) {
    contract_ = std::move(contract);
    picZusatzText.setVisible(false);
}

void AdditionalTexts::load() {
    base::StatementText query{
        "SELECT ZUSATZTEXT, ZUSATZTEXT_1, ZUSATZTEXT_2 FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto texts = contract_.connection().open(query.number(contract_.id).text());
    for (Text& text : texts_) {
        text.written = texts->text(text.column);
        text.box.setText(text.written);
    }
}

void AdditionalTexts::toggle() {
    if (close()) return;
    show();
    parts::SafeSetFocus(txtZusatz);
}

bool AdditionalTexts::close() {
    if (!picZusatzText.visible()) return false;
    if (keepsRefused()) return true;
    for (Text& text : texts_)
        text.box.setText(text.written);
    picZusatzText.setVisible(false);
    parts::SafeSetFocus(opener_);
    return true;
}

void AdditionalTexts::show() {
    // Asked for only here: most visits to a contract do not look at them.
    for (Text& text : texts_)
        text.box.setMaxLength(
            contract_.services->columnWidth.of(contract_.session, "VERTRAEGE", text.column));
    picZusatzText.setVisible(true);
}

void AdditionalTexts::write() {
    for (Text& text : texts_)
        write(text);
}

void AdditionalTexts::write(Text& text) {
    if (text.box.text() == text.written) return;
    setContractField(contract_.connection(), text.column, parts::typedText(text.box), contract_.id);
    text.written = text.box.text();
    const auto own = [this](base::OwnText words, const std::vector<std::string>& values = {}) {
        return base::ownText(words, contract_.session.language, values);
    };
    text.box.form().status().say(own(base::OwnText::writtenAtOnce, {own(base::OwnText::textSaved)}));
}

bool AdditionalTexts::keepsRefused() {
    ui::TextBox* refused = nullptr;
    for (Text& text : texts_) {
        try {
            write(text);
        } catch (const std::exception&) {
            if (refused == nullptr) refused = &text.box;
        }
    }
    if (refused == nullptr) return false;
    const std::string question = base::ownText(base::OwnText::textNotSaved, contract_.session.language);
    if (parts::confirmed(contract_.services->display, question, ui::box::exclamation)) return false;
    picZusatzText.setVisible(true);
    parts::SafeSetFocus(*refused);
    return true;
}

} // namespace tellurix::contract
