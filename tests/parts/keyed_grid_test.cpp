#include "module/parts/grids/KeyedGrid.h"
#include "module/ui/Form.h"
#include "tests/support/ContractTest.h"

namespace tellurix::tests {
namespace {

/// The reports of some helpers, as a screen of the centre would list them.
class Reports : public ContractTest {
protected:
    struct List final : ui::Form {
        List() : Form("List") { setLayout(ui::column({grid})); }
        ui::Grid grid{*this, "grid"};
    };

    Reports() {
        host.database.execute(
            "CREATE TABLE MELDUNG (ID int, NAME nvarchar(20) NULL, ZUEGE decimal(9,2) NULL, "
            "ZUGESAGT decimal(9,2) NULL, AM datetime NULL)");
        host.database.execute("INSERT INTO MELDUNG VALUES (7,'Huber',12.5,3,'05.06.2025')");
        host.database.execute("INSERT INTO MELDUNG VALUES (3,'Auer',NULL,1,NULL)");
        host.database.execute("INSERT INTO MELDUNG VALUES (5,NULL,0.25,NULL,NULL)");
        reports.setColumns({{.width = 3},
                            {.caption = "Name", .field = "NAME"},
                            {.caption = "Züge", .field = "ZUEGE", .mask = "0", .editable = true},
                            {.caption = "Zugesagt", .field = "ZUGESAGT", .mask = "0.00", .editable = true},
                            {.caption = "Ab",
                             .shown = [](base::Fields& row) { return row.text("NAME").substr(0, 1) + "."; }},
                            {.field = "AM", .hidden = true}});
    }

    void load(const std::string& order, std::size_t limit = parts::KeyedRows::unlimited) {
        reports.show(parts::KeyedRows::read(
                         host.database, "SELECT ID,NAME,ZUEGE,ZUGESAGT,AM FROM MELDUNG" + order, "ID", limit)
                         .rows);
    }
    /// A row of the grid, its cells separated by " | ".
    std::string cells(int row) {
        std::string text;
        for (const std::string& cell : list.grid.rows().at(static_cast<std::size_t>(row)))
            text += (text.empty() ? "" : " | ") + (cell.empty() ? "-" : cell);
        return text;
    }

