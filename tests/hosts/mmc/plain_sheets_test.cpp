// The snap-in's sheets that are no wizards: they stand on threads of their own.
#include "hosts/mmc/loaded_snap_in.h"

using testing::HasSubstr;
using testing::Not;

namespace stand_in {

namespace {

using Button = Sheet::Button;

class PlainSheets : public SnapInTest {
protected:
    void withTask(const char* task, const std::function<void(Sheet&)>& person)
    {
        console_->withSheet([&] { console_->window().clickTask(task); }, person);
    }
};

TEST_F(PlainSheets, GoWithTheirConsole)
{
    open();
    console_->window().clickTask("Configure Log Settings");
    ASSERT_TRUE(console_->pumpUntil([&] { return !console_->openSheets().empty(); }));

    close();
    EXPECT_TRUE(toolsHaveGone());
}

TEST_F(PlainSheets, ChangeNothingWhenTheyAreCancelled)
{
    open();
    const std::string before = registry();
    withTask("Configure Log Settings", [](Sheet& sheet) {
        sheet.type("D:\\OtherLogs", 0);
        sheet.type("777", 1);
        sheet.cancel();
    });
    EXPECT_EQ(before, registry());
    open();
    withTask("Configure Log Settings", [](Sheet& sheet) {
        EXPECT_EQ("C:\\KelmaOrvan\\Logs", sheet.edit(0));
        EXPECT_THAT(sheet.edit(1), Not(HasSubstr("777")));
        sheet.cancel();
    });
}

TEST_F(PlainSheets, ApplyTheLogSettings)
{
    open();
    withTask("Configure Log Settings", [](Sheet& sheet) {
        // Filling the list in is a change.
        sheet.waitUntil([&] { return sheet.isEnabled(Button::apply); }, "Apply");
        sheet.type("D:\\OtherLogs", 0);
        sheet.type("777", 1);
        sheet.press(Button::apply);
        sheet.waitUntil([&] { return !sheet.isEnabled(Button::apply); }, "the end of Apply");
        sheet.type("778", 1);
        sheet.waitUntil([&] { return sheet.isEnabled(Button::apply); }, "Apply again");
        sheet.cancel();
    });

    EXPECT_THAT(registry(), HasSubstr(R"("Output Path"="D:\\OtherLogs")"));
    EXPECT_EQ(1U, console_->boxes().size()) << "that the server is to be restarted";
    open();
    withTask("Configure Log Settings", [](Sheet& sheet) {
        EXPECT_EQ("D:\\OtherLogs", sheet.edit(0));
        EXPECT_THAT(sheet.edit(1), HasSubstr("777"));
        sheet.cancel();
    });
}

} // namespace

} // namespace stand_in
