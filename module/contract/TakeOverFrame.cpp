#include "contract/TakeOverFrame.h"

#include "common/M_Common.h"
#include "common/StatementText.h"
#include "common/text.h"
#include "common/whole_number.h"
#include "host/module_state.h"
#include "host/text_numbers.h"
#include "lines/TakeOver.h"
#include "ui/caption.h"

#include <stdexcept>

namespace tellurix::contract {

using common::StatementText;

namespace {

/// Shows the progress bar as long as it lives.
class ShownProgress {
public:
    ShownProgress(ui::ProgressBar& bar, int maximum) : bar_(bar) {
        bar_.setProgress(0, maximum);
        bar_.setVisible(true);
    }
    ~ShownProgress() { bar_.setVisible(false); }
    ShownProgress(const ShownProgress&) = delete;
    ShownProgress& operator=(const ShownProgress&) = delete;

private:
    ui::ProgressBar& bar_;
};

} // namespace

TakeOverFrame::TakeOverFrame(ui::Form& form, host::HostServices& services, const host::TlxVar& session,
                             const std::int32_t& contract, std::function<void()> tookOver)
    : services_(services),
      session_(session),
      contract_(contract),
      tookOver_(std::move(tookOver)),
      frmUbernehmen(form, "frmUbernehmen", "Aus anderem Vertrag"),
      lblVertrag(form, "lblVertrag", "Vertrag"),
      txtVertrag(form, "txtVertrag", 20),
      lblTypeOfVertrag(form, "lblTypeOfVertrag", "Vertragsart"),
      txtTypeOfVertrag(form, "txtTypeOfVertrag", 14),
      btnUbernehmen(form, "btnUbernehmen", "Ubernehmen"),
      ProgressBar1(form, "ProgressBar1"),
      source_(txtVertrag, services, session,
              "SELECT ID_VERTRAG,VERTRAG_NAME FROM VERTRAEGE WHERE VERTRAG_NAME = '"),
      type_(txtTypeOfVertrag, services, session,
            [this] { return ui::plainCaption(lblTypeOfVertrag.caption()); },
            {.listQuery = "SELECT DISTINCT VER_TYPE AS SHORT FROM VERTRAEGE",
             .keyQuery = "SELECT VER_TYPE FROM VERTRAEGE WHERE VER_TYPE = '"}) {
    ProgressBar1.setVisible(false);
    // What is offered depends on the type that was chosen before.
    txtVertrag.onPick = [this] { pickSource(); };
    btnUbernehmen.onClick = [this] { takeOver(); };
}

ui::Layout TakeOverFrame::layout() {
    return ui::frame(frmUbernehmen, {ui::fields(1, {ui::field(lblVertrag, txtVertrag),
                                                    ui::field(lblTypeOfVertrag, txtTypeOfVertrag)}),
                                     ui::row({btnUbernehmen, ProgressBar1})});
}

void TakeOverFrame::clear() {
    source_.show("", "");
    type_.show("", "");
}

void TakeOverFrame::pickSource() {
    StatementText query{"SELECT VERTRAG_NAME AS SHORT FROM VERTRAEGE"};
    if (!type_.key().empty()) query.fixed(" WHERE VER_TYPE = ").quotedAsItStands(type_.key());
    txtVertrag.setText(services_.listPicker.choose(
        session_, query.text(), ui::plainCaption(lblVertrag.caption()), txtVertrag.text()));
}

void TakeOverFrame::refuse(const std::string& why) {
    common::ShowMessage(services_.display, why, ui::box::exclamation);
    common::SafeSetFocus(txtVertrag);
}

bool TakeOverFrame::acceptsTypeOf(std::int32_t source) {
    StatementText query{"SELECT VER_TYPE FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto contract = session_.connection->open(query.number(source).text());
    const std::string type = contract->atEnd() ? std::string{} : contract->text("VER_TYPE");
    const std::string& own = host::moduleState().context.StrVer_Type;
    if (common::toUpper(type) == common::toUpper(own)) return true;
    const std::string question = "Der Vertrag „" + txtVertrag.text() + "“ hat die Vertragsart " + type +
                                 ", dieser Vertrag die Vertragsart " + own +
                                 ". Sollen die Zeilen trotzdem übernommen werden?";
    return common::ShowMessage(services_.display, question, ui::box::yesNo + ui::box::question) ==
           ui::Answer::yes;
}

void TakeOverFrame::takeOver() {
    const std::string& name = txtVertrag.text();
    if (name.empty()) return refuse(services_.localizer.text(host::textNumber::invalidEntry, session_));
    const auto source = common::wholeNumber<std::int32_t>(source_.key());
    if (!source) return refuse("Den Vertrag „" + name + "“ gibt es nicht.");
    if (source == contract_) return refuse("Ein Vertrag kann nicht aus sich selbst übernehmen.");
    lines::TakeOver lines{*session_.connection, *source, contract_};
    if (lines.total() == 0) return refuse("Der Vertrag „" + name + "“ hat keine Preise und keine Mengen.");
    if (!acceptsTypeOf(*source)) return;

    const ui::BusyPointer busy{services_.display};
    const ShownProgress shown{ProgressBar1, lines.total()};
    try {
        lines.run([&] {
            ProgressBar1.setProgress(lines.done(), lines.total());
            services_.display.refresh();
        });
    } catch (const std::exception& error) {
        services_.errors.report(std::runtime_error{"Es wurden nur " + std::to_string(lines.done()) + " von " +
                                                   std::to_string(lines.total()) + " Zeilen übernommen. " +
                                                   error.what()});
    }
    // Pressing the button once more must not take the same lines over again.
    clear();
    tookOver_();
}

} // namespace tellurix::contract
