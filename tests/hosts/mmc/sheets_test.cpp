#include "hosts/mmc/loaded_snap_in.h"

#include <algorithm>
#include <atomic>

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace stand_in {

namespace {

using Button = Sheet::Button;

class Sheets : public SnapInTest {
protected:
    void withTask(const char* task, const std::function<void(Sheet&)>& person)
    {
        console_->withSheet([&] { console_->window().clickTask(task); }, person);
    }

    /// The levels that are on, as a new console reads them.
    std::vector<std::string> levelsOn()
    {
        std::vector<std::string> on;
        open();
        withTask("Configure Micro Traces", [&](Sheet& sheet) {
            sheet.next();
            on = sheet.tickedNodes();
            sheet.cancel();
        });
        return on;
    }
};

void goToTheEnd(Sheet& sheet)
{
    for (int pages = 0; pages < 6 && !sheet.isEnabled(Button::finish); ++pages) sheet.next();
    sheet.finish();
}

TEST_F(Sheets, TurnAMacroTraceOn)
{
    const auto before = levelsOn();
    const std::string registryBefore = registry();
    withTask("Configure Macro Traces", [](Sheet& sheet) {
        EXPECT_EQ("Configure Macro Traces Wizard", sheet.title());
        EXPECT_FALSE(sheet.isEnabled(Button::back));
        sheet.next();
        EXPECT_FALSE(sheet.isEnabled(Button::next));
        sheet.tickNode("Call Flow/Basic Call Flow");
        EXPECT_TRUE(sheet.isNodeTicked("Call Flow/Basic Call Flow"));
        EXPECT_TRUE(sheet.isEnabled(Button::next));
        sheet.next();
        EXPECT_THAT(sheet.pageText(), HasSubstr("Basic Call Flow"));
        goToTheEnd(sheet);
    });

    EXPECT_THAT(registryBefore, Not(HasSubstr("Basic Call Flow]")));
    EXPECT_THAT(registry(), HasSubstr("Basic Call Flow]"));
    const auto after = levelsOn();
    EXPECT_GT(after.size(), before.size());
    withTask("Configure Macro Traces", [](Sheet& sheet) {
        sheet.next();
        EXPECT_TRUE(sheet.isNodeTicked("Call Flow/Basic Call Flow"));
        EXPECT_FALSE(sheet.isNodeTicked("Call Flow/Transfers"));
        sheet.cancel();
    });

    withTask("Reset to Default Traces", [](Sheet& sheet) {
        EXPECT_FALSE(sheet.isEnabled(Button::finish));
        sheet.click("Reset to Default Traces");
        goToTheEnd(sheet);
    });
    const auto reset = levelsOn();
    EXPECT_LT(reset.size(), after.size());
    EXPECT_THAT(reset, Not(Contains("Call flow engine (CallFlow)/02  Call arrival and release")));
    EXPECT_THAT(reset, Contains("Call flow engine (CallFlow)/00  Errors"));
}

TEST_F(Sheets, TurnALevelOn)
{
    open();
    const std::string level = "Address book (AddressBook)/02  Name searches";
    withTask("Configure Micro Traces", [&](Sheet& sheet) {
        sheet.next();
        ASSERT_FALSE(sheet.isNodeTicked(level));
        sheet.tickNode(level);
        goToTheEnd(sheet);
    });
    EXPECT_THAT(levelsOn(), Contains(level));
}

TEST_F(Sheets, LeaveTheServerAloneWhenAWizardIsCancelled)
{
    const auto before = levelsOn();
    const std::string registryBefore = registry();
    withTask("Configure Macro Traces", [](Sheet& sheet) {
        sheet.next();
        sheet.tickNode("Call Flow/Transfers");
        sheet.back();
        EXPECT_THAT(sheet.pageText(), HasSubstr("Welcome"));
        sheet.cancel();
    });
    EXPECT_EQ(registryBefore, registry());
    EXPECT_EQ(before, levelsOn());
}

TEST_F(Sheets, GatherTheLogsThatAreTicked)
{
    open();
    std::string destination;
    withTask("Gather Log Files", [&](Sheet& sheet) {
        const std::string first = sheet.pageText();
        const auto start = first.find("C:\\Temp\\");
        ASSERT_NE(std::string::npos, start);
        destination = first.substr(start + 3, first.find('\n', start) - start - 3);
        sheet.click("Select logs");
        sheet.next();
        for (const std::string& node : sheet.treeNodes())
            if (node.find("diag_KoCSMgr_20250219_144115") != std::string::npos)
                sheet.tickNode(node);
        sheet.next();
        sheet.waitUntil([&] { return sheet.isEnabled(Button::finish); }, "the end of the gather");
        sheet.finish();
    });
    std::replace(destination.begin(), destination.end(), '\\', '/');
    ASSERT_TRUE(folder_.exists("site/drive_c/" + destination));
    std::vector<std::string> names;
    for (const auto& entry :
         std::filesystem::directory_iterator(folder_ / ("site/drive_c/" + destination)))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, Contains(HasSubstr("diag_KoCSMgr_20250219_144115")));
}

TEST_F(Sheets, GoWithTheConsoleThatEndsUnderAWizard)
{
    open();
    const std::string before = registry();
    std::atomic<bool> chosen = false;
    endWhen([&] { return chosen.load(); });
    withTask("Configure Macro Traces", [&](Sheet& sheet) {
        sheet.next();
        sheet.tickNode("Call Flow/Transfers");
        chosen = true;
    });

    EXPECT_EQ(before, registry());
    close();
    EXPECT_TRUE(toolsHaveGone());
}

} // namespace

} // namespace stand_in
