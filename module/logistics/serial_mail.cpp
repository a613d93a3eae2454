#include "module/logistics/serial_mail.h"

#include "module/base/StatementText.h"
#include "module/parts/M_Common.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace tellurix::logistics {

namespace {

/// Where the user begins to write: below the salutation, set in.
constexpr const char* salutation = "Sehr geehrter Waldhelfer,\r\n                          ";

std::vector<std::string> addressesOf(const parts::OpenContract& contract, std::int64_t logistics) {
    // clang-format off
    base::StatementText query{
        "SELECT  distinct isnull(PERSONAL.EMAIL,PERSONAL.NUMMER) as Mail "
        " FROM (SELECT "};
    query.number(logistics).fixed(
        " AS ID) KOPF "
        " LEFT JOIN WVO_VERTRAG_WALDHELFER ON WVO_VERTRAG_WALDHELFER.ID_WVO_VERTRAG = KOPF.ID "
        " LEFT JOIN PERSONAL ON PERSONAL.ID_PERSONAL = WVO_VERTRAG_WALDHELFER.ID_PERSONAL WHERE isnull(PERSONAL.EMAIL,PERSONAL.NUMMER) is not null AND ISNULL(DISABLE,0) = 0 ");
    // clang-format on
    std::vector<std::string> addresses;
    for (auto row = contract.connection().open(query.text()); !row->atEnd(); row->moveNext())
        addresses.push_back(row->text("Mail"));
    return addresses;
}

} // namespace

bool mailHelpers(const parts::OpenContract& contract, std::int64_t logistics) {
    const std::vector<std::string> addresses = addressesOf(contract, logistics);
    host::MailSession& mail = contract.services->mail;
    try {
        mail.signOn(contract.session);
        mail.compose();
        for (const std::string& address : addresses)
            mail.addRecipient("SMTP:" + address);
        mail.setSubject("Information zum Vertrag " + contract.name);
        mail.setText(salutation);
        return mail.send();
    } catch (const std::runtime_error& error) {
        parts::ShowMessage(contract.services->display,
                           std::string{"Automatisches Versenden fehlgeschlagen.\n"} + error.what(),
                           ui::box::exclamation);
        return false;
    }
}

} // namespace tellurix::logistics
