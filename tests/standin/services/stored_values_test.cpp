#include "module/base/StatementText.h"
#include "module/base/date_format.h"
#include "module/ui/Form.h"
#include "tests/standin/services/ServicesTest.h"

#include <algorithm>
#include <functional>

namespace tellurix::tests {
namespace {

ui::Grid::Column wide(int width) {
    return {.caption = "Spalte", .width = width};
}

ui::Grid::Column hidden(int width) {
    return {.caption = "Spalte", .width = width, .visible = false};
}

class StoredValues : public ServicesTest {
protected:
    struct GridForm final : ui::Form {
        explicit GridForm(int columns) : Form("GridForm") {
            grid.setColumns(std::vector<ui::Grid::Column>(static_cast<std::size_t>(columns)));
        }
        ui::Grid grid{*this, "grid"};
    };

    std::string widths(int columns, const std::string& key = "F_TEST") {
        GridForm form{columns};
        host.gridLayouts.restore(session, form.grid, key);
        std::string text;
        for (const ui::Grid::Column& column : form.grid.columns())
            text += std::to_string(column.width) + (column.sized ? "=" : "") +
                    (column.order == ui::Grid::Order::descending ? ">" : "") + (column.visible ? " " : "h ");
        return text;
    }
};

TEST_F(StoredValues, GridLayoutsAreKeptByUserAndKey) {
    GridForm form{3};
    const auto save = [&](std::vector<ui::Grid::Column> columns) {
        form.grid.setColumns(std::move(columns));
        host.gridLayouts.save(session, form.grid, "F_TEST");
    };
    EXPECT_EQ(widths(3), "10 10 10 ") << "nothing saved yet";
    save({wide(12), hidden(30), wide(7)});
    EXPECT_EQ(widths(3), "12 30h 7 ");
    save({wide(13), wide(31), wide(8)});
    EXPECT_EQ(widths(3), "13 31 8 ") << "saving again replaces";
    form.grid.sizeColumn(1, 20);
    host.gridLayouts.save(session, form.grid, "F_TEST");
    EXPECT_EQ(widths(3), "13 20= 8 ") << "what the user sized stays sized";
    form.grid.markOrder(1, ui::Grid::Order::descending);
    host.gridLayouts.save(session, form.grid, "F_TEST");
    EXPECT_EQ(widths(3), "13 20=> 8 ") << "and the rows stay in their order";
    save({wide(13), wide(31), wide(8)});
    EXPECT_EQ(widths(3, "F_OTHER"), "10 10 10 ");
    EXPECT_EQ(widths(2), "10 10 ") << "a layout of more columns is from another version";
    EXPECT_EQ(widths(4), "10 10 10 10 ") << "as is one of fewer";
    session.user = "d'Artagnan";
    EXPECT_EQ(widths(3), "10 10 10 ") << "another user's own";
    save({wide(5), wide(5), wide(5)});
    EXPECT_EQ(widths(3), "5 5 5 ");
}

TEST_F(StoredValues, EveryDialogKeepsItsGridsAndTellsTheirKeys) {
    using ui::Key;
    const auto lists = [this](const char* query) {
        return [this, query] { host.listPicker.choose(session, query, "Auswahl", ""); };
    };
    struct Case {
        const char* form;
        const char* grid;
        std::function<void()> open;
        ui::Grid::Row key; ///< one of those that F1 shows
    };
    const Case cases[] = {
        {"F_ListPicker",
         "grdList",
         lists("SELECT EINHEIT, EINHEIT_ID FROM WARENEINHEIT"),
         {"Enter in „Filter“", "mit dem Treffer weiter"}},
        {"F_PersonPicker",
         "grdPersons",
         [this] {
             auto confirmed = host::Boolean16::False;
             host.personalPicker.choose(session, "2PVK", 0, 0, 0, confirmed);
         },
         {"↑, ↓, Bild auf, Bild ab", "in den Treffern gehen, während in „Suche“ getippt wird"}},
        {"F_MultiSelection",
         "grdList",
         [this] {
             host.multiSelection.choose(session, "A", "SELECT ID_PERSONAL, NAME, ORT FROM PERSONAL", {});
         },
         {"Buchstaben", "suchen"}},
        {"F_LookupGrid",
         "grdList",
         [this] {
             host.lookupGridDialog.choose(session, host.settings.text(session, "HOLZART_GRID"), "Ha", "");
         },
         {"Leertaste", "Zeile wählen, noch einmal abwählen"}},
        {"F_Mail",
         "grdRecipients",
         [this] {
             host.mail.signOn(session);
             host.mail.compose();
             host.mail.addRecipient("a@example.com");
             host.mail.addRecipient("b@example.com");
             host.mail.send();
         },
         {"Enter", "wie ein Doppelklick auf die Zeile"}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.form);
        std::vector<ui::Grid::Row> order;
        display.onWindow(c.form, [&](User& user) {
            user.clickHeading(c.grid, 1);
            user.clickHeading(c.grid, 1);
            user.focus(c.grid);
            user.key({.key = Key::right, .shift = true, .ctrl = true});
            order = user.grid(c.grid).rows();
            EXPECT_GT(order.size(), 1u);
            display.onWindow("F_Tasten", [&](User& reader) {
                const auto& keys = reader.grid("grdTasten").rows();
                EXPECT_EQ(std::ranges::count(keys, c.key), 1);
                reader.key(Key::escape);
            });
            user.key(Key::f1);
            user.key(Key::escape);
        });
        c.open();
        display.onWindow(c.form, [&](User& user) {
            const ui::Grid& grid = user.grid(c.grid);
            EXPECT_EQ(grid.rows(), order);
            EXPECT_EQ(grid.columns()[1].order, ui::Grid::Order::descending);
            EXPECT_TRUE(std::ranges::any_of(grid.columns(), &ui::Grid::Column::sized));
            user.key(Key::escape);
        });
        c.open();
    }
    display.onWindow("F_ListPicker", [](User& user) {
        EXPECT_FALSE(user.grid("grdList").columns()[0].sized) << "another list, though of as many columns";
        user.key(Key::escape);
    });
    lists("SELECT SHORT, LONG FROM WVO_T_BELIEFERUNG")();
    display.onWindow("F_Calendar", [this](User& user) {
        display.onWindow("F_Tasten", [](User& reader) {
            const auto& keys = reader.grid("grdTasten").rows();
            const auto ends = std::ranges::find(keys, "Pos1, Ende", [](const auto& row) { return row[0]; });
            ASSERT_NE(ends, keys.end());
            EXPECT_EQ(ends->back(), "zum ersten, zum letzten Tag des Monats") << "and nothing else";
            reader.key(Key::escape);
        });
        user.key(Key::f1);
        user.key(Key::escape);
    });
    lists("DATUM")();
}

TEST_F(StoredValues, SettingsAndSingleValuesAreRead) {
    EXPECT_EQ(host.settings.text(session, "PATHOFWVOWEBVERTRAEGE"), "vertragsdokumente");
    EXPECT_EQ(host.settings.text(session, "d'oh"), "") << "a setting that does not exist";
    EXPECT_EQ(host.columnWidth.of(session, "VERTRAEGE", "KOPF1"), 255);
    EXPECT_EQ(host.columnWidth.of(session, "VERTRAEGE", "ZUSATZTEXT"), 0) << "no limit";
    EXPECT_EQ(host.columnWidth.of(session, "VERTRAEGE", "NUMM1"), 0) << "no text";
    EXPECT_FALSE(services.mainWindow()->IsArtikel());
    session.connection->execute("UPDATE WORKBENCH_SETTING SET VALUE = '1' WHERE NAME = 'ARTIKEL'");
    EXPECT_TRUE(services.mainWindow()->IsArtikel());

    const auto name = [&](const char* column, const char* id) {
        return host.dataAccess.readValue(session, column, "VERTRAEGE", std::string{" ID_VERTRAG = "} + id);
    };
    EXPECT_EQ(name("VERTRAG_NAME", "13"), "A6-2025-001 Stockkauf Gußwerk");
    EXPECT_EQ(name("KOPF3", "7"), "") << "NULL";
    EXPECT_EQ(name("VERTRAG_NAME", "999"), "") << "no row";
    EXPECT_THROW(name("VERTRAG_NAME, KOPF1", "1"), base::StatementError);
}

TEST_F(StoredValues, AColumnIsSetForTheRowsOfACondition) {
    const auto set = [&](const std::string& written) {
        host.columnUpdate.set(session, "VERTRAEGE", "KOPF4", written, "ID_VERTRAG = 1");
        return value("SELECT KOPF4 FROM VERTRAEGE WHERE ID_VERTRAG = 1");
    };
    EXPECT_EQ(set("nach O'Neill"), "nach O'Neill");
    EXPECT_EQ(set(""), "NULL") << "an empty value";
    set("nach O'Neill");
    EXPECT_EQ(value("SELECT COUNT(*) FROM VERTRAEGE WHERE KOPF4 = 'nach O''Neill'"), "1")
        << "in one row only";
    EXPECT_THROW(host.columnUpdate.set(session, "VERTRAEGE", "KOPF4 = 'x', KOPF5", "y", "ID_VERTRAG = 1"),
                 base::StatementError);
}

TEST_F(StoredValues, DatesBecomeTheLiteralThatEveryLoginReadsAlike) {
    EXPECT_EQ(host.dateConverter.toSql("05.06.2025", session), "20250605");
    EXPECT_EQ(host.dateConverter.toSql("5.6.25", session), "20250605");
    EXPECT_THROW(host.dateConverter.toSql("31.02.2025", session), std::invalid_argument);
    EXPECT_THROW(host.dateConverter.toSql("", session), std::invalid_argument);
}

TEST_F(StoredValues, NotificationsAreKeptWithTheirTime) {
    std::string heard;
    services.moduleService().onNotification = [&](const standin::Notification& n) { heard += n.code + " "; };
    std::string out1 = "one";
    std::string out2;
    host.moduleService.request(session, "2PVK", "R", out1, out2);
    host.moduleService.request(session, "2VABR3", "A3", out1, out2);
    EXPECT_EQ(heard, "2PVK 2VABR3 ");
    EXPECT_EQ(out1, "one");
    const auto& last = services.moduleService().notifications().back();
    EXPECT_EQ(last.type, "A3");
    EXPECT_EQ(base::formatDate(last.time, "dd.mm.yyyy hh:mm", base::Locale::german()), "09.03.2026 08:00");
    for (std::size_t i = 0; i < standin::ModuleService::kept; ++i)
        host.moduleService.request(session, "1VVM", "R", out1, out2);
    EXPECT_EQ(services.moduleService().notifications().size(), standin::ModuleService::kept);
    EXPECT_EQ(services.moduleService().notifications().front().code, "1VVM") << "the oldest go";
}

} // namespace
} // namespace tellurix::tests
