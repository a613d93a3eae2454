#pragma once

#include "display/browser/session/PageChannel.h"
#include "module/ui/Desktop.h"
#include "module/ui/DisplayErrors.h"
#include "module/ui/key_hints.h"

#include <nlohmann/json_fwd.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tellurix::browser {

/// The display of one browser session. Its calls block the session's thread until the user has
/// answered, and throw SessionEnded when nobody will.
///
/// Whenever the session waits for the user it sends what changed and acknowledges the last message
/// of the page, which then knows that everything typed so far has had its effect.
class BrowserDisplay final : public ui::Display {
public:
    explicit BrowserDisplay(PageChannel& page);

    /// Where errors inside an event of an open screen go. Without it they are shown as a message.
    /// @param errors outlives the display's last use, or is replaced by null
    void setErrorHandling(ui::ErrorHandling* errors) { errors_.setHost(errors); }
    /// Language of message buttons and of the page's own texts: "de" (the default) or "en".
    void setLanguage(std::string language);

    void showModal(ui::Form& form) override;
    ui::Answer messageBox(const std::string& text, int flags, const std::string& title) override;
    /// Lets the user choose a file of their machine, which the page sends.
    /// @return the path of a copy that stays as long as the session
    std::optional<std::string> openFile(const std::string& title, const std::string& filter) override;
    /// Offers it for download.
    void presentFile(const std::string& name, const std::string& content) override;
    void setBusy(bool busy) override;
    void refresh() override;

private:
    struct Window {
        int id;
        ui::Form* form;
        bool drawn = false;
        std::vector<ui::KeyHint> hints = {}; ///< as the page shows them
        std::string subject = {};            ///< as the page knows it
    };
    struct Question {
        int id;
        std::string text;
        int flags;
        std::string title;
        /// What the page may let the user choose, where it asks for a file.
        std::optional<std::vector<std::string>> fileEndings = std::nullopt;
    };
    /// Shows a question as long as it lives.
    class Asking;

    ui::Event nextEvent();
    /// Shows how things are and waits for the page.
    PageMessage wait();
    /// Waits for the page, which shows how things are.
    PageMessage receive();
    /// Sends what changed; with `acknowledge`, also which messages have been handled.
    void draw(bool acknowledge);
    void drawWindows(nlohmann::json& message, bool complete);
    void drawOffers(nlohmann::json& message, bool complete);

    PageChannel& page_;
    ui::DisplayErrors errors_{*this};
    ui::Desktop desktop_{errors_, *this};
    std::vector<Window> windows_; ///< the topmost last
    std::vector<int> closed_;     ///< windows that the page does not know to be closed
    std::optional<Question> question_;
    bool questionDrawn_ = true;
    int lastOffer_ = 0; ///< number of the last file that the page has been told of
    int lastId_ = 0;
    std::string language_ = "de";
    bool languageDrawn_ = true;
    bool busy_ = false;
    bool busyDrawn_ = false;
    std::uint64_t handled_ = 0;         ///< number of the last message taken
    std::uint64_t acknowledged_ = 0;    ///< number of the last message the page knows to be handled
    std::optional<PageMessage> redraw_; ///< a page wants everything
};

} // namespace tellurix::browser
