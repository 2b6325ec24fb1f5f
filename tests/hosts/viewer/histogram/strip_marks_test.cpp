#include "hosts/viewer/histogram/strip_marks.h"

#include "hosts/viewer/marks/marks.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/windows/test_application.h"

#include <QImage>

#include <gtest/gtest.h>

namespace viewer {
namespace {

class MarksOnTheStrip : public testing::Test {
protected:
    MarksOnTheStrip() : strip((testApplication(), document))
    {
        strip.resize(600, strip.sizeHint().height());
        strip.show();
        document.open({logs.writeRows("KoCSMgr", 1000, 0, 1000)});
        EXPECT_TRUE(waitForRows(document));
        EXPECT_TRUE(waitUntil([&] { return strip.span().has_value(); }));
    }

    QString told(int second) const
    {
        return strip.describe(strip.xOf(timeline::dayOf(2025, 2, 20) + second * 1000));
    }

    TestLogs logs;
    Document document;
    TimeStrip strip;
    Marks marks{document, logs.folder() + "/own"};
    StripMarks shown{document, strip, marks};
};

TEST_F(MarksOnTheStrip, TellHitsWhereTheyAre)
{
    document.find({"row 500", false, false, false});
    ASSERT_TRUE(waitUntil([&] { return told(500).contains("1 hits"); }));
    EXPECT_FALSE(told(400).contains("hits"));
    document.find({"row ", false, false, false});
    ASSERT_TRUE(waitUntil([&] { return told(400).contains("hits"); }));
    document.find({});
    ASSERT_TRUE(waitUntil([&] { return !told(400).contains("hits"); }));
}

TEST_F(MarksOnTheStrip, FollowTheWidthAndTheFilter)
{
    document.find({"row 500", false, false, false});
    ASSERT_TRUE(waitUntil([&] { return told(500).contains("1 hits"); }));
    strip.resize(300, strip.height());
    ASSERT_TRUE(waitUntil([&] { return told(500).contains("1 hits"); }));
    RowFilter filter;
    filter.since = timeline::dayOf(2025, 2, 20) + 450'000;
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return told(500).contains("1 hits"); }));
    EXPECT_FALSE(told(600).contains("hits"));
}

TEST_F(MarksOnTheStrip, TellNotesOfRowsOnShow)
{
    const QImage before = strip.grab().toImage();
    marks.setText(document.indexRow(300), "look here");
    EXPECT_TRUE(told(300).contains("look here"));
    EXPECT_FALSE(told(500).contains("look here"));
    EXPECT_NE(before, strip.grab().toImage());
    RowFilter filter;
    filter.showOnly(timeline::Column::level, "7");
    filter.show(timeline::Column::level, "3", false);
    filter.clear(timeline::Column::level);
    filter.showOnly(timeline::Column::level, "0");
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return told(300).contains("look here"); }))
        << "row 300 is an error";
    marks.setText(document.indexRow(15), "first");
    filter.showOnly(timeline::Column::level, "3");
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_TRUE(waitUntil([&] { return !told(300).contains("look here"); }));
}

} // namespace
} // namespace viewer
