#include "module/contract/head_summary.h"

#include "module/base/StatementText.h"
#include "module/base/field_text.h"
#include "module/base/own_text.h"
#include "module/contract/contract_row.h"
#include "module/contract/header_captions.h"
#include "module/host/module_state.h"
#include "module/ui/controls/caption.h"

namespace tellurix::contract {

using base::OwnText;

HeadSummary headSummary(const parts::OpenContract& contract) {
    // clang-format off
    base::StatementText query{"SELECT "
        "VERTRAEGE.INVDATE,VERTRAEGE.DATE1,VERTRAEGE.DATE2,VERTRAEGE.DATE3,VERTRAEGE.LIEFERVON,VERTRAEGE.LIEFERBIS,"
        "VERTRAEGE.KOPF1,VERTRAEGE.KOPF2,VERTRAEGE.KOPF3,VERTRAEGE.KOPF4,VERTRAEGE.KOPF5,VERTRAEGE.KOPF6,VERTRAEGE.KOPF7,VERTRAEGE.KOPF8,VERTRAEGE.KOPF9,VERTRAEGE.KOPF10,"
        "VERTRAEGE.NUMM1,VERTRAEGE.NUMM2,VERTRAEGE.NUMM3,VERTRAEGE.NUMM4,VERTRAEGE.NUMM5,VERTRAEGE.NUMM6,VERTRAEGE.NUMM7,VERTRAEGE.NUMM8,VERTRAEGE.NUMM9,VERTRAEGE.NUMM10,"
        "RECHNUNGSART.RECHNUNGSART,BUCHNR.BUCHUNGSTEXT,"
        "ISNULL(VERTRAEGE.EURO,0) AS EURO,"
        "PLA.NUMMER AS PLANUMMER,PLA.KURZBEZEICHNUNG AS PLAKURZBEZEICHNUNG"
        " FROM VERTRAEGE"
        " LEFT JOIN RECHNUNGSART ON RECHNUNGSART.RART_ID = VERTRAEGE.RART_ID"
        " LEFT JOIN BUCHNR ON BUCHNR.BUCHNR_ID = VERTRAEGE.BUCHNR_ID"
        " LEFT JOIN PERSONAL PLA ON PLA.ID_PERSONAL = VERTRAEGE.ID_PERSONAL_LIEFERADRESSE AND PLA.ID_PERSONAL > 0"
        " WHERE VERTRAEGE.ID_VERTRAG = "};
    // clang-format on
    const auto header = contract.connection().open(query.number(contract.id).text());
    requireContract(*header);
    HeadSummary summary;
    const auto add = [&summary](const std::string& caption, const std::string& value) {
        if (!value.empty()) summary.lines.push_back(ui::plainCaption(caption) + ": " + value);
    };
    const auto caption = [&contract](int number) {
        return contract.services->localizer.text(number, contract.session);
    };
    const auto ownText = [&contract](OwnText text) { return base::ownText(text, contract.session.language); };
    const HeaderCaptions captions = headerCaptions(host::moduleState().context.StrVer_Type);

    add(ownText(OwnText::contractDate), base::dateText(header->field("INVDATE")));
    summary.period = base::periodText(header->field("LIEFERVON"), header->field("LIEFERBIS"));
    add(ownText(OwnText::deliveryPeriod), summary.period);
    for (std::size_t i = 0; i < captions.dates.size(); ++i) {
        add(caption(captions.dates[i]), base::dateText(header->field("DATE" + std::to_string(i + 1))));
    }
    add(ownText(OwnText::deliveryAddress), header->text("PLAKURZBEZEICHNUNG"));
    add(caption(captions.rechnungsart), header->text("RECHNUNGSART"));
    add(caption(captions.buchungsart), header->text("BUCHUNGSTEXT"));
    add(caption(captions.wahrung), header->flag("EURO") ? host::euro : contract.session.homeCurrency);
    for (std::size_t i = 0; i < captions.kopf.size(); ++i) {
        add(caption(captions.kopf[i]), header->text("KOPF" + std::to_string(i + 1)));
    }
    for (std::size_t i = 0; i < captions.numbers.size(); ++i) {
        const base::Value number = header->field("NUMM" + std::to_string(i + 1));
        add(caption(captions.numbers[i]), base::numberText(number, "##,##0.00", contract.services->locale));
    }
    return summary;
}

} // namespace tellurix::contract
