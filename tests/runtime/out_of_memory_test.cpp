#include "runtime/out_of_memory.h"

#include <gtest/gtest.h>

#include <new>

namespace {

TEST(OutOfMemory, ARequestThatIsRefusedEndsTheProgramWithASentence)
{
    const auto ask = [] {
        endWhenOutOfMemory("orvandiag");
        std::get_new_handler()();
    };
    EXPECT_EXIT(ask(), testing::ExitedWithCode(1), "^orvandiag: out of memory\n$");
}

TEST(OutOfMemory, ALibraryThatHasNoneEndsTheProgramTheSameWay)
{
    const auto note = [] {
        endWhenOutOfMemory("orvandiag");
        noteOutOfMemory();
    };
    EXPECT_EXIT(note(), testing::ExitedWithCode(1), "^orvandiag: out of memory\n$");
}

TEST(OutOfMemory, WithoutAnOrderToEndTheProgramGoesOn)
{
    EXPECT_EQ(nullptr, std::get_new_handler()) << "such a request raises";
    noteOutOfMemory();
}

} // namespace
