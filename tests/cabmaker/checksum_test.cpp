#include "cabmaker/checksum.h"

#include <vector>

#include <gtest/gtest.h>

namespace cabmaker {

TEST(Checksum, CombinesLittleEndianWordsAndTheBytesPastTheLastWord)
{
    struct Case {
        const char* because;
        std::vector<std::uint8_t> bytes;
        std::uint32_t seed;
        std::uint32_t expected;
    };
    const Case cases[] = {
        {"nothing leaves the seed", {}, 0x12345678, 0x12345678},
        {"a word counts from its low byte", {1, 2, 3, 4}, 0, 0x04030201},
        {"words are combined by exclusive or", {1, 2, 3, 4, 1, 0, 3, 0}, 0, 0x04000200},
        {"the seed takes part", {1, 2, 3, 4}, 0xff000000, 0xfb030201},
        {"one byte more is the lowest", {0, 0, 0, 0, 0xAA}, 0, 0xAA},
        {"of two bytes more the first is higher", {0, 0, 0, 0, 0xAA, 0xBB}, 0, 0xAABB},
        {"of three bytes more the first is highest", {0xAA, 0xBB, 0xCC}, 0, 0xAABBCC},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, checksum(c.bytes, c.seed));
    }
}

} // namespace cabmaker
