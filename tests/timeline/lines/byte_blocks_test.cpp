#include "timeline/lines/byte_blocks.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace timeline {
namespace {

TEST(ByteBlocks, HaveABitForEachPlaceOfAByte)
{
    std::mt19937 random(3);
    const std::string some("a\nb\0\x7F\x80\x8A\xFF", 8);
    for (int round = 0; round < 2000; ++round) {
        std::string block;
        while (block.size() < bytes::blockSize) block += some[random() % some.size()];
        for (const char wanted : some)
            for (const char ignored : {'\0', bytes::caseBit}) {
                std::uint64_t expected = 0;
                for (std::size_t at = 0; at < block.size(); ++at)
                    if (static_cast<char>(block[at] | ignored) == wanted)
                        expected |= std::uint64_t{1} << at;
                ASSERT_EQ(expected, bytes::placesOf(block.data(), wanted, ignored));
            }
    }
}

} // namespace
} // namespace timeline
