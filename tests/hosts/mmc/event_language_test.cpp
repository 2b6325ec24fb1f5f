#include "hosts/mmc/loaded_snap_in.h"

using testing::HasSubstr;
using testing::Not;

namespace stand_in {

namespace {

using Button = Sheet::Button;

class EventLanguage : public SnapInTest {
protected:
    void inSheet(const std::function<void(Sheet&)>& person)
    {
        console_->window().select("");
        console_->withSheet([&] { console_->window().choose("Change Orvan Event Log Language"); },
                            person);
    }
};

TEST_F(EventLanguage, IsPutBackWhenTheConsoleEnds)
{
    open();
    inSheet([&](Sheet& sheet) {
        EXPECT_EQ("ENU", sheet.edit(0));
        EXPECT_FALSE(sheet.isEnabled(Button::apply));
        sheet.chooseInList("JPN");
        EXPECT_TRUE(sheet.isEnabled(Button::apply));
        sheet.press(Button::apply);
        sheet.waitUntil([&] { return !sheet.isEnabled(Button::apply); }, "what was applied");
        EXPECT_EQ("ENU", sheet.edit(0));
        EXPECT_EQ("JPN", sheet.edit(1));
        sheet.press(Button::ok);
    });
    EXPECT_THAT(registry(), HasSubstr(R"(Messaging\\JPN\\KoMessages.dll)"));
    EXPECT_THAT(registry(), Not(HasSubstr(R"(Messaging\\ENU\\KoMessages.dll)")));
    EXPECT_THAT(registry(), HasSubstr(R"("OriginalEventLogLanguage"="ENU")"));

    close();
    EXPECT_THAT(registry(), HasSubstr(R"(Messaging\\ENU\\KoMessages.dll)"));
    EXPECT_THAT(registry(), Not(HasSubstr(R"(Messaging\\JPN\\KoMessages.dll)")));
}

TEST_F(EventLanguage, StaysAsItIsWhenTheSheetIsCancelled)
{
    open();
    inSheet([&](Sheet& sheet) {
        sheet.chooseInList("FRA");
        sheet.cancel();
    });
    EXPECT_THAT(registry(), HasSubstr(R"(Messaging\\ENU\\KoMessages.dll)"));
    EXPECT_THAT(registry(), Not(HasSubstr(R"(Messaging\\FRA\\KoMessages.dll)")));
}

} // namespace

} // namespace stand_in
