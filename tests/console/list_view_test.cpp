#include "console/list_view.h"

#include "controls/recording_observer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

ListViewDefinition twoColumns()
{
    ListViewDefinition definition;
    definition.name = "files";
    definition.columns = {{"", " ", 25}, {"keyName", "Name", 200}};
    return definition;
}

std::vector<std::string> shownTexts(ListView& list)
{
    std::vector<std::string> texts;
    for (int place = 1; place <= list.itemCount(); ++place)
        texts.emplace_back(list.shown(place).text());
    return texts;
}

using Texts = std::vector<std::string>;

} // namespace

TEST(ListView, StartsWithTheColumnsOfItsDefinitionAndNoRows)
{
    const auto definition = twoColumns();
    ListView list(definition);

    ASSERT_EQ(2, list.columnCount());
    EXPECT_EQ(" ", list.column(1).text);
    EXPECT_EQ(25, list.column(1).width);
    EXPECT_EQ("Name", list.column("keyName").text);
    EXPECT_EQ(0, list.itemCount());
}

TEST(ListView, AddressesAColumnWithoutAKeyByPositionAlone)
{
    const auto definition = twoColumns();
    ListView list(definition);

    list.column(1).text = "Current";

    EXPECT_EQ("Current", list.columns()[0].text);
    EXPECT_EQ(35601, errorNumberOf([&] { list.column(""); }));
}

TEST(ListView, GivesANewColumnDefaultValues)
{
    const auto definition = twoColumns();
    ListView list(definition);

    list.addColumn();

    ASSERT_EQ(3, list.columnCount());
    EXPECT_EQ("", list.column(3).key);
    EXPECT_EQ("", list.column(3).text);
    EXPECT_EQ(automaticWidth, list.column(3).width);
}

TEST(ListView, RaisesForWhatIsNotThere)
{
    const auto definition = twoColumns();
    ListView list(definition);
    ListItem row = list.addItem(1, "row");

    EXPECT_EQ(9, errorNumberOf([&] { list.column(0); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.column(3); }));
    EXPECT_EQ(35601, errorNumberOf([&] { list.column("keySize"); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.item(0); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.item(2); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.shown(2); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.addItem(0, ""); }));
    EXPECT_EQ(9, errorNumberOf([&] { list.addItem(3, ""); }));
    EXPECT_EQ(9, errorNumberOf([&] { row.addSubItem(0, ""); }));
    EXPECT_EQ(9, errorNumberOf([&] { row.addSubItem(2, ""); }));
    EXPECT_EQ(1, list.itemCount());
    EXPECT_EQ(0, row.subItemCount());
}

TEST(ListView, KeepsTheBytesOfItsRows)
{
    const auto definition = twoColumns();
    ListView list(definition);
    const std::string bytes("caf\xE9\0\x80", 6);

    ListItem row = list.addItem(1, bytes);
    row.addSubItem(1, "");
    row.addSubItem(2, bytes);

    EXPECT_EQ(bytes, list.item(1).text());
    EXPECT_EQ("", list.item(1).subItem(1));
    EXPECT_EQ(bytes, list.item(1).subItem(2));
}

TEST(ListView, GivesTheEmptyTextForASubItemThatARowLacks)
{
    const auto definition = twoColumns();
    ListView list(definition);
    ListItem row = list.addItem(1, "row");
    row.addSubItem(1, "one");

    EXPECT_EQ("", row.subItem(0));
    EXPECT_EQ("", row.subItem(2));
    EXPECT_EQ(1, row.subItemCount());
}

