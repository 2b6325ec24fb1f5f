// What is left behind when a console has ended: nothing.
#include "hosts/mmc/console/handle_count.h"
#include "hosts/mmc/loaded_snap_in.h"

namespace stand_in {

namespace {

class EndOfAConsole : public SnapInTest {
protected:
    /// What a person does in a console, sheets of both kinds included.
    void useOnce()
    {
        Window& window = open().window();
        window.select("Processes/KoCSMgr/Current- diag_KoCSMgr_20250219_144115.txt");
        window.rows();
        window.contextMenu();
        window.select("");
        window.tasks();
        for (const char* task : {"Configure Macro Traces", "Configure Log Settings"})
            console_->withSheet([&] { window.clickTask(task); },
                                [](Sheet& sheet) { sheet.cancel(); });
        close();
    }
};

/// The system keeps some for the next time, as many as were in use at once.
TEST_F(EndOfAConsole, LeavesNoHandle)
{
    HandleCount before;
    int without = 0; // uses in a row behind which there were no more
    for (int use = 0; use < 12 && without < 3; ++use) {
        useOnce();
        const HandleCount now = countHandles();
        without = now == before ? without + 1 : 0;
        before = now;
    }
    EXPECT_EQ(3, without) << before.kernel << ", " << before.windows << ", " << before.gdi;
}

} // namespace

} // namespace stand_in
