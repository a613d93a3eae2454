#include "module/logistics/plan/original_document.h"

#include "module/base/Refused.h"
#include "module/base/StatementText.h"
#include "module/base/own_text.h"
#include "module/base/text.h"
#include "module/parts/M_Common.h"
#include "module/parts/questions.h"

namespace tellurix::logistics {

using base::OwnText;
using base::Refused;

namespace {

/// A drive that only the machines of the office have, and the setting that says which share it is.
constexpr const char* officeDrive = "M:";
constexpr const char* shareOfDrive = "UNCOFDRIVEM";
/// The folder that documents are copied into, and what the web server calls it.
constexpr const char* documentFolder = "PATHOFWVOWEBVERTRAEGE";
constexpr const char* folderOnTheServer = "c:\\VertragsdokumenteOriginal\\";
constexpr const char* documentFilter = "PDF file (*.pdf)|*.pdf|DOC file (*.doc)|*.doc|"
                                       "DOC and PDF files (*.pdf;*.doc)|*.doc;*.pdf|Alle Dateien (*.*)|*.*";

/// @return false when the user keeps the file that is there under the same name
bool copyDocument(host::HostServices& services, const host::TlxVar& session, const std::string& source,
                  const std::string& name) {
    using Present = host::DocumentFiles::Present;
    if (name.empty()) throw Refused{OwnText::noFileName};
    // A document whose path cannot be stored would be found by nobody.
    static_cast<void>(base::StatementText{}.insideLiteral(name).text());
    std::string folder = services.settings.text(session, documentFolder);
    if (folder.empty())
        throw Refused{std::vector<Refused::Sentence>{{OwnText::settingMissing, {documentFolder}}}};
    if (!folder.ends_with('\\')) folder += '\\';
    const Present present = services.files.find(source, folder);
    if (present == Present::different &&
        !parts::confirmed(services.display,
                          base::ownText(OwnText::replaceDocument, session.language, {name})))
        return false;
    const ui::BusyPointer busy{services.display};
    if (present != Present::same) services.files.copy(source, folder);
    return true;
}

} // namespace

std::optional<std::string> chooseOriginal(host::HostServices& services, const host::TlxVar& session) {
    const auto source = services.display.openFile("File select...", documentFilter);
    if (!source) return std::nullopt;
    const std::string name = services.files.fileName(*source);
    try {
        if (!copyDocument(services, session, *source, name)) return std::nullopt;
        parts::ShowMessage(services.display, "Kopieren des Vertragesdokuments zum Webserver erfolgreich.",
                           ui::box::information);
    } catch (const std::exception& error) {
        const auto* refused = dynamic_cast<const Refused*>(&error);
        parts::ShowMessage(services.display,
                           "Kopieren des Vertragesdokuments zum Webserver fehlgeschlagen.\n" +
                               (refused == nullptr ? error.what() : refused->message(session.language)),
                           ui::box::exclamation);
    }
    if (name.empty()) return std::nullopt;
    return folderOnTheServer + name;
}

std::string pathForAll(host::HostServices& services, const host::TlxVar& session, std::string path) {
    if (path.find(officeDrive) == std::string::npos) return path;
    const std::string share = services.settings.text(session, shareOfDrive);
    if (!share.empty()) return base::replaceAll(std::move(path), officeDrive, share);
    parts::ShowMessage(
        services.display,
        base::ownText(OwnText::driveWithoutShare, session.language, {officeDrive, shareOfDrive}),
        ui::box::exclamation);
    return path;
}

} // namespace tellurix::logistics
