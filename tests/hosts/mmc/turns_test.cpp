// Programs that change one server take turns, and the snap-in with them.
#include "backends/site/site_turn.h"
#include "hosts/mmc/loaded_snap_in.h"

#include <optional>
#include <thread>

namespace stand_in {

namespace {

class Turns : public SnapInTest {
protected:
    std::string site() const { return folder_ / "site"; }

    /// Does something while another one has the turn for a while; gives whether it was waited for.
    bool isWaitedFor(const std::function<void()>& change)
    {
        std::optional<SiteTurn> others(site());
        std::atomic<bool> over = false;
        std::thread another([&] {
            Sleep(500);
            over = true;
            others.reset();
        });
        change();
        const bool waited = over;
        another.join();
        return waited;
    }

    /// Does something while another one has the turn, which is told where it is waited for in vain.
    bool goesOnBeside(const std::function<void()>& work)
    {
        const SiteTurn others(site());
        work();
        return console_->boxes().empty();
    }
};

TEST_F(Turns, AreWaitedForByCommands)
{
    open();
    EXPECT_TRUE(isWaitedFor([&] { console_->window().clickTask("Start New Log Files"); }));
    EXPECT_EQ("New log files started.", console_->window().statusText());
}

TEST_F(Turns, AreWaitedForByTheButtonsOfSheetsThatChangeTheServer)
{
    open();
    const auto withTask = [&](const char* task, const std::function<void(Sheet&)>& person) {
        console_->withSheet([&] { console_->window().clickTask(task); }, person);
    };
    withTask("Configure Log Settings", [&](Sheet& sheet) {
        sheet.type("777", 1);
        EXPECT_TRUE(isWaitedFor([&] { sheet.press(Sheet::Button::apply); }));
        sheet.cancel();
    });
    withTask("Configure Macro Traces", [&](Sheet& sheet) {
        EXPECT_TRUE(isWaitedFor([&] { sheet.next(); }));
        EXPECT_TRUE(goesOnBeside([&] { sheet.back(); }));
        sheet.cancel();
    });
    withTask("Gather Log Files", [&](Sheet& sheet) {
        EXPECT_TRUE(goesOnBeside([&] { sheet.next(); }));
        sheet.cancel();
    });
}

TEST_F(Turns, OfOthersAreNotKeptFromThemByASheetOnShow)
{
    open();
    console_->withSheet([&] { console_->window().clickTask("Reset to Default Traces"); },
                        [&](Sheet& sheet) {
                            EXPECT_NO_THROW(SiteTurn(site(), std::chrono::milliseconds(0)));
                            sheet.cancel();
                        });
}

} // namespace

} // namespace stand_in
