#include "console/row_order.h"

#include "console/list_view.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Positions = std::vector<std::uint32_t>;

/// A list of a name and a size a row, which stands by descending names of its own accord.
struct RowOrderTest : testing::Test {
    ListViewDefinition declared;
    ListView list{declared};

    RowOrderTest()
    {
        declared.sort = {true, 1, false};
        add("b", "10");
        add("A", "9");
        add("c", "9");
        list.sortOnLoad();
    }

    void add(const std::string& name, const std::string& size)
    {
        ListItem row = list.addItem(list.itemCount() + 1, name);
        row.addSubItem(1, name);
        row.addSubItem(2, size);
    }

    Positions arranged(Positions positions = {1, 2, 3})
    {
        arrangeRows(list, positions);
        return positions;
    }
};

} // namespace

TEST_F(RowOrderTest, LeavesTheRowsAsTheListHasThemUntilAPersonChooses)
{
    EXPECT_EQ((Positions{1, 2, 3}), arranged());
    EXPECT_TRUE(standsBefore(list, 1, 2));
    EXPECT_FALSE(standsBefore(list, 2, 1));
}

TEST_F(RowOrderTest, GoesByWhatTheCellsOfAColumnCountForAndKeepsRowsThatCountAlike)
{
    ASSERT_EQ("c", list.shown(1).text());
    list.chooseOrder({2, true});
    EXPECT_EQ((Positions{1, 3, 2}), arranged()) << "c and A have 9, b has 10";
    list.chooseOrder({2, false});
    EXPECT_EQ((Positions{2, 1, 3}), arranged());
    list.chooseOrder({1, true});
    EXPECT_EQ((Positions{3, 2, 1}), arranged());
    EXPECT_EQ((Positions{3, 1}), arranged({1, 3})) << "rows that are left out stay out";
    EXPECT_EQ("c", list.shown(1).text()) << "the list's own order is what it was";
}

TEST_F(RowOrderTest, TellsOfTwoRowsWhichStandsBefore)
{
    for (const RowOrder order : {RowOrder{1, true}, {1, false}, {2, true}, {2, false}}) {
        list.chooseOrder(order);
        const Positions rows = arranged();
        for (std::size_t left = 0; left < rows.size(); ++left)
            for (std::size_t right = 0; right < rows.size(); ++right)
                EXPECT_EQ(left < right, standsBefore(list, rows[left], rows[right]));
    }
}
