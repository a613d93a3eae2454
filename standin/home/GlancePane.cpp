#include "standin/home/GlancePane.h"

#include "module/base/date_format.h"
#include "module/base/number_format.h"
#include "standin/home/contract_types.h"

namespace tellurix::standin {

using base::Decimal;

namespace {

/// How much of an agreed quantity another one is; where nothing is agreed, anything is more than all.
double partOf(const Decimal& quantity, const Decimal& agreed) {
    if (agreed > Decimal{}) return quantity.toDouble() / agreed.toDouble();
    return quantity > Decimal{} ? ui::Gauges::scale : 0;
}

} // namespace

GlancePane::GlancePane(ui::Form& form, WorkbenchServices& services, const host::TlxVar& session)
    : services_(services),
      session_(session),
      frmGlance(form, "frmGlance"),
      lblGlanceKind(form, "lblGlanceKind"),
      lblHead(ui::controlArray<ui::Label, mostHeadData>(form, "lblHead")),
      lblHeadValue(ui::controlArray<ui::Label, mostHeadData>(form, "lblHeadValue")),
      frmGlanceLines(form, "frmGlanceLines"),
      gagLines(form, "gagLines"),
      lblTicks(form, "lblTicks"),
      lblTooMuch(form, "lblTooMuch"),
      frmGlanceDates(form, "frmGlanceDates", "Nächste Termine"),
      lblDate(ui::controlArray<ui::Label, mostDates>(form, "lblDate")),
      lblDay(ui::controlArray<ui::Label, mostDates>(form, "lblDay")),
      lblDue(ui::controlArray<ui::Label, mostDates>(form, "lblDue")) {
    showNothing();
}

ui::Layout GlancePane::layout() {
    std::vector<ui::Layout> head;
    for (std::size_t i = 0; i < mostHeadData; ++i)
        head.push_back(ui::field(lblHead[i], lblHeadValue[i]));
    std::vector<ui::Layout> dates;
    for (std::size_t i = 0; i < mostDates; ++i)
        dates.push_back(ui::field(lblDate[i], lblDay[i], lblDue[i]));
    return ui::groups({ui::frame(frmGlance, {lblGlanceKind, ui::fields(1, std::move(head))}),
                       ui::frame(frmGlanceLines, {gagLines, lblTicks, lblTooMuch}),
                       ui::frame(frmGlanceDates, {ui::fields(1, std::move(dates))})});
}

void GlancePane::showNothing(std::string why) {
    show({});
    lblGlanceKind.setVisible(!why.empty());
    lblGlanceKind.setCaption(std::move(why));
}

void GlancePane::setOld(bool old) {
    for (ui::Label* label : {&lblGlanceKind, &lblTicks, &lblTooMuch})
        label->setQuiet(old);
    for (auto* labels : {&lblDay, &lblDue})
        for (ui::Label& label : *labels)
            label.setQuiet(old);
    for (ui::Label& label : lblHeadValue)
        label.setQuiet(old);
    gagLines.setQuiet(old);
}

void GlancePane::show(const ContractGlance& glance) {
    showHead(glance);
    showLines(glance);
    showDates(glance);
    setOld(false);
}

void GlancePane::showHead(const ContractGlance& glance) {
    frmGlance.setCaption(glance.name);
    lblGlanceKind.setVisible(!glance.type.empty());
    if (!glance.type.empty())
        lblGlanceKind.setCaption(contractTypeText(glance.type, services_.localizer(), session_) + " · " +
                                 named(glance.closed ? "start.isClosed" : "start.isOpen"));
    for (std::size_t i = 0; i < mostHeadData; ++i) {
        const bool there = i < glance.head.size();
        lblHead[i].setVisible(there);
        lblHeadValue[i].setVisible(there);
        if (!there) continue;
        lblHead[i].setCaption(glance.head[i].first);
        lblHeadValue[i].setCaption(glance.head[i].second);
    }
}

std::string GlancePane::quantity(const Decimal& value) const {
    return base::formatNumber(value, "##,##0.00", services_.host().locale);
}

void GlancePane::showLines(const ContractGlance& glance) {
    std::vector<ui::Gauges::Gauge> gauges;
    std::string tooMuch;
    for (const ContractGlance::Line& line : glance.lines) {
        const bool warns = line.delivered && *line.delivered > line.permitted;
        const std::string unit = line.unit.empty() ? "" : " " + line.unit;
        gauges.push_back({.cells = {line.name, quantity(line.agreed) + unit,
                                    line.delivered ? quantity(*line.delivered) : named("glance.unreadable"),
                                    line.delivered ? quantity(line.agreed - *line.delivered) : std::string{}},
                          .reached = line.delivered ? partOf(*line.delivered, line.agreed) : 0,
                          .permitted = line.agreed > Decimal{} ? partOf(line.permitted, line.agreed) : 1,
                          .warns = warns});
        if (!warns) continue;
        if (!tooMuch.empty()) tooMuch += "\n";
        tooMuch += filled(named("glance.tooMuch"),
                          {line.name, quantity(*line.delivered) + unit, quantity(line.permitted) + unit});
    }
    const bool any = !glance.name.empty();
    frmGlanceLines.setVisible(any);
    gagLines.setVisible(!gauges.empty());
    gagLines.setHeadings(
        {named("glance.lines"), named("glance.agreed"), named("glance.delivered"), named("glance.open")});
    gagLines.setGauges(std::move(gauges));
    const Decimal permitted = Decimal{100} + glance.overDelivery;
    const std::string limit = base::formatNumber(
        permitted, permitted == permitted.rounded(0) ? "##0" : "##0.00", services_.host().locale);
    std::string ticks = glance.lines.empty()              ? named("glance.noLines")
                        : glance.overDelivery > Decimal{} ? filled(named("glance.twoTicks"), {limit})
                                                          : named("glance.oneTick");
    if (glance.furtherLines > 0)
        ticks = filled(named("glance.further"), {std::to_string(glance.furtherLines)}) + " · " + ticks;
    lblTicks.setCaption(std::move(ticks));
    lblTooMuch.setVisible(!tooMuch.empty());
    lblTooMuch.setWarning(tooMuch);
    lblTooMuch.setCaption(std::move(tooMuch));
}

void GlancePane::showDates(const ContractGlance& glance) {
    const base::Date today = services_.host().clock.today();
    frmGlanceDates.setVisible(!glance.dates.empty());
    for (std::size_t i = 0; i < mostDates; ++i) {
        const bool there = i < glance.dates.size();
        for (ui::Label* label : {&lblDate[i], &lblDay[i], &lblDue[i]})
            label->setVisible(there);
        if (!there) continue;
        const ContractGlance::Date& date = glance.dates[i];
        lblDate[i].setCaption(date.caption);
        lblDay[i].setCaption(base::formatDate(date.day, "dd.mm.yyyy", services_.host().locale));
        const int days = daysUntil(date.day, today);
        const std::string due = days < 0    ? (glance.closed ? "" : named("start.over"))
                                : days == 0 ? named("glance.today")
                                : days == 1 ? named("glance.tomorrow")
                                            : filled(named("glance.inDays"), {std::to_string(days)});
        lblDue[i].setCaption(due);
        lblDue[i].setWarning(dueOf(date.day, glance.closed, today) == Due::soon ? due : "");
    }
}

} // namespace tellurix::standin
