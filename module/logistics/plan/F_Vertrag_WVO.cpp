#include "module/logistics/plan/F_Vertrag_WVO.h"

#include "module/base/StatementText.h"
#include "module/parts/contract_title.h"
#include "module/parts/questions.h"

#include <algorithm>

namespace tellurix::logistics {

using base::OwnText;
using base::StatementText;

namespace {

constexpr const char* screenCaption = "Lieferprofil Vertragsdefinition";

} // namespace

F_Vertrag_WVO::F_Vertrag_WVO(host::HostServices& services)
    : Form("F_Vertrag_WVO", screenCaption),
      services_(services),
      settings_(*this, services, undo_),
      calendar_(*this, services, settings_.deliveryPeriod(), undo_),
      helpers_(*this, services, undo_) {
    btnClose.onClick = [this] { unload(); };
    // Nobody has to correct a field in order to leave.
    btnClose.setCausesValidation(false);
    SSTab1.onChange = [this] { placeEscape(); };
    for (Area* area : areas())
        area->mode().onEnter = [this] { placeEscape(); };
    std::vector<ui::Layout> pages;
    for (Area* area : areas())
        pages.push_back(area->layout());
    setLayout(ui::column({ui::tabs(SSTab1, std::move(pages)).growing(), ui::bar({}, {}, {btnClose})}));
}

void F_Vertrag_WVO::Run(std::int32_t contract, const host::TlxVar& session) {
    session_ = session;
    undo_.forget();
    const LogisticsContract record = openRecord(contract);
    for (Area* area : areas())
        area->open(record);
    parts::localizeWithTitle(services_, session_, *this, screenCaption, record.name);
    for (std::size_t area = 0; area < areas().size(); ++area)
        RefreshArea(area);
    SSTab1.select(0);
    SetButtons();
    for (Area* area : areas())
        area->restoreColumns();
    services_.display.showModal(*this);
}

LogisticsContract F_Vertrag_WVO::openRecord(std::int32_t contract) {
    base::Connection& connection = *session_.connection;
    StatementText create{"IF NOT EXISTS(SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = "};
    create.number(contract)
        .fixed(") INSERT INTO WVO_VERTRAG (ID_VERTRAEGE,KEINE_MENGENMELDUNG_AUF_WB,GESCHAEFTSFELD_NEU)"
               " VALUES (")
        .number(contract)
        .fixed(",1,1)");
    connection.execute(create.text());

    const auto ofContract = [&](std::string_view query) {
        return connection.open(StatementText{query}.number(contract).text());
    };
    LogisticsContract record;
    record.services = &services_;
    record.session = session_;
    record.id = contract;
    record.record = ofContract("SELECT ID FROM WVO_VERTRAG WHERE ID_VERTRAEGE = ")->integer("ID");
    record.name = ofContract("SELECT VERTRAG_NAME FROM VERTRAEGE WHERE ID_VERTRAG = ")->text("VERTRAG_NAME");
    const auto unit =
        ofContract("SELECT WARENEINHEIT.EINHEIT FROM VERTRAG_MENGEN INNER JOIN WARENEINHEIT"
                   " ON WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT WHERE ID_VERTRAG = ");
    if (!unit->atEnd()) record.unit = unit->text("EINHEIT");
    return record;
}

void F_Vertrag_WVO::RefreshArea(std::size_t area, std::optional<std::int64_t> key) {
    areas().at(area)->reload(key);
}

void F_Vertrag_WVO::SetButtons() {
    for (Area* area : areas())
        area->mode().refresh();
}

void F_Vertrag_WVO::placeEscape() {
    const parts::EditMode& mode = shownArea().mode();
    setCancelButton(mode.viewing() ? btnClose : *mode.cancelButton());
}

bool F_Vertrag_WVO::escape() {
    // The button is pressed on purpose; this key may be meant for something else.
    return shownArea().mode().viewing() || !shownArea().changed() ||
           parts::confirmed(services_, session_, OwnText::discardChanges);
}

bool F_Vertrag_WVO::queryUnload() {
    const auto all = areas();
    if (std::ranges::any_of(all, [](const Area* area) { return area->changed(); }) &&
        !parts::confirmed(services_, session_, OwnText::closeChanged))
        return false;
    // What fails here is no reason to stay.
    const auto ofAll = [&](void (Area::*act)()) {
        try {
            for (Area* area : all)
                (area->*act)();
        } catch (const std::exception& error) {
            services_.errors.report(error);
        }
    };
    ofAll(&Area::discard);
    ofAll(&Area::saveColumns);
    settings_.warnOnClosing();
    return true;
}

} // namespace tellurix::logistics
