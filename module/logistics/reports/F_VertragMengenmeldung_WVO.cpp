#include "module/logistics/reports/F_VertragMengenmeldung_WVO.h"

#include "module/base/own_text.h"
#include "module/base/whole_number.h"
#include "module/logistics/reports/quantity_listings.h"
#include "module/logistics/reports/quantity_report_statements.h"
#include "module/parts/M_Common.h"
#include "module/parts/grids/grid_layout.h"
#include "module/parts/questions.h"

namespace tellurix::logistics {

namespace {

constexpr const char* quantityReportLayout = "F_VERTRAGMENGENMELDUNG_WVO";
constexpr const char* helperSearch = "2PVA2";

} // namespace

F_VertragMengenmeldung_WVO::F_VertragMengenmeldung_WVO(host::HostServices& services)
    : Form("F_VertragMengenmeldung_WVO", "Vertrag Mengenmeldung"),
      services_(services),
      person_(txtWaldhelfer, txtWaldhelferName, services_, session_,
              {.pickerMode = helperSearch,
               .validFilter = "PERSONAL_VALID",
               .accessLevel = [this] { return session_.accessLevel; },
               .chosen = [this] { load(); }}),
      contracts_(MSFG),
      quantities_(
          MSFG, contracts_, txtEdit, ProgressBar1,
          {.condition = GuardedQuantities::ofHelper,
           .nameOf = [](parts::KeyedRow& contract) { return contract.text(quantity_report::contractField); },
           .changed = [this] { showSums(); }}),
      mode_({.edit = &btnBearbeiten, .save = &btnSpeichern, .cancel = &btnAbbrechen},
            {.inView = {&txtWaldhelfer, &btnExcel, &btnSchliesen},
             .whileEdited = {&btnAllezusagen},
             .rows = &MSFG},
            [this] { return !contracts_.empty(); }) {
    connect();
    arrange();
}

void F_VertragMengenmeldung_WVO::connect() {
    btnBearbeiten.onClick = [this] { edit(); };
    btnSpeichern.onClick = [this] { save(); };
    btnAbbrechen.onClick = [this] { cancel(); };
    btnAllezusagen.onClick = [this] { quantities_.confirmAll(); };
    btnExcel.onClick = [this] { exportListings(); };
    btnSchliesen.onClick = [this] { unload(); };
    btnSchliesen.setCausesValidation(false);
    for (ui::Label* sum : {&lblCol2, &lblCol3})
        sum->setStrong(true);
    mode_.onEnter = [this] {
        contracts_.openCells(!mode_.viewing());
        setCancelButton(mode_.viewing() ? btnSchliesen : btnAbbrechen);
    };
}

void F_VertragMengenmeldung_WVO::arrange() {
    enum Column { announced = 2, confirmed };
    setLayout(ui::column({
        ui::filters({ui::field(lblVertrag, txtWaldhelfer, txtWaldhelferName)}),
        ui::sums(MSFG, ui::row({ui::under(announced, lblSummeCol2, lblCol2),
                                ui::under(confirmed, lblSummeCol3, lblCol3)}))
            .growing(),
        ProgressBar1,
        ui::bar({btnBearbeiten, ui::Layout{btnSpeichern}.primary(), btnAbbrechen, btnAllezusagen}, {btnExcel},
                {btnSchliesen}),
    }));
}

std::vector<parts::KeyedGrid::Column> F_VertragMengenmeldung_WVO::columns() {
    const auto readOnly = [](const char* caption, const char* field) {
        parts::KeyedGrid::Column column = GuardedQuantities::column(caption, field);
        column.width = 17;
        column.editable = false;
        return column;
    };
    const auto unnamed = [](const char* caption, int width, std::size_t field) {
        return parts::KeyedGrid::Column{
            .caption = caption, .width = width, .sorts = true, .shown = [field](parts::KeyedRow& contract) {
                return contract.text(field);
            }};
    };
    return {quantities_.markColumn(),
            unnamed("Vertrag / Mengeneinheit", 42, quantity_report::contractField),
            GuardedQuantities::column("Menge angem.", GuardedQuantities::announced),
            GuardedQuantities::column("Menge best.", GuardedQuantities::confirmed),
            readOnly("Menge WB angem.", quantity_report::ownersField),
            readOnly("Menge geliefert", quantity_report::deliveredField),
            unnamed("Laufzeit", 24, quantity_report::runningTimeField)};
}

void F_VertragMengenmeldung_WVO::Run(const host::TlxVar& session, std::int16_t /*modul*/) {
    session_ = session;
    contracts_.setColumns(columns());
    services_.localizer.localize(session_, *this);
    services_.gridLayouts.restore(session_, MSFG, quantityReportLayout);
    load();
    services_.display.showModal(*this);
    parts::keepLayout(services_, session_, MSFG, quantityReportLayout);
}

host::ScreenMemory F_VertragMengenmeldung_WVO::memory() const {
    if (person_.key().empty()) return {};
    return {{"helper", person_.key()}, {"number", txtWaldhelfer.text()}, {"name", txtWaldhelferName.text()}};
}

void F_VertragMengenmeldung_WVO::resume(const host::ScreenMemory& memory) {
    person_.show(memory.at("helper"), memory.at("number"), memory.at("name"));
}

std::int32_t F_VertragMengenmeldung_WVO::helper() const {
    return base::wholeNumber<std::int32_t>(person_.key()).value_or(0);
}

void F_VertragMengenmeldung_WVO::load() {
    std::vector<parts::KeyedRow> contracts;
    try {
        contracts =
            parts::KeyedRows::read(*session_.connection, quantity_report::contractsOf(helper()), "ID").rows;
    } catch (...) {
        // Another helper's contracts must not stand under this one's name.
        quantities_.show({});
        mode_.enter(State::view);
        throw;
    }
    MSFG.setEmptyText(base::ownText(
        helper() == 0 ? base::OwnText::noHelperYet : base::OwnText::noContractsOfHelper, session_.language));
    quantities_.show(std::move(contracts));
    mode_.enter(State::view);
}

void F_VertragMengenmeldung_WVO::showSums() {
    lblCol2.setCaption(quantities_.sum(GuardedQuantities::announced));
    lblCol3.setCaption(quantities_.sum(GuardedQuantities::confirmed));
}

void F_VertragMengenmeldung_WVO::edit() {
    mode_.enter(State::edit);
    quantities_.startEditing();
}

void F_VertragMengenmeldung_WVO::save() {
    if (!quantities_.save(services_, session_, quantity_report::presentQuantities(helper()))) return;
    const parts::TakenOver taken = quantities_.takenOver();
    load();
    parts::SafeSetFocus(MSFG);
    status().say(taken.told(base::OwnText::saved, session_.language));
}

bool F_VertragMengenmeldung_WVO::escape() {
    return !quantities_.changed() || parts::confirmed(services_, session_, base::OwnText::discardChanges);
}

void F_VertragMengenmeldung_WVO::cancel() {
    const bool discards = quantities_.changed();
    load();
    parts::SafeSetFocus(MSFG);
    if (discards) status().say(base::ownText(base::OwnText::changesDiscarded, session_.language));
}

void F_VertragMengenmeldung_WVO::exportListings() {
    const ui::BusyPointer busy{services_.display};
    const std::vector<QuantityListing> listings = quantityListings();
    for (const QuantityListing& listing : listings)
        services_.spreadsheets.exportTable(session_, listing.parameters(*session_.connection), listing.title);
    status().say(
        base::ownText(base::OwnText::tablesExported, session_.language, {std::to_string(listings.size())}));
}

bool F_VertragMengenmeldung_WVO::queryUnload() {
    if (!quantities_.changed()) return true;
    return parts::confirmed(services_, session_, base::OwnText::closeChanged);
}

} // namespace tellurix::logistics