TEST(ListView, MovesOnWhatStandsWhereARowOrSubItemIsPutIn)
{
    const auto definition = twoColumns();
    ListView list(definition);
    list.addItem(1, "first").addSubItem(1, "a");
    list.addItem(2, "last").addSubItem(1, "c");
    ListItem middle = list.addItem(2, "middle");
    middle.addSubItem(1, "z");
    middle.addSubItem(1, "y");

    EXPECT_EQ((Texts{"first", "middle", "last"}), shownTexts(list));
    EXPECT_EQ("y", list.item(2).subItem(1));
    EXPECT_EQ("z", list.item(2).subItem(2));
    EXPECT_EQ("c", list.item(3).subItem(1));
}

TEST(ListView, TakesSubItemsForARowThatIsNotTheLast)
{
    const auto definition = twoColumns();
    ListView list(definition);
    list.addItem(1, "first").addSubItem(1, "a");
    list.addItem(2, "second").addSubItem(1, "x");

    list.item(1).addSubItem(2, "b");
    list.item(2).addSubItem(2, "y");
    list.item(1).addSubItem(3, "c");

    const auto cells = [&](int row) {
        Texts texts;
        for (int index = 1; index <= list.item(row).subItemCount(); ++index)
            texts.emplace_back(list.item(row).subItem(index));
        return texts;
    };
    EXPECT_EQ((Texts{"a", "b", "c"}), cells(1));
    EXPECT_EQ((Texts{"x", "y"}), cells(2));
}

TEST(ListView, CarriesANoteThatNoColumnShows)
{
    const auto definition = twoColumns();
    ListView list(definition);
    EXPECT_EQ("", list.addItem(1, "").note());
    list.item(1).setNote("as it was read");
    list.item(1).addSubItem(1, "a");
    list.addItem(1, "before");

    EXPECT_EQ("as it was read", list.item(2).note());
    EXPECT_EQ("", list.item(2).text());
    EXPECT_EQ("a", list.item(2).subItem(1));
    EXPECT_EQ(1, list.item(2).subItemCount());
    EXPECT_EQ("", list.item(1).note());
}

TEST(ListView, SortsOnLoadByTheTextOfTheColumnThatItsDefinitionNames)
{
    struct Case {
        const char* because;
        ListSort sort;
        Texts expected;
    };
    const Case cases[] = {
        {"an unsorted list stays as it came", {}, {"1", "2", "3", "4"}},
        {"ascending, without regard to case, equal ones as they came",
         {true, 1, true},
         {"4", "2", "1", "3"}},
        {"descending, equal ones as they came", {true, 1, false}, {"1", "3", "2", "4"}},
        {"a column that rows lack leaves them as they came", {true, 2, true}, {"1", "2", "3", "4"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        auto definition = twoColumns();
        definition.sort = c.sort;
        ListView list(definition);
        list.addItem(1, "1").addSubItem(1, "delta");
        list.addItem(2, "2").addSubItem(1, "Bravo");
        list.addItem(3, "3").addSubItem(1, "DELTA");
        list.addItem(4, "4").addSubItem(1, "alpha");

        list.sortOnLoad();

        EXPECT_EQ(c.expected, shownTexts(list));
        EXPECT_EQ("1", list.item(1).text()) << "positions of items do not follow the sort";
    }
}

TEST(ListView, ShowsRowsThatComeAfterTheSortInTheOrderOfTheirIndex)
{
    auto definition = twoColumns();
    definition.sort = {true, 1, true};
    ListView list(definition);
    list.addItem(1, "z").addSubItem(1, "z");
    list.addItem(2, "a").addSubItem(1, "a");
    list.sortOnLoad();

    list.addItem(3, "m");

    EXPECT_EQ((Texts{"z", "a", "m"}), shownTexts(list));
}

TEST(ListView, KeepsItsColumnsWhenItsRowsAreCleared)
{
    const auto definition = twoColumns();
    ListView list(definition);
    list.addColumn();
    list.addItem(1, "row").addSubItem(1, "cell");

    list.clear();

    EXPECT_EQ(3, list.columnCount());
    EXPECT_EQ(0, list.itemCount());
    EXPECT_EQ("", list.addItem(1, "again").subItem(1));
}
