#include "backends/jet/jet_engine.h"
#include "hosts/viewer/document/document.h"
#include "hosts/viewer/support/test_logs.h"
#include "support/places.h"
#include "support/temporary_folder.h"
#include "support/windows/test_application.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace viewer {
namespace {

/// A trace database with rows of two components, and with the definitions of macro traces.
class ViewedDatabase : public testing::Test {
protected:
    ViewedDatabase()
    {
        testApplication();
        std::filesystem::copy_file(std::string(built::data) + "/blankWPNDB.mdb", path);
        jet::JetEngine engine([](const std::string& each) { return each; });
        const auto database = engine.openDatabase(path);
        const auto traces = database->openRecordset("tblTraces");
        for (const char* component : {"CallFlow", "MailboxStore", "CallFlow"})
            for (const char* level : {"2", "5"}) {
                traces->addNew();
                traces->field("Date").setUtf8("2/20/2025 15:23:07:120");
                traces->field("Process").setUtf8("KoCSMgr");
                traces->field("Source").setUtf8("Store");
                traces->field("TraceNumber").setUtf8("17");
                traces->field("Component").setUtf8(component);
                traces->field("TraceLevel").setUtf8(level);
                traces->field("Trace").setUtf8("first line\r\nsecond line");
                traces->update();
            }
        const auto definitions = database->openRecordset("tblMacroTraces");
        std::ifstream file(std::string(checkout::data) + "/ZMKXML/HTCallFlow.xml",
                           std::ios::binary);
        definitions->addNew();
        definitions->field("Name").setUtf8("HTCallFlow.xml");
        definitions->field("Data").setUtf8(std::string(std::istreambuf_iterator<char>(file), {}));
        definitions->update();
    }

    TemporaryFolder folder;
    std::string path = folder / "gather.mdb";
    Document document;
};

TEST_F(ViewedDatabase, ShowsItsRowsWithTheLinesOfTheirTraces)
{
    document.open({QString::fromStdString(path)});
    ASSERT_TRUE(waitForRows(document));
    ASSERT_EQ(6u, document.rowCount());
    EXPECT_EQ("KoCSMgr", document.row(0).process);
    EXPECT_EQ(QString::fromUtf8("first line↵second line"), document.row(0).trace);
    EXPECT_EQ("first line\nsecond line", document.wholeTrace(0));
    EXPECT_EQ("", document.wholeLine(0)) << "a database has no lines";
}

TEST_F(ViewedDatabase, ItsMacroTracesAreFilters)
{
    document.open({QString::fromStdString(path)});
    ASSERT_TRUE(waitForRows(document));
    const auto found = document.macroTraces().find("Call Flow - Basic Call Flow");
    ASSERT_NE(document.macroTraces().end(), found);
    RowFilter filter;
    filter.macroTrace = found->first;
    filter.macroLevels = found->second;
    document.setFilter(filter);
    ASSERT_TRUE(waitForRows(document));
    ASSERT_EQ(2u, document.rowCount()) << "levels 2, 3, 4 and 23 of CallFlow";
    EXPECT_EQ("CallFlow", document.row(1).component);
    EXPECT_EQ(2, document.row(1).level);
}

} // namespace
} // namespace viewer
