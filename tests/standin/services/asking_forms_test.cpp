// The dialogs that ask before Esc or the close box lose what was entered in them.
#include "standin/home/F_NewContract.h"
#include "standin/services/mail/F_Mail.h"
#include "standin/services/models/F_Models.h"
#include "standin/services/pickers/multiple/F_MultiSelection.h"
#include "standin/services/selection/F_Selection.h"
#include "standin/services/selection/codes/F_LookupGrid.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Answer;
using ui::Key;

struct AskingForms : ServicesTest {};

TEST_F(AskingForms, AskOnceBeforeWhatWasEnteredIsLost) {
    const standin::SelectionWords words{services.localizer(), session, base::Locale::german()};
    const standin::SelectionExpression spruce = standin::SelectionExpression::parse("83 IN ('FI') ;");
    using Ready = std::unique_ptr<ui::Form>;
    const std::function<Ready()> mail = [this] {
        return std::make_unique<standin::F_Mail>(
            display, standin::F_Mail::Draft{{{.address = "a@b.at", .note = ""}}, "Information", "Sehr"},
            standin::F_Mail::Words{.title = "Mail", .kind = "", .count = "{}/{}"});
    };
    const std::function<Ready()> selection = [&] {
        return std::make_unique<standin::F_Selection>(display, words, standin::F_Selection::Choices{},
                                                      spruce);
    };
    const std::function<Ready()> codes = [&] {
        return std::make_unique<standin::F_LookupGrid>(
            display, "Holzarten", words.choiceCaptions(),
            std::vector<standin::Choice>{{.code = "FI", .name = "Fichte"}}, std::vector<std::string>{}, true);
    };
    const std::function<Ready()> several = [this] {
        return std::make_unique<standin::F_MultiSelection>(
            display, "Waldhelfer", standin::F_MultiSelection::List{{{.caption = "Name"}}, {{7, {"Huber"}}}},
            standin::F_MultiSelection::Words{"{}/{}/{}", "{}", "{}"}, std::vector<std::int64_t>{});
    };
    const std::function<Ready()> models = [this] {
        return std::make_unique<standin::F_Models>(
            display, standin::ModelStore{*session.connection, "ABSCHLAG"}, std::vector<std::string>{},
            host::CalculationLines{}, [](std::string_view) { return ""; }, "");
    };
    const auto marks = [](User& user) {
        user.focus("grdList");
        user.key(Key::space);
    };
    struct Case {
        const char* rule;
        const std::function<Ready()>& make;
        std::function<void(User&)> act;
        bool asks;
    };
    const Case cases[] = {
        {"a mail as it was made", mail, [](User&) {}, false},
        {"another subject", mail, [](User& user) { user.type("txtSubject", "Neu"); }, true},
        {"another text", mail, [](User& user) { user.type("txtText", "Neu"); }, true},
        {"somebody does not get it", mail, [](User& user) { user.doubleClick("grdRecipients"); }, true},
        {"a selection as it was", selection, [](User&) {}, false},
        {"another condition", selection, [](User& user) { user.click("btnAdd"); }, true},
        {"one that is taken away again", selection,
         [](User& user) {
             user.click("btnAdd");
             user.click("btnRemove");
         },
         false},
        {"a marked code", codes, marks, true},
        {"a marked row", several, marks, true},
        {"a mark that is taken away again", several,
         [&](User& user) {
             marks(user);
             marks(user);
         },
         false},
        {"what was searched for is nothing to lose", several,
         [](User& user) { user.type("txtSearch", "Hub"); }, false},
        {"the name of a model that is not saved", models, [](User& user) { user.type("txtName", "A"); },
         true},
    };
    const auto lost = "noch nicht gespeichert. Verwerfen?";
    for (const Case& c : cases) {
        for (const bool byKey : {true, false}) {
            SCOPED_TRACE(std::string{c.rule} + (byKey ? ", Esc" : ", close box"));
            const Ready form = c.make();
            if (c.asks) {
                display.onMessage(lost, Answer::no);
                display.onMessage(lost, Answer::yes);
            }
            display.onWindow(form->name(), [&](User& user) {
                c.act(user);
                for (int i = 0; i < (c.asks ? 2 : 1); ++i) {
                    EXPECT_TRUE(form->loaded());
                    byKey ? user.key(Key::escape) : user.close();
                }
            });
            display.showModal(*form);
        }
        SCOPED_TRACE(std::string{c.rule} + ", by its button");
        const Ready form = c.make();
        display.onWindow(form->name(), [&](User& user) {
            c.act(user);
            user.click(form->find("btnClose") != nullptr ? "btnClose" : "btnCancel");
        });
        display.showModal(*form);
    }
}

} // namespace
} // namespace tellurix::tests
