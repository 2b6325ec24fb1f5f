// Gathers of the snap-in: to their end, cancelled, and in a program that is told to end.
#include "hosts/mmc/loaded_snap_in.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>

using testing::Contains;
using testing::EndsWith;
using testing::HasSubstr;

namespace stand_in {

namespace {

using Button = Sheet::Button;

constexpr int patience = 50000; ///< milliseconds

const char* const longLog = "diag_KoCSMgr_20250219_090000.txt";
constexpr int manyLines = 150000;

/// The text of a line, which no other one has in it.
std::string line(int number)
{
    return "line " + std::to_string(1000000 + number);
}

class Gathers : public SnapInTest {
protected:
    void gather(const std::function<void(Sheet&)>& person)
    {
        console_->withSheet([&] { console_->window().clickTask("Gather Log Files"); }, person,
                            patience);
    }

    /// The names of all files that gathers have made.
    std::vector<std::string> gathered() const
    {
        std::vector<std::string> names;
        const std::filesystem::path place = folder_ / "site/drive_c/Temp";
        if (!std::filesystem::exists(place)) return names;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(place))
            if (entry.is_regular_file() && entry.file_size() > 0)
                names.push_back(entry.path().filename().string());
        return names;
    }

    /// The bytes of the trace database that was gathered last; empty for none.
    std::string database() const
    {
        const std::filesystem::path place = folder_ / "site/drive_c/Temp";
        if (!std::filesystem::exists(place)) return {};
        for (const auto& entry : std::filesystem::recursive_directory_iterator(place)) {
            if (entry.path().extension() != ".mdb") continue;
            std::ifstream file(entry.path(), std::ios::binary);
            return {std::istreambuf_iterator<char>(file), {}};
        }
        return {};
    }

    void writeManyLines() const
    {
        std::string lines;
        for (int number = 0; number < manyLines; ++number)
            lines += "10:00:00:000,CallSvc,1236,CallFlow,2," + line(number) + "\n";
        writeLog(longLog, lines);
    }

    /// What a gather leaves that ended early: what was read until then, packed.
    void expectTheBeginningOfTheLines() const
    {
        EXPECT_THAT(gathered(), Contains(EndsWith(".cab")));
        const std::string read = database();
        EXPECT_NE(std::string::npos, read.find(line(0)));
        EXPECT_EQ(std::string::npos, read.find(line(manyLines - 1)));
    }
};

/// From the wizard's first page into the gather of a day's logs.
void beginWithTimeFrame(Sheet& sheet)
{
    sheet.click("Process logs over specified time frame");
    sheet.next();
    sheet.waitUntil([&] { return sheet.count(DATETIMEPICK_CLASSW) == 2; }, "the pickers");
    SYSTEMTIME start{};
    start.wYear = 2025;
    start.wMonth = 2;
    start.wDay = 19;
    sheet.setMoment(0, start);
    sheet.setMoment(1, start);
    sheet.type("24");
    sheet.next();
}

void finishAtTheEnd(Sheet& sheet)
{
    sheet.waitUntil([&] { return sheet.isEnabled(Button::finish); }, "the end of the gather",
                    patience);
    sheet.finish();
}

TEST_F(Gathers, TakeTheStandardLogs)
{
    open();
    gather([](Sheet& sheet) {
        EXPECT_TRUE(sheet.isTicked("Gather standard logs"));
        sheet.next();
        finishAtTheEnd(sheet);
    });

    EXPECT_THAT(gathered(), Contains(HasSubstr("diag_KoCSMgr_20250219_144115")));
}

TEST_F(Gathers, MakeADatabaseAndACabinetOfATimeFrame)
{
    writeLog("diag_KoCSMgr_20250219_090000.txt", "10:00:00:000,CallSvc,1236,CallFlow,2," + line(0) +
                                                     "\n10:00:01:000,CallSvc,1236,CallFlow,2," +
                                                     line(1) + "\n");
    open();
    gather([](Sheet& sheet) {
        beginWithTimeFrame(sheet);
        finishAtTheEnd(sheet);
    });

    EXPECT_THAT(gathered(), Contains(EndsWith(".cab")));
    EXPECT_NE(std::string::npos, database().find(line(0)));
    EXPECT_NE(std::string::npos, database().find(line(1)));
}

TEST_F(Gathers, EndEarlyWhenTheyAreCancelled)
{
    writeManyLines();
    open();
    gather([](Sheet& sheet) {
        beginWithTimeFrame(sheet);
        sheet.waitForText(longLog);
        sheet.cancel();
    });

    expectTheBeginningOfTheLines();
    // The tool takes the next wish.
    gather([](Sheet& sheet) { sheet.cancel(); });
    console_->window().clickTask("Start New Log Files");
    EXPECT_EQ("New log files started.", console_->window().statusText());
}

TEST_F(Gathers, EndWithTheProgram)
{
    writeManyLines();
    open();
    const DWORD program = GetCurrentThreadId();
    gather([&](Sheet& sheet) {
        beginWithTimeFrame(sheet);
        sheet.waitForText(longLog);
        PostThreadMessageW(program, WM_QUIT, 0, 0);
    });

    expectTheBeginningOfTheLines();
    close();
    EXPECT_TRUE(toolsHaveGone());
}

TEST_F(Gathers, EndWithTheirConsole)
{
    writeManyLines();
    open();
    std::atomic<bool> atWork = false;
    endWhen([&] { return atWork.load(); });
    gather([&](Sheet& sheet) {
        beginWithTimeFrame(sheet);
        sheet.waitForText(longLog);
        atWork = true;
    });

    expectTheBeginningOfTheLines();
    close();
    EXPECT_TRUE(toolsHaveGone());
}

} // namespace

} // namespace stand_in
