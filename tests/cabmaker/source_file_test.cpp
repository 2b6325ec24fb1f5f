#include "cabmaker/source_file.h"

#include <cstdlib>
#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

// Sets the machine's time zone for the length of a test.
class TimeZone {
public:
    explicit TimeZone(const char* zone) : before_(std::getenv("TZ") ? std::getenv("TZ") : "")
    {
        setenv("TZ", zone, 1);
        tzset();
    }
    ~TimeZone()
    {
        if (before_.empty())
            unsetenv("TZ");
        else
            setenv("TZ", before_.c_str(), 1);
        tzset();
    }

private:
    std::string before_;
};

} // namespace

TEST(CabinetTime, IsLocalTimeInPairsOfSeconds)
{
    struct Case {
        const char* because;
        const char* zone;
        std::time_t moment;
        int date, time;
    };
    const Case cases[] = {
        {"8 October 2005, 15:23:07", "UTC", 1128784987, (25 << 9) | (10 << 5) | 8,
         (15 << 11) | (23 << 5) | 3},
        {"the same in the west", "PST8PDT,M4.1.0,M10.5.0", 1128784987, (25 << 9) | (10 << 5) | 8,
         (8 << 11) | (23 << 5) | 3},
        {"the first moment of all", "UTC", 315532800, (0 << 9) | (1 << 5) | 1, 0},
        {"before it", "UTC", 315532799, (0 << 9) | (1 << 5) | 1, 0},
        {"long before it", "UTC", -1, (0 << 9) | (1 << 5) | 1, 0},
        {"the last moment of all", "UTC", 4354819199, (127 << 9) | (12 << 5) | 31,
         (23 << 11) | (59 << 5) | 29},
        {"past it", "UTC", 4354819200, (127 << 9) | (12 << 5) | 31, (23 << 11) | (59 << 5) | 29},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const TimeZone zone(c.zone);
        EXPECT_EQ(c.date, cabinetTime(c.moment).date);
        EXPECT_EQ(c.time, cabinetTime(c.moment).time);
    }
}

TEST(SourceFacts, TellWhatIsKnownOfAFile)
{
    const ScratchFolder scratch;
    const std::string path = scratch.write("a", "12345");
    EXPECT_EQ(5U, sourceFacts(path, "a").bytes);
    EXPECT_FALSE(sourceFacts(path, "a").readOnly);

    std::filesystem::permissions(path, std::filesystem::perms::owner_read);
    EXPECT_TRUE(sourceFacts(path, "a").readOnly);
}

TEST(SourceFacts, RefuseWhatIsNoPlainFile)
{
    const ScratchFolder scratch;
    scratch.write("a", "");
    ASSERT_EQ(0, runCommand(scratch.path(), "mkfifo pipe").status);
    struct Case {
        const char* name;
        int number;
    };
    const Case cases[] = {{"none", runTimeErrors::fileNotFound},
                          {"a/none", runTimeErrors::fileNotFound},
                          {".", runTimeErrors::pathFileAccess},
                          {"pipe", runTimeErrors::pathFileAccess}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        try {
            sourceFacts(scratch.at(c.name), "the file");
            ADD_FAILURE() << "has facts";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(c.number, error.number());
            EXPECT_TRUE(error.description().starts_with("cannot read the file: "));
        }
    }
}

TEST(SourceReader, ReadsAsMuchAsThereIsRoomFor)
{
    const ScratchFolder scratch;
    const std::string path = scratch.write("a", "12345");
    SourceReader reader(path, "a", sourceFacts(path, "a"));
    std::uint8_t bytes[3];
    EXPECT_EQ(3U, reader.read(bytes));
    EXPECT_EQ(2U, reader.remaining());
    EXPECT_EQ(2U, reader.read(bytes));
    EXPECT_EQ('5', bytes[1]);
    EXPECT_EQ(0U, reader.read(bytes));
    reader.finish();
}

} // namespace cabmaker
