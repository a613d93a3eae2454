#include "module/contract/TakeOverFrame.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/base/text.h"
#include "module/base/whole_number.h"
#include "module/host/module_state.h"
#include "module/host/text_numbers.h"
#include "module/parts/M_Common.h"
#include "module/parts/ShownProgress.h"
#include "module/ui/controls/caption.h"

#include <stdexcept>

namespace tellurix::contract {

using base::OwnText;
using base::StatementText;

namespace {

/// The host's lists, to choose from and to find a typed text in.
constexpr const char* contractList = "VERTRAG_GRID";
constexpr const char* contractByName = "VERTRAG_VALID";
constexpr const char* typeList = "TYPEOFVERTRAG_GRID";
constexpr const char* typeByCode = "TYPEOFVERTRAG_VALID";

} // namespace

TakeOverFrame::TakeOverFrame(ui::Form& form, std::function<void()> tookOver)
    : tookOver_(std::move(tookOver)),
      frmUbernehmen(form, "frmUbernehmen", "Aus anderem Vertrag"),
      lblVertrag(form, "lblVertrag", "Vertrag"),
      txtVertrag(form, "txtVertrag", 20),
      lblTypeOfVertrag(form, "lblTypeOfVertrag", "Vertragsart"),
      txtTypeOfVertrag(form, "txtTypeOfVertrag", 14),
      btnUbernehmen(form, "btnUbernehmen", "Ubernehmen"),
      ProgressBar1(form, "ProgressBar1"),
      source_{txtVertrag},
      type_{txtTypeOfVertrag} {
    ProgressBar1.setVisible(false);
    txtVertrag.onPick = [this] { pickSource(); };
    txtVertrag.onLeave = [this] { return resolveSource(); };
    txtTypeOfVertrag.onPick = [this] { pickType(); };
    txtTypeOfVertrag.onLeave = [this] { return resolveType(); };
    btnUbernehmen.onClick = [this] { takeOver(); };
}

ui::Layout TakeOverFrame::layout() {
    return ui::frame(frmUbernehmen, {ui::fields(1, {ui::field(lblVertrag, txtVertrag),
                                                    ui::field(lblTypeOfVertrag, txtTypeOfVertrag)}),
                                     ui::row({btnUbernehmen, ProgressBar1})});
}

void TakeOverFrame::open(parts::OpenContract contract) {
    contract_ = std::move(contract);
    clear();
}

void TakeOverFrame::clear() {
    source_.show("", "");
    type_.show("", "");
}

void TakeOverFrame::Choice::show(const std::string& shown, const std::string& of) {
    box.show(shown);
    text = shown;
    key = of;
}

void TakeOverFrame::Choice::forget() {
    text.clear();
    key.clear();
}

std::string TakeOverFrame::words(OwnText text, const std::vector<std::string>& values) const {
    return base::ownText(text, contract_.session.language, values);
}

void TakeOverFrame::pickType() {
    const std::string key = services().keyedLists.choose(contract_.session, typeList,
                                                         ui::plainCaption(lblTypeOfVertrag.caption()),
                                                         limits(), txtTypeOfVertrag.text());
    if (!key.empty()) txtTypeOfVertrag.setText(key);
}

void TakeOverFrame::pickSource() {
    const auto key = base::wholeNumber<std::int32_t>(
        services().keyedLists.choose(contract_.session, contractList, ui::plainCaption(lblVertrag.caption()),
                                     limits(), txtVertrag.text()));
    if (!key) return;
    if (*key == contract_.id) {
        refuse(txtVertrag, words(OwnText::sourceIsItself));
        return;
    }
    if (const auto name = nameOf(*key)) source_.show(*name, std::to_string(*key));
}

bool TakeOverFrame::resolveType() {
    const std::string typed = txtTypeOfVertrag.text();
    if (type_.isCurrent()) return true;
    std::string key;
    if (!typed.empty()) {
        const auto keys = services().keyedLists.find(contract_.session, typeByCode, typed, limits());
        if (keys.empty()) {
            return refuse(txtTypeOfVertrag,
                          services().localizer.text(host::textNumber::invalidEntry, contract_.session));
        }
        key = keys.front();
    }
    type_.show(typed, key);
    // A source that was found before may be of another type.
    source_.forget();
    return true;
}

bool TakeOverFrame::resolveSource() {
    const std::string name = txtVertrag.text();
    if (source_.isCurrent()) return true;
    source_.forget();
    if (name.empty()) return true;
    std::vector<std::string> keys;
    bool ofItself = nameOf(contract_.id) == name;
    for (const std::string& found :
         services().keyedLists.find(contract_.session, contractByName, name, limits())) {
        const auto contract = base::wholeNumber<std::int32_t>(found);
        // A host's lists may know no limits.
        if (contract == contract_.id) ofItself = true;
        if (contract && contract != contract_.id && isOfChosenType(*contract)) keys.push_back(found);
    }
    if (keys.empty()) {
        return refuse(txtVertrag,
                      ofItself ? words(OwnText::sourceIsItself) : words(OwnText::sourceUnknown, {name}));
    }
    const std::string key = keys.size() == 1 ? keys.front() : askWhich(keys);
    if (key.empty()) return false;
    source_.show(name, key);
    return true;
}

bool TakeOverFrame::isOfChosenType(std::int32_t contract) {
    if (type_.key.empty()) return true;
    const std::string type = services().keyedLists.typeOf(contract_.session, contract);
    return type.empty() || base::toUpper(type) == base::toUpper(type_.key);
}

std::string TakeOverFrame::askWhich(const std::vector<std::string>& keys) {
    StatementText query{
        "SELECT VERTRAEGE.ID_VERTRAG AS SHORT,VERTRAEGE.VERTRAG_NAME,VERTRAEGE.INVDATE,PERSONAL.KURZBEZEICHNUNG"
        " FROM VERTRAEGE LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = VERTRAEGE.ID_PERSONAL"
        " AND PERSONAL.ID_PERSONAL > 0 WHERE VERTRAEGE.ID_VERTRAG IN ("};
    for (std::size_t i = 0; i < keys.size(); ++i)
        query.fixed(i == 0 ? "" : ",").number(keys[i]);
    return services().listPicker.choose(contract_.session, query.fixed(")").text(),
                                        words(OwnText::whichSource, {txtVertrag.text()}), "");
}

std::optional<std::string> TakeOverFrame::nameOf(std::int32_t contract) {
    StatementText query{"SELECT VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG = "};
    const auto row = contract_.connection().open(query.number(contract).text());
    return row->atEnd() ? std::nullopt : std::optional{row->text("VERTRAG_NAME")};
}

bool TakeOverFrame::refuse(ui::TextBox& box, const std::string& why) {
    box.setError(why);
    parts::ShowMessage(services().display, why, ui::box::exclamation);
    parts::SafeSetFocus(box);
    return false;
}

bool TakeOverFrame::acceptsTypeOf(std::int32_t source) {
    const std::string type = services().keyedLists.typeOf(contract_.session, source);
    const std::string& own = host::moduleState().context.StrVer_Type;
    if (type.empty() || base::toUpper(type) == base::toUpper(own)) return true;
    return parts::ShowMessage(services().display,
                              words(OwnText::sourceOfOtherType, {txtVertrag.text(), type, own}),
                              ui::box::yesNo + ui::box::question) == ui::Answer::yes;
}

void TakeOverFrame::takeOver() {
    const std::string name = txtVertrag.text();
    if (name.empty()) {
        refuse(txtVertrag, services().localizer.text(host::textNumber::invalidEntry, contract_.session));
        return;
    }
    contract_.requirePresent();
    if (!resolveSource()) return;
    const std::int32_t source = base::wholeNumber<std::int32_t>(source_.key).value();
    lines::TakeOver lines{contract_.connection(), source, contract_.id};
    if (lines.total() == 0) {
        refuse(txtVertrag, words(OwnText::sourceWithoutLines, {name}));
        return;
    }
    if (!acceptsTypeOf(source)) return;
    // Pressing the button once more must not take the same lines over again, whatever happens to them.
    clear();
    copy(lines);
    tookOver_();
    if (lines.done() == lines.total()) tellTakenOver(lines.total() - lines.quantities(), lines.quantities());
}

void TakeOverFrame::tellTakenOver(int prices, int quantities) {
    const auto counted = [this](int count, OwnText one, OwnText several) {
        return count == 1 ? words(one) : words(several, {std::to_string(count)});
    };
    const std::string what =
        words(OwnText::takenOver, {counted(prices, OwnText::onePrice, OwnText::prices),
                                   counted(quantities, OwnText::oneQuantity, OwnText::quantities)});
    btnUbernehmen.form().status().say(words(OwnText::writtenAtOnce, {what}));
}

void TakeOverFrame::copy(lines::TakeOver& lines) {
    parts::ShownProgress progress{services().display, ProgressBar1, lines.total()};
    try {
        lines.run([&] { progress.step(); });
    } catch (const std::exception& error) {
        const std::string some =
            words(OwnText::someTakenOver, {std::to_string(lines.done()), std::to_string(lines.total())});
        services().errors.report(std::runtime_error{some + " " + error.what()});
    }
}

} // namespace tellurix::contract
