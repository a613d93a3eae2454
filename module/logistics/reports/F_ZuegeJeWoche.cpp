#include "module/logistics/reports/F_ZuegeJeWoche.h"

#include "module/base/field_text.h"
#include "module/logistics/week_chart.h"
#include "module/parts/contract_title.h"
#include "module/parts/grids/grid_layout.h"
#include "module/ui/input/control_keys.h"

#include <algorithm>

namespace tellurix::logistics {

namespace {

constexpr const char* loadsCaption = "Züge je Woche";

} // namespace

F_ZuegeJeWoche::F_ZuegeJeWoche(host::HostServices& services)
    : Form("F_ZuegeJeWoche", loadsCaption), services_(services) {
    grdWochen.setColumns({{.caption = "Jahr/Woche", .width = 12},
                          {.caption = "Züge", .width = 12, .rightAligned = true},
                          {.caption = "Züge zugesagt", .width = 16, .rightAligned = true}});
    grdWochen.onCurrentChange = [this] { mark(); };
    grdWochen.onDoubleClick = [this] { choose(); };
    chtZuege.onSelect = [this](int bar) {
        setFocus(grdWochen);
        ui::choose(grdWochen, sorting_.rowOf(static_cast<std::size_t>(bar)), grdWochen.currentColumn());
    };
    btnWaehlen.onClick = [this] { choose(); };
    btnSchliessen.onClick = [this] { unload(); };
    setCancelButton(btnSchliessen);
    setLayout(ui::column({
        ui::sides(ui::Layout{grdWochen}.growing(), ui::groups({ui::frame(frmZuege, {chtZuege})}).growing())
            .growing(),
        ui::bar({ui::Layout{btnWaehlen}.primary()}, {}, {btnSchliessen}),
    }));
}

std::optional<base::IsoWeek> F_ZuegeJeWoche::Run(const host::TlxVar& session, const ReportWeek& week,
                                                 const std::string& contract) {
    chosen_.reset();
    parts::localizeWithTitle(services_, session, *this, loadsCaption, contract);
    show(session, week);
    parts::GridLayouts layouts{services_, session, *this};
    services_.display.showModal(*this);
    layouts.keep();
    return chosen_;
}

void F_ZuegeJeWoche::show(const host::TlxVar& session, const ReportWeek& week) {
    weeks_.clear();
    std::vector<ui::Grid::Row> rows;
    std::vector<ui::Chart::Bar> bars;
    const std::string query = ProvisionStatements{week}.loadsByWeek();
    for (auto row = session.connection->open(query); !row->atEnd(); row->moveNext()) {
        const base::IsoWeek found{static_cast<int>(row->integer("JAHR")),
                                  static_cast<int>(row->integer("WOCHE"))};
        weeks_.push_back(found);
        std::string words;
        std::vector<double> values;
        rows.push_back({std::to_string(found.year) + "/" + weekName(found)});
        for (const char* field : {"ZUEGE", "ZUGESAGT"}) {
            const base::Value loads = row->field(field);
            const std::string text = base::numberText(loads, "##,##0", services_.locale);
            values.push_back(base::numberIn(loads).value_or(base::Decimal{}).toDouble());
            words += (values.size() == 1 ? "" : " / ") + (text.empty() ? "–" : text);
            rows.back().push_back(text);
        }
        bars.push_back({weekName(found), std::move(values), std::move(words)});
    }
    const auto at = std::ranges::find(weeks_, base::IsoWeek{week.year, week.week});
    sorting_.show(std::move(rows));
    if (at != weeks_.end())
        grdWochen.setCurrent(sorting_.rowOf(static_cast<std::size_t>(at - weeks_.begin())));
    chtZuege.setSeries({grdWochen.columns()[1].caption, grdWochen.columns()[2].caption});
    chtZuege.setBars(std::move(bars));
    chtZuege.setToday(placeOf(services_.clock.today(), weeks_));
    mark();
    btnWaehlen.setEnabled(!weeks_.empty());
}

void F_ZuegeJeWoche::mark() {
    const int row = grdWochen.currentRow();
    chtZuege.mark(row == ui::Grid::none ? ui::Chart::none : static_cast<int>(sorting_.originOf(row)));
}

void F_ZuegeJeWoche::choose() {
    if (grdWochen.currentRow() == ui::Grid::none) return;
    chosen_ = weeks_.at(sorting_.originOf(grdWochen.currentRow()));
    unload();
}

} // namespace tellurix::logistics
