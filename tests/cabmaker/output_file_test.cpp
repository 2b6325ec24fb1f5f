#include "cabmaker/output_file.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "cabmaker/scratch_folder.h"
#include "runtime/run_time_error.h"

namespace cabmaker {

using Names = std::vector<std::string>;

TEST(OutputFile, AppearsWholeAndReplacesWhatWasThere)
{
    const ScratchFolder scratch;
    scratch.write("a.cab", "before");
    OutputFile file(scratch.at("a.cab"));
    file.append("_____def");
    file.append("ghi");
    const std::uint8_t head[] = {'h', 'e', 'a', 'd', ':'};
    file.overwrite(0, head);
    EXPECT_EQ(11U, file.size());
    EXPECT_EQ("before", scratch.read("a.cab"));

    file.publish();

    EXPECT_EQ("head:defghi", scratch.read("a.cab"));
    EXPECT_EQ(Names{"a.cab"}, scratch.listing());
}

TEST(OutputFile, LeavesNothingBehindWhenItIsNotPublished)
{
    const ScratchFolder scratch;
    {
        OutputFile open(scratch.at("a.cab"));
        open.append("half");
        OutputFile closed(scratch.at("a.cab"));
        closed.append("other half");
        closed.close();
        EXPECT_EQ(2U, scratch.listing().size());
    }
    EXPECT_EQ(Names{}, scratch.listing());
}

TEST(OutputFile, RefusesAPlaceThatCannotHoldIt)
{
    const ScratchFolder scratch;
    std::filesystem::create_directory(scratch.path() / "folder");
    EXPECT_THROW(OutputFile(scratch.at("none/a.cab")), RunTimeError);
    {
        OutputFile file(scratch.at("folder"));
        file.append("x");
        EXPECT_THROW(file.publish(), RunTimeError);
    }
    EXPECT_EQ(Names{"folder/"}, scratch.listing());
}

} // namespace cabmaker
