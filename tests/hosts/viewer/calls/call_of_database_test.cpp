#include "backends/jet/jet_engine.h"
#include "hosts/viewer/calls/call_list_pane.h"
#include "hosts/viewer/calls/call_pane.h"
#include "hosts/viewer/calls/call_tabs.h"
#include "hosts/viewer/calls/lane_view.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "support/windows/test_application.h"

#include <QPlainTextEdit>
#include <QTest>

#include <gmock/gmock.h>

#include <filesystem>

namespace viewer {
namespace {

TEST(CallOfADatabase, IsListedAndShownWithTheLinesOfItsTraces)
{
    testApplication();
    const TemporaryFolder folder;
    const std::string path = folder / "gather.mdb";
    std::filesystem::copy_file(std::string(built::data) + "/blankWPNDB.mdb", path);
    {
        jet::JetEngine engine([](const std::string& each) { return each; });
        const auto database = engine.openDatabase(path);
        const auto traces = database->openRecordset("tblTraces");
        for (const char* process : {"KoTelephony", "KoCSMgr"})
            for (const char* call : {"A", "", "B"}) {
                traces->addNew();
                traces->field("Date").setUtf8("2/20/2025 15:23:07:120");
                traces->field("Process").setUtf8(process);
                traces->field("Source").setUtf8("Conv");
                traces->field("TraceNumber").setUtf8("17");
                traces->field("Component").setUtf8("CallFlow");
                traces->field("TraceLevel").setUtf8(*call == 'B' ? "0" : "3");
                if (*call != '\0') traces->field("CallId").setUtf8(call);
                traces->field("Trace").setUtf8("first line\r\nsecond line");
                traces->update();
            }
    }
    Document document;
    Calls calls(document);
    CallTabs tabs(calls);
    tabs.resize(900, 400);
    document.open({QString::fromStdString(path)});
    ASSERT_TRUE(waitForRows(document));
    tabs.openList();
    CallListModel& list = tabs.list().model();
    ASSERT_TRUE(waitUntil([&] { return list.rowCount() == 2; }));
    EXPECT_EQ("A", list.text(0, CallColumn::id));
    EXPECT_EQ("2", list.text(0, CallColumn::lines));
    EXPECT_EQ("2", list.text(1, CallColumn::errors));
    EXPECT_EQ("KoTelephony, KoCSMgr", list.text(1, CallColumn::processes));
    tabs.call().show("B", list.call(1).first, std::nullopt);
    ASSERT_TRUE(waitUntil([&] { return calls.rowsWork() == Calls::Work::done; }));
    EXPECT_EQ("first line\nsecond line", tabs.call().text().toPlainText());
    // Both rows are of one moment, in a lane each.
    LaneView& lanes = tabs.call().lanes();
    QTest::keyClick(&lanes, Qt::Key_Down);
    EXPECT_EQ(1u, lanes.selected());
    EXPECT_EQ(lanes.placeOf(0).x(), lanes.placeOf(1).x());
    EXPECT_LT(lanes.placeOf(0).y(), lanes.placeOf(1).y());
}

} // namespace
} // namespace viewer
