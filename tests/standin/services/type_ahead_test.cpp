#include "module/base/text.h"
#include "module/ui/Form.h"
#include "module/ui/controls/TextBox.h"
#include "tests/standin/services/ServicesTest.h"

namespace tellurix::tests {
namespace {

using ui::Key;

/// A box that is bound on every focus, as the boxes of the quick selection are.
class BoxForm final : public ui::Form {
public:
    BoxForm(host::HostServices& host, const host::TlxVar& session, const std::string& column,
            const std::string& table)
        : Form("BoxForm") {
        txtCode.onChange = [this] { ++changes; };
        txtCode.onFocus = [&host, &session, column, table, this] {
            host.typeAhead.bind(session, txtCode,
                                "SELECT ID," + column + " FROM " + table + " WHERE ISNULL(DISABLE,0)=0",
                                column);
        };
        setLayout(ui::column({txtCode, txtOther}));
    }

    int changes = 0;
    ui::TextBox txtCode{*this, "txtCode"};
    ui::TextBox txtOther{*this, "txtOther"};
};

class TypeAhead : public ServicesTest {
protected:
    /// What the box shows after the user worked in it, the selected part in brackets.
    std::string shown(const ScriptedDisplay::Script& script, const std::string& column = "HA",
                      const std::string& table = "HOLZART") {
        BoxForm form{host, session, column, table};
        display.onWindow("BoxForm", [&](User& user) {
            script(user);
            user.close();
        });
        display.showModal(form);
        changes = form.changes;
        std::string text = form.txtCode.text();
        if (form.focused() == &form.txtCode && form.txtCode.selectionLength() > 0) {
            text.insert(static_cast<std::size_t>(form.txtCode.selectionStart()) +
                            static_cast<std::size_t>(form.txtCode.selectionLength()),
                        "]");
            text.insert(static_cast<std::size_t>(form.txtCode.selectionStart()), "[");
        }
        return text;
    }

    int changes = 0;
};

TEST_F(TypeAhead, CompletesBehindTheLastComma) {
    struct Case {
        const char* rule;
        const char* typed;
        const char* shown;
    };
    const Case cases[] = {
        {"the first letter finds the code", "K", "K[I]"},
        {"in its own capitals", "k", "K[I]"},
        {"typing the completed letters ends where it should", "ki", "KI"},
        {"another letter replaces the completion", "Kx", "Kx"},
        {"a comma takes the completed code", "k,l", "KI,L[A]"},
        {"and what was typed when nothing was completed", "xf,", "xf,"},
        {"the next entry", "FI,k", "FI,K[I]"},
        {"behind a blank", "FI, t", "FI, T[A]"},
        {"entries before stay as they are", "xx ,fi ,l", "xx ,FI ,L[A]"},
        {"a disabled code is never offered", "ES", "ES"},
        {"nor the first letter of one that is disabled", "E", "E[I]"},
        {"what no code starts with stays", "q,ß'%", "q,ß'%"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(shown([&](User& user) { user.type("txtCode", c.typed); }), c.shown) << c.rule;
        EXPECT_EQ(changes, static_cast<int>(base::decodeUtf8(c.typed).size()))
            << c.rule << ": the box's own handler";
    }
}

TEST_F(TypeAhead, NeverStandsInTheWay) {
    const auto keys = [](const std::vector<Key>& pressed) {
        return [pressed](User& user) {
            for (const Key key : pressed)
                user.key(key);
        };
    };
    struct Case {
        const char* rule;
        const char* typed;
        ScriptedDisplay::Script then;
        const char* shown;
    };
    const Case cases[] = {
        {"Backspace takes the completion away and it does not come back", "K", keys({Key::backspace}), "K"},
        {"a second one takes the letter", "K", keys({Key::backspace, Key::backspace}), ""},
        {"Del takes the completion away", "K", keys({Key::del}), "K"},
        {"shortening completes nothing", "FI,KIX", keys({Key::backspace, Key::backspace}), "FI,K"},
        {"Tab takes the completed code", "FI,k", keys({Key::tab}), "FI,KI"},
        {"typing over a longer text completes again", "FI,KI", [](User& user) { user.type("txtCode", "l"); },
         "L[A]"},
        {"binding again on the next focus completes once", "k",
         [](User& user) {
             user.focus("txtOther");
             user.focus("txtCode");
             user.type("txtCode", "t");
         },
         "T[A]"},
        {"nothing is put in before other text", "FI,KI",
         [](User& user) {
             user.control<ui::TextBox>("txtCode").select(0, 0);
             user.type("t");
         },
         "tFI,KI"},
        {"a pasted list stays as it is", "", [](User& user) { user.paste("txtCode", "TA,FI"); }, "TA,FI"},
    };
    for (const Case& c : cases) {
        const std::string text = shown([&](User& user) {
            user.type("txtCode", c.typed);
            c.then(user);
        });
        EXPECT_EQ(text, c.shown) << c.rule;
    }
}

TEST_F(TypeAhead, ACodeThatIsOneIsNotMadeIntoAnother) {
    const std::pair<const char*, const char*> cases[] = {{"B", "B"}, {"BR", "BR"}, {"b", "B"}, {"G", "G"}};
    for (const auto& [typed, text] : cases)
        EXPECT_EQ(shown([typed = typed](User& user) { user.type("txtCode", typed); }, "HS", "HOLZSORTE"),
                  text);
}

} // namespace
} // namespace tellurix::tests
