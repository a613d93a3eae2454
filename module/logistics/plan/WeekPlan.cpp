#include "module/logistics/plan/WeekPlan.h"

#include "module/base/field_text.h"
#include "module/base/number_format.h"
#include "module/base/own_text.h"
#include "module/logistics/week_chart.h"

#include <algorithm>

namespace tellurix::logistics {

using base::Decimal;
using base::OwnText;
using ui::field;

namespace {

constexpr const char* exactQuantity = "##,##0.00";
constexpr const char* wholeQuantity = "##,##0";

struct PlannedWeek {
    base::IsoWeek week;
    std::int64_t key;
    Decimal plan;
};

} // namespace

WeekPlan::WeekPlan(ui::Form& form, host::HostServices& services)
    : services_(services),
      frmPlan(form, "frmPlan", "Plan je Woche"),
      chtPlan(form, "chtPlan"),
      lblOhneMenge(form, "lblOhneMenge"),
      frmVergleich(form, "frmVergleich", "Plan und Vertrag"),
      lblPlan(form, "lblPlan", "Plan"),
      lblPlanWert(form, "lblPlanWert"),
      lblVertrag(form, "lblVertrag", "Vertrag"),
      lblVertragWert(form, "lblVertragWert"),
      lblDifferenz(form, "lblDifferenz", "Differenz"),
      lblDifferenzWert(form, "lblDifferenzWert") {
    chtPlan.onSelect = [this](int bar) { onSelect(keys_.at(static_cast<std::size_t>(bar))); };
}

ui::Layout WeekPlan::chart() {
    return ui::frame(frmPlan, {chtPlan, lblOhneMenge});
}

ui::Layout WeekPlan::sums() {
    return ui::frame(frmVergleich,
                     {ui::fields(1, {field(lblPlan, lblPlanWert), field(lblVertrag, lblVertragWert),
                                     field(lblDifferenz, lblDifferenzWert)})});
}

void WeekPlan::show(parts::KeyedGrid& weeks, const LogisticsContract& contract,
                    const CalendarStatements& statements) {
    showChart(weeks, contract);
    showSums(weeks, contract, statements);
    mark(weeks.currentKey());
}

void WeekPlan::showChart(parts::KeyedGrid& weeks, const LogisticsContract& contract) {
    std::vector<PlannedWeek> planned;
    for (parts::KeyedRow& row : weeks.rows())
        planned.push_back({{static_cast<int>(row.integer("JAHR")), static_cast<int>(row.integer("WOCHE"))},
                           row.key(),
                           base::numberIn(row.field("PLANMENGE")).value_or(Decimal{})});
    std::ranges::stable_sort(planned, {}, &PlannedWeek::week);

    keys_.clear();
    std::vector<base::IsoWeek> order;
    std::vector<base::IsoWeek> without;
    std::vector<ui::Chart::Bar> bars;
    for (const PlannedWeek& week : planned) {
        keys_.push_back(week.key);
        order.push_back(week.week);
        const bool isWhole = week.plan == week.plan.rounded(0);
        std::string text =
            base::formatNumber(week.plan, isWhole ? wholeQuantity : exactQuantity, services_.locale);
        bars.push_back({weekName(week.week), {week.plan.toDouble()}, std::move(text)});
        if (bars.back().empty()) without.push_back(week.week);
    }
    frmPlan.setVisible(!bars.empty());
    chtPlan.setBars(std::move(bars));
    chtPlan.setToday(placeOf(services_.clock.today(), order));

    std::string words;
    if (!without.empty()) {
        const std::string names = weekNames(without);
        const std::string& language = contract.session.language;
        words = without.size() == 1 ? base::ownText(OwnText::weekWithoutPlan, language, {names})
                                    : base::ownText(OwnText::weeksWithoutPlan, language,
                                                    {std::to_string(without.size()), names});
    }
    lblOhneMenge.setVisible(!words.empty());
    lblOhneMenge.setWarning(words);
    lblOhneMenge.setCaption(std::move(words));
}

void WeekPlan::showSums(parts::KeyedGrid& weeks, const LogisticsContract& contract,
                        const CalendarStatements& statements) {
    struct Quantity {
        std::string unit;
        base::Value sum;
    };
    std::vector<Quantity> quantities;
    for (auto line = contract.connection().open(statements.contractQuantities()); !line->atEnd();
         line->moveNext())
        quantities.push_back({line->text("EINHEIT"), line->field("MENGE")});
    // Quantities in several units, or in none, cannot be compared with one plan.
    const bool comparable = quantities.size() == 1 && !quantities.front().unit.empty();
    frmVergleich.setVisible(comparable);
    if (!comparable) return;
    const Decimal plan = weeks.sum("PLANMENGE");
    const Decimal agreed = base::numberIn(quantities.front().sum).value_or(Decimal{});
    const auto show = [&](ui::Label& label, const Decimal& quantity) {
        label.setCaption(base::formatNumber(quantity, exactQuantity, services_.locale) + " " +
                         quantities.front().unit);
    };
    show(lblPlanWert, plan);
    show(lblVertragWert, agreed);
    show(lblDifferenzWert, agreed - plan);
}

void WeekPlan::mark(std::optional<std::int64_t> key) {
    const auto at = key ? std::ranges::find(keys_, *key) : keys_.end();
    chtPlan.mark(at == keys_.end() ? ui::Chart::none : static_cast<int>(at - keys_.begin()));
}

} // namespace tellurix::logistics
