#include "standin/home/contract_glance.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/contract/header_captions.h"
#include "module/lines/over_delivery.h"
#include "module/ui/controls/caption.h"

#include <algorithm>

namespace tellurix::standin {

using base::StatementText;

int daysUntil(base::Date day, base::Date today) {
    return static_cast<int>((std::chrono::local_days{day} - std::chrono::local_days{today}).count());
}

Due dueOf(base::Date day, bool closed, base::Date today) {
    const int days = daysUntil(day, today);
    return closed || days > dueWithin ? Due::notYet : days < 0 ? Due::over : Due::soon;
}

GlanceReading::GlanceReading(WorkbenchServices& services, const host::TlxVar& session, std::int32_t contract)
    : services_(services), session_(session), contract_(contract) {}

bool GlanceReading::next() {
    const std::size_t piece = pieces_++;
    if (piece == 0) {
        readHead();
        return glance_.has_value();
    }
    if (piece == 1) {
        readLines();
    } else {
        readDelivered(glance_->lines.at(piece - 2));
    }
    return piece - 1 < glance_->lines.size();
}

std::string GlanceReading::caption(int number) const {
    return ui::plainCaption(services_.host().localizer.text(number, session_));
}

void GlanceReading::readHead() {
    // clang-format off
    StatementText query{"SELECT VERTRAEGE.VERTRAG_NAME,VERTRAEGE.VER_TYPE,"
        "ISNULL(VERTRAEGE.ABGESCHLOSSEN,0) AS ABGESCHLOSSEN,"
        "VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,VERTRAEGE.DATE1,VERTRAEGE.DATE2,VERTRAEGE.DATE3,"
        "VERTRAEGE.KOPF1,VERTRAEGE.KOPF2,VERTRAEGE.KOPF3,VERTRAEGE.KOPF4,VERTRAEGE.KOPF5,"
        "VERTRAEGE.KOPF6,VERTRAEGE.KOPF7,VERTRAEGE.KOPF8,VERTRAEGE.KOPF9,VERTRAEGE.KOPF10,"
        "KUNDE.KURZBEZEICHNUNG AS KUNDE,ADRESSE.KURZBEZEICHNUNG AS LIEFERADRESSE"
        " FROM VERTRAEGE"
        " LEFT JOIN PERSONAL KUNDE ON KUNDE.ID_PERSONAL = VERTRAEGE.ID_PERSONAL AND KUNDE.ID_PERSONAL > 0"
        " LEFT JOIN PERSONAL ADRESSE ON ADRESSE.ID_PERSONAL = VERTRAEGE.ID_PERSONAL_LIEFERADRESSE AND ADRESSE.ID_PERSONAL > 0"
        " WHERE VERTRAEGE.ID_VERTRAG = "};
    // clang-format on
    const auto row = session_.connection->open(query.number(contract_).text());
    if (row->atEnd()) return;
    ContractGlance& glance = glance_.emplace();
    glance.name = row->text("VERTRAG_NAME");
    glance.type = row->text("VER_TYPE");
    glance.closed = row->flag("ABGESCHLOSSEN");
    const auto add = [&glance](std::string name, std::string value) {
        if (!value.empty()) glance.head.emplace_back(std::move(name), std::move(value));
    };
    const contract::HeaderCaptions captions = contract::headerCaptions(glance.type);
    add(named("glance.customer"), row->text("KUNDE"));
    add(base::ownText(base::OwnText::deliveryAddress, session_.language), row->text("LIEFERADRESSE"));
    add(base::ownText(base::OwnText::deliveryPeriod, session_.language),
        base::periodText(row->field("LIEFERVON"), row->field("LIEFERBIS")));
    for (std::size_t i = 0; i < captions.kopf.size(); ++i)
        add(caption(captions.kopf[i]), row->text("KOPF" + std::to_string(i + 1)));

    const base::Date today = services_.host().clock.today();
    for (std::size_t i = 0; i < captions.dates.size(); ++i) {
        const auto day = base::dayIn(row->field("DATE" + std::to_string(i + 1)));
        if (day && daysUntil(*day, today) >= 0) glance.dates.push_back({caption(captions.dates[i]), *day});
    }
    if (const auto day = base::dayIn(row->field("LIEFERBIS")))
        glance.dates.push_back({named("glance.deliveryEnd"), *day});
    std::ranges::stable_sort(glance.dates, {}, &ContractGlance::Date::day);
}

void GlanceReading::readLines() {
    glance_->overDelivery = lines::overDeliveryOf(*session_.connection, contract_);
    StatementText query{"SELECT VERTRAG_MENGEN.ORDNUNG,VERTRAG_MENGEN.BEZEICHNUNG,VERTRAG_MENGEN.MENGE,"
                        "WARENEINHEIT.EINHEIT FROM VERTRAG_MENGEN"
                        " LEFT JOIN WARENEINHEIT ON WARENEINHEIT.EINHEIT_ID = VERTRAG_MENGEN.ID_WARENEINHEIT"
                        " WHERE VERTRAG_MENGEN.ID_VERTRAG = "};
    query.number(contract_).fixed(" ORDER BY VERTRAG_MENGEN.ORDNUNG");
    for (auto row = session_.connection->open(query.text()); !row->atEnd(); row->moveNext()) {
        if (glance_->lines.size() == mostLines) {
            ++glance_->furtherLines;
            continue;
        }
        const base::Decimal agreed = lines::quantityIn(row->field("MENGE"));
        glance_->lines.push_back({.place = static_cast<int>(row->integer("ORDNUNG")),
                                  .name = row->text("BEZEICHNUNG"),
                                  .unit = row->text("EINHEIT"),
                                  .agreed = agreed,
                                  .permitted = lines::permittedQuantity(agreed, glance_->overDelivery),
                                  .delivered = std::nullopt});
    }
}

void GlanceReading::readDelivered(ContractGlance::Line& line) {
    const lines::DeliveredQuantity delivered{
        {.services = &services_.host(), .session = session_, .id = contract_, .name = glance_->name},
        glance_->type};
    try {
        line.delivered = delivered.of(line.place);
    } catch (const base::DatabaseError&) {
        throw;
    } catch (const std::exception&) {
        // A selection that cannot be read is told where it can be put right: in the line itself.
    }
}

} // namespace tellurix::standin