    List list;
    parts::KeyedGrid reports{list.grid, base::Locale::german()};
};

TEST_F(Reports, AreShownFieldByFieldAndKeepTheirCurrentRow) {
    load(" ORDER BY ID DESC");
    EXPECT_EQ(cells(0), "- | Huber | 13 | 3,00 | H. | 05.06.2025");
    EXPECT_EQ(cells(1), "- | - | 0 | - | . | -");
    EXPECT_EQ(cells(2), "- | Auer | - | 1,00 | A. | -");
    EXPECT_FALSE(list.grid.columns()[5].visible);
    EXPECT_TRUE(reports.editable(2));
    EXPECT_FALSE(reports.editable(1));
    EXPECT_EQ(reports.currentKey(), 7) << "the first row is current at first";
    EXPECT_TRUE(reports.select(3));
    load(" ORDER BY ID");
    EXPECT_EQ(list.grid.currentRow(), 0) << "the current row has moved";
    EXPECT_EQ(reports.currentKey(), 3);
    load(" WHERE ID > 3 ORDER BY ID");
    EXPECT_EQ(reports.currentKey(), 5) << "it is gone: the one in its place";
    EXPECT_FALSE(reports.select(3));
    EXPECT_EQ(reports.currentKey(), 5);
    load(" WHERE ID > 9");
    EXPECT_EQ(reports.currentKey(), std::nullopt);
    const auto some = parts::KeyedRows::read(host.database, "SELECT ID FROM MELDUNG ORDER BY ID", "ID", 2);
    EXPECT_TRUE(some.rows.size() == 2 && some.more);
    EXPECT_FALSE(parts::KeyedRows::read(host.database, "SELECT ID FROM MELDUNG", "ID", 3).more);
}

TEST_F(Reports, AreOrderedByTheColumnWhoseHeadingIsClicked) {
    auto columns = reports.columns();
    for (parts::KeyedGrid::Column& column : columns)
        column.sorts = !column.editable || column.field == "ZUEGE";
    reports.setColumns(columns);
    load(" ORDER BY ID");
    EXPECT_TRUE(reports.select(7));
    const auto clicked = [&](int column) {
        list.grid.onHeadingClick(column);
        std::string keys;
        for (int row = 0; row < reports.rowCount(); ++row)
            keys += std::to_string(reports.keyOf(row));
        return keys;
    };
    EXPECT_EQ(clicked(1), "537") << "no name, Auer, Huber";
    EXPECT_EQ(clicked(1), "735") << "the other way";
    EXPECT_EQ(list.grid.columns()[1].order, ui::Grid::Order::descending);
    EXPECT_EQ(clicked(2), "357") << "by the numbers, of which the cells show 0 and 13";
    EXPECT_EQ(list.grid.columns()[1].order, ui::Grid::Order::none);
    EXPECT_EQ(clicked(3), "357") << "this column does not sort";
    EXPECT_EQ(clicked(4), "537") << "by what is shown";
    EXPECT_EQ(reports.currentKey(), 7) << "the current row has moved with the others";
    load(" ORDER BY ID");
    EXPECT_EQ(reports.keyOf(0), 5) << "rows that are read again are ordered alike";
    reports.setValue(0, "ZUEGE", base::Decimal{9});
    EXPECT_EQ(cells(0).substr(0, 9), "- | - | 9") << "a row's number is that of the grid";
    reports.copyField("ZUEGE", "ZUGESAGT");
    const parts::KeyedGrid::TextColumn one[] = {{"Name", "NAME"}};
    EXPECT_EQ(reports.text(one), "Name\r\n\r\nAuer\r\nHuber") << "as the grid shows them";
    reports.setValue(2, "NAME", base::Null{});
    clicked(2);
    EXPECT_EQ(clicked(2), "753");
    EXPECT_EQ(clicked(1), "573") << "what is equal stands as it was read";
}

TEST_F(Reports, KeepTheValuesThatTheCellsRound) {
    load(" ORDER BY ID DESC");
    EXPECT_EQ(reports.sum("ZUEGE"), base::Decimal(1275, 2)) << "not 13 + 0";
    reports.copyField("ZUEGE", "ZUGESAGT");
    EXPECT_EQ(cells(0), "- | Huber | 13 | 12,50 | H. | 05.06.2025");
    EXPECT_EQ(cells(2), "- | Auer | - | - | A. | -") << "nothing announced, nothing confirmed";
    list.grid.setCell(1, 0, ">>");
    reports.setValue(1, "ZUGESAGT", base::Decimal{4});
    EXPECT_EQ(cells(1), ">> | - | 0 | 4,00 | . | -") << "what the screen writes by itself stays";
    EXPECT_EQ(reports.sum("ZUGESAGT"), base::Decimal(1650, 2));
}

TEST_F(Reports, KnowWhichValuesWereSet) {
    load(" ORDER BY ID DESC");
    parts::KeyedRow& huber = reports.row(0);
    EXPECT_FALSE(huber.touched());
    reports.setValue(0, "ZUGESAGT", huber.field("ZUGESAGT"));
    EXPECT_TRUE(huber.touched("ZUGESAGT")) << "the same value again";
    EXPECT_FALSE(huber.touched("ZUEGE"));
    huber.settle();
    EXPECT_FALSE(huber.touched());
    reports.setValue(0, "ZUGESAGT", huber.field("ZUEGE"));
    huber.settle();
    reports.copyField("ZUEGE", "ZUGESAGT");
    EXPECT_FALSE(huber.touched()) << "it has that value already";
    EXPECT_TRUE(reports.row(1).touched("ZUGESAGT"));
}

TEST_F(Reports, CellsSayWhoHasChangedThemAndTheStatusLineHowManyRowsAreNotSaved) {
    enum Column { loads = 2, confirmed };
    const auto who = [&](int row, int column) { return list.grid.changedBy({row, column}); };
    using ui::ChangedBy;
    load(" ORDER BY ID DESC");
    reports.setValue(0, "ZUGESAGT", base::Decimal{4});
    EXPECT_EQ(who(0, confirmed), ChangedBy::user);
    EXPECT_EQ(who(0, loads), ChangedBy::nobody);
    EXPECT_EQ(list.status().text(), "1 Zeile geändert, noch nicht gespeichert");
    reports.setValue(1, "ZUGESAGT", base::Decimal{4});
    list.status().say("Kopiert");
    EXPECT_EQ(list.status().text(), "Kopiert") << "the newest wins";
    list.status().goOn();
    EXPECT_EQ(list.status().text(), "2 Zeilen geändert, noch nicht gespeichert");
    reports.row(1).refresh("ZUEGE", base::Decimal{9});
    reports.row(0).settle();
    reports.redraw();
    EXPECT_EQ(who(1, loads), ChangedBy::colleague);
    EXPECT_EQ(who(1, confirmed), ChangedBy::user);
    EXPECT_EQ(who(0, confirmed), ChangedBy::nobody) << "it is written";
    EXPECT_EQ(list.status().text(), "1 Zeile geändert, noch nicht gespeichert");
    reports.showOnly([](parts::KeyedRow& row) { return row.key() == 5; });
    EXPECT_EQ(who(0, confirmed), ChangedBy::user) << "a mark stays with its row";
    load(" ORDER BY ID");
    EXPECT_TRUE(list.grid.changedCells().empty());
    EXPECT_EQ(list.status().text(), "");
    reports.markFromOthers(5, "ZUEGE");
    EXPECT_EQ(who(0, loads), ChangedBy::colleague);
    reports.markFromOthers(99, "ZUEGE");

    reports.openCells(true);
    EXPECT_TRUE(list.grid.columns()[loads].open && list.grid.columns()[confirmed].open);
    EXPECT_FALSE(list.grid.columns()[1].open);
    reports.setColumns(reports.columns());
    EXPECT_TRUE(list.grid.anyOpen()) << "the cells stay open when the columns change";
    reports.openCells(false);
    EXPECT_FALSE(list.grid.anyOpen());
}

TEST_F(Reports, SomeAreHiddenFromTheEyeAlone) {
    load(" ORDER BY ID");
    reports.select(7);
    reports.showOnly([](parts::KeyedRow& row) { return !row.text("NAME").empty(); });
    EXPECT_EQ(reports.rowCount(), 2);
    EXPECT_EQ(cells(1), "- | Huber | 13 | 3,00 | H. | 05.06.2025");
    EXPECT_EQ(reports.currentKey(), 7) << "still the current one";
    EXPECT_EQ(reports.find(5), std::nullopt);
    reports.setValue(1, "ZUEGE", base::Decimal{2});
    EXPECT_EQ(cells(1), "- | Huber | 2 | 3,00 | H. | 05.06.2025");
    EXPECT_EQ(reports.sum("ZUEGE"), base::Decimal(225, 2)) << "of all";
    reports.copyField("ZUEGE", "ZUGESAGT");
    reports.showOnly({});
    EXPECT_EQ(cells(1), "- | - | 0 | 0,25 | . | -") << "copied while it was hidden";
    EXPECT_EQ(cells(2), "- | Huber | 2 | 2,00 | H. | 05.06.2025");
    reports.showOnly([](parts::KeyedRow&) { return false; });
    EXPECT_EQ(reports.currentKey(), std::nullopt);
    EXPECT_FALSE(reports.empty());
}

TEST_F(Reports, AreATextForASpreadsheet) {
    load(" ORDER BY ID");
    const parts::KeyedGrid::TextColumn columns[] = {{"Wer", "NAME"}, {"Züge", "ZUEGE"}, {"Schlüssel", "ID"}};
    EXPECT_EQ(reports.text(columns), "Wer\tZüge\tSchlüssel\r\nAuer\t\t3\r\n\t0\t5\r\nHuber\t13\t7");
    reports.setValue(1, "NAME", std::string{"von\tder\r\nAu\n"});
    EXPECT_NE(reports.text(columns).find("\r\nvon der Au \t0\t5\r\n"), std::string::npos) << "still one cell";
}

TEST_F(Reports, RowsComeAndChangePlaces) {
    load(" WHERE ID > 3 ORDER BY ID");
    reports.add(9);
    EXPECT_EQ(reports.currentKey(), 9);
    EXPECT_EQ(cells(2), "- | - | - | - | - | -");
    reports.swap(0, 1);
    EXPECT_EQ(reports.keyOf(0), 7);
    EXPECT_EQ(cells(0), "- | Huber | 13 | 3,00 | H. | 05.06.2025");
    const auto row = host.database.open("SELECT * FROM MELDUNG WHERE ID = 3");
    reports.replace(2, parts::KeyedRow{*row, "ID"});
    EXPECT_EQ(reports.keyOf(2), 3);
    EXPECT_EQ(cells(2), "- | Auer | - | 1,00 | A. | -");
}

} // namespace
} // namespace tellurix::tests
