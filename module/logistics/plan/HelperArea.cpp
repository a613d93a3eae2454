#include "module/logistics/plan/HelperArea.h"

#include "module/base/Refused.h"
#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/whole_number.h"
#include "module/host/module_state.h"
#include "module/host/text_numbers.h"
#include "module/logistics/helper_export.h"
#include "module/logistics/plan/helper_statements.h"
#include "module/logistics/quantity_cell.h"
#include "module/logistics/row_saving.h"
#include "module/logistics/serial_mail.h"
#include "module/parts/M_Common.h"
#include "module/parts/fields/typed_text.h"
#include "module/parts/questions.h"
#include "module/ui/controls/caption.h"

#include <exception>
#include <utility>

namespace tellurix::logistics {

using base::OwnText;

namespace {

constexpr const char* helperLayout = "F_VERTRAG_WVO_WH";
constexpr const char* searchForHelpers = "2PVA2";
constexpr const char* plannedMask = "##,###"; ///< nothing planned is shown as nothing
constexpr int longestFilter = 60;

} // namespace

HelperArea::HelperArea(ui::Form& form, host::HostServices& services, parts::UndoOffers& undo)
    : services_(services),
      undo_(undo),
      frmWaldhelfer(form, "frmWaldhelfer", "Waldhelfer"),
      lblFilter(form, "lblFilter", "Ansicht nach Nummer oder Name Filtern ..."),
      txtFilter(form, "txtFilter", 24),
      MSFG(form, "MSFG", 12),
      txtEdit(form, "txtEdit", 12),
      ProgressBar1(form, "ProgressBar1"),
      frmSummen(form, "frmSummen"),
      lblSumme(form, "lblSumme", "SUMME:"),
      lbldruchschn(form, "lbldruchschn", "Ø ME geplant"),
      lbldruchschnMenge(form, "lbldruchschnMenge"),
      lblangem(form, "lblangem", "ME angemeldet"),
      lblangemMenge(form, "lblangemMenge"),
      lblangemWB(form, "lblangemWB", "ME angem. WB"),
      lblangemWBMenge(form, "lblangemWBMenge"),
      lblbest(form, "lblbest", "ME bestätigt"),
      lblbestMenge(form, "lblbestMenge"),
      lblMengeneinheit(form, "lblMengeneinheit", "Einheit"),
      lblEinheit(form, "lblEinheit"),
      btnNeu2(form, "btnNeu2", "&Neu"),
      btnBearbeiten2(form, "btnBearbeiten2", "&Bearbeiten"),
      btnSpeichern2(form, "btnSpeichern2", "&Speichern"),
      btnAbbrechen2(form, "btnAbbrechen2", "Bearb.&Abbr."),
      btnLoschen2(form, "btnLoschen2", "&Löschen"),
      btnWaldhelfer(form, "btnWaldhelfer", "mehrere Waldhelfer &hinzufügen"),
      btnAMB(form, "btnAMB", "alle angem. &Mengen bestät..."),
      btnAWBMB(form, "btnAWBMB", "&alle angem. WB Mengen bestät..."),
      btnXLS(form, "btnXLS", "&EXCEL"),
      btnSerienmail(form, "btnSerienmail", "Serienmail and &Waldhelfer senden ..."),
      helpers_(MSFG),
      quantities_(MSFG, helpers_, txtEdit, ProgressBar1,
                  {.condition = GuardedQuantities::ofContract,
                   .nameOf = [](parts::KeyedRow& helper) { return helper.text(helpers::nameField); },
                   .changed = [this] { showSums(); }}),
      selection_(ProgressBar1),
      mode_({.create = &btnNeu2,
             .edit = &btnBearbeiten2,
             .save = &btnSpeichern2,
             .cancel = &btnAbbrechen2,
             .remove = &btnLoschen2},
            {.inView = {&txtFilter, &btnWaldhelfer, &btnAMB, &btnAWBMB, &btnSerienmail},
             .onRow = {&btnXLS},
             .rows = &MSFG},
            [this] { return !helpers_.empty(); }) {
    connect();
}

void HelperArea::connect() {
    txtFilter.setMaxLength(longestFilter);
    mode_.onEnter.before([this] { helpers_.openCells(!mode_.viewing()); });
    txtFilter.onLeave = [this] {
        applyFilter();
        return true;
    };
    btnNeu2.onClick = [this] { addOne(); };
    btnBearbeiten2.onClick = [this] { edit(); };
    btnSpeichern2.onClick = [this] { save(); };
    btnAbbrechen2.onClick = [this] { cancel(); };
    btnLoschen2.onClick = [this] { removeCurrent(); };
    btnWaldhelfer.onClick = [this] { chooseAll(); };
    btnAMB.onClick = [this] { confirm(helpers::confirmAnnounced(contract_.record)); };
    btnAWBMB.onClick = [this] { confirm(helpers::confirmOwners(contract_.record)); };
    for (ui::Label* sum : {&lbldruchschnMenge, &lblangemMenge, &lblangemWBMenge, &lblbestMenge, &lblEinheit})
        sum->setStrong(true);
    btnXLS.onClick = [this] {
        services_.spreadsheets.exportTable(contract_.session, helperExport(helpers_, MSFG),
                                           "Vertrag: " + contract_.name);
        say(OwnText::tableExported);
    };
    btnSerienmail.onClick = [this] {
        if (mailHelpers(contract_, contract_.record)) say(OwnText::mailHandedOver);
    };
}

ui::Layout HelperArea::layout() {
    enum Column { name = 2, planned, announced, owners, confirmed, unit };
    return ui::column(
        {ui::section(frmWaldhelfer, {btnWaldhelfer, btnAMB, btnAWBMB, ui::field(lblFilter, txtFilter)},
                     {ui::sums(MSFG, ui::frame(frmSummen,
                                               {ui::row({ui::under(name, lblSumme),
                                                         ui::under(planned, lbldruchschn, lbldruchschnMenge),
                                                         ui::under(announced, lblangem, lblangemMenge),
                                                         ui::under(owners, lblangemWB, lblangemWBMenge),
                                                         ui::under(confirmed, lblbest, lblbestMenge),
                                                         ui::under(unit, lblMengeneinheit, lblEinheit)})}))
                          .growing(),
                      ProgressBar1})
             .growing(),
         ui::bar({btnNeu2, btnBearbeiten2, ui::Layout{btnSpeichern2}.primary(), btnAbbrechen2, btnLoschen2},
                 {btnXLS, btnSerienmail})});
}

std::vector<parts::KeyedGrid::Column> HelperArea::columns() const {
    const auto quantity = [](const char* caption, int width, const char* field, const char* mask) {
        return parts::KeyedGrid::Column{.caption = caption,
                                        .width = width,
                                        .field = field,
                                        .mask = mask,
                                        .rightAligned = true,
                                        .sorts = true};
    };
    const auto stamp = [](const char* caption, const char* field) {
        return parts::KeyedGrid::Column{
            .caption = caption, .width = 16, .field = field, .mask = stampMask, .sorts = true};
    };
    return {GuardedQuantities::markColumn(),
            {.caption = "Mitgl.Nr.",
             .width = 9,
             .field = helpers::numberField,
             .rightAligned = true,
             .sorts = true},
            {.caption = "Mitglied Name", .width = 26, .field = helpers::nameField, .sorts = true},
            quantity("ME geplant", 13, helpers::plannedField, plannedMask),
            GuardedQuantities::column("ME angem.", GuardedQuantities::announced),
            quantity("ME angem. WB", 16, helpers::ownersField, quantityMask),
            GuardedQuantities::column("ME best.", GuardedQuantities::confirmed),
            stamp("WH Änderung", helpers::changedByHelperField),
            stamp("Zent. Änderung", helpers::changedByCentreField)};
}

void HelperArea::open(const LogisticsContract& contract) {
    contract_ = contract;
    txtFilter.setText("");
    filter_.clear();
    lblEinheit.setCaption(contract.unit);
    helpers_.setColumns(columns());
    quantities_.show({});
    mode_.reset();
}

void HelperArea::restoreColumns() {
    services_.gridLayouts.restore(contract_.session, MSFG, helperLayout);
    helpers_.takeOrder();
}

void HelperArea::saveColumns() {
    services_.gridLayouts.save(contract_.session, MSFG, helperLayout);
}

void HelperArea::reload(std::optional<std::int64_t> key) {
    auto read =
        parts::KeyedRows::read(contract_.connection(), helpers::list(contract_.record, filter_), "ID");
    // A contract without helpers answers with a row that is none.
    std::erase_if(read.rows, [](parts::KeyedRow& row) { return row.key() == 0; });
    const std::string& language = contract_.session.language;
    MSFG.setEmptyText(
        filter_.empty()
            ? base::ownText(OwnText::noHelpers, language,
                            {ui::plainCaption(btnNeu2.caption()), ui::plainCaption(btnWaldhelfer.caption())})
            : base::ownText(OwnText::nothingFoundFor, language, {txtFilter.text()}));
    quantities_.show(std::move(read.rows));
    if (key) helpers_.select(*key);
    mode_.enter(State::view);
}

void HelperArea::applyFilter() {
    if (txtFilter.text() == filter_) return;
    const std::string before = std::exchange(filter_, parts::typedText(txtFilter));
    try {
        reload(std::nullopt);
    } catch (...) {
        filter_ = before;
        throw;
    }
    if (helpers_.empty() && !filter_.empty()) say(OwnText::nothingFound);
}

void HelperArea::showSums() {
    // Every helper is planned the same.
    lbldruchschnMenge.setCaption(helpers_.empty()
                                     ? std::string{}
                                     : base::numberText(helpers_.rows().front().field(helpers::plannedField),
                                                        plannedMask, base::Locale::german()));
    lblangemMenge.setCaption(quantities_.sum(GuardedQuantities::announced));
    lblangemWBMenge.setCaption(quantities_.sum(helpers::ownersField));
    lblbestMenge.setCaption(quantities_.sum(GuardedQuantities::confirmed));
}

void HelperArea::edit() {
    mode_.enter(State::edit);
    quantities_.startEditing();
}

void HelperArea::save() {
    if (!quantities_.save(services_, contract_.session, helpers::presentQuantities(contract_.record))) return;
    const parts::TakenOver taken = quantities_.takenOver();
    reload(std::nullopt);
    parts::SafeSetFocus(MSFG);
    undo_.say(taken.told(OwnText::saved, contract_.session.language));
}

void HelperArea::cancel() {
    const bool discards = changed();
    reload(std::nullopt);
    parts::SafeSetFocus(MSFG);
    if (discards) say(OwnText::changesDiscarded);
}

void HelperArea::addOne() {
    host::HostContext& context = host::moduleState().context;
    const std::string level = services_.dataAccess.readValue(
        contract_.session, "ID_ACCESS_LEVELS", "VERTRAEGE", " ID_VERTRAG = " + std::to_string(contract_.id));
    const std::int32_t person =
        services_.personalPicker.choose(contract_.session, searchForHelpers,
                                        base::wholeNumber<int>(level).value_or(contract_.session.accessLevel),
                                        context.g_intStandardMandanten, 0, context.blnOK);
    if (person <= 0) return;
    const auto rowOfPerson = [&]() -> std::optional<std::int64_t> {
        const auto row = contract_.connection().open(helpers::rowsOf(contract_.record, person));
        return row->atEnd() ? std::nullopt : std::optional{row->integer("ID")};
    };
    const bool isNew = !rowOfPerson();
    if (isNew) contract_.connection().execute(helpers::add(contract_.record, person));
    // The new row has to be seen, whatever the filter says.
    txtFilter.setText("");
    filter_.clear();
    reload(rowOfPerson());
    parts::SafeSetFocus(MSFG);
    if (isNew) say(OwnText::helperAdded);
}

void HelperArea::say(OwnText text, const std::vector<std::string>& values) {
    undo_.say(base::ownText(text, contract_.session.language, values));
}

void HelperArea::chooseAll() {
    std::optional<HelperSelection::Change> change;
    try {
        change = selection_.run(contract_);
        if (!change) return;
    } catch (const base::Refused&) {
        // What was written before the failure is shown; should that fail too, the message says how much it
        // is.
        try {
            reload(std::nullopt);
        } catch (const std::exception& error) {
            services_.errors.report(error);
        }
        throw;
    }
    reload(std::nullopt);
    say(OwnText::helpersChosen, {std::to_string(change->added), std::to_string(change->removed)});
}

void HelperArea::removeCurrent() {
    const auto key = helpers_.currentKey();
    if (!key) return;
    std::string question;
    for (const int number :
         {host::textNumber::removeHelper, host::textNumber::deleteRecord, host::textNumber::helperIsLost})
        question += (question.empty() ? "" : "\n") + services_.localizer.text(number, contract_.session);
    if (!parts::confirmed(services_.display, question, ui::box::exclamation)) return;
    contract_.connection().execute(helpers::remove(*key));
    reload(std::nullopt);
    say(OwnText::helperRemoved);
}

void HelperArea::confirm(const std::string& statement) {
    contract_.connection().execute(statement);
    parts::ShowMessage(services_.display, "Aktualisieren beendet.", ui::box::information);
    reload(std::nullopt);
}

} // namespace tellurix::logistics
