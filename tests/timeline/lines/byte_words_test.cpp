#include "timeline/lines/byte_words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>

namespace timeline {
namespace {

TEST(ByteWords, FindTheFirstAndTheLastPlaceOfAByte)
{
    std::mt19937 random(4);
    const std::string some("\n\x0B\x8A\x09", 4);
    for (int round = 0; round < 5000; ++round) {
        std::string text;
        for (auto size = random() % 40; size > 0; --size)
            text += random() % 9 == 0 ? some[random() % some.size()] : 'x';
        const char* const end = text.data() + text.size();
        const std::size_t first = std::min(text.find('\n'), text.size());
        ASSERT_EQ(text.data() + first, bytes::find(text.data(), end, '\n'));
        ASSERT_EQ(text.data() + text.rfind('\n') + 1, bytes::behindLast(text.data(), end, '\n'));
    }
}

TEST(ByteWords, TellAClockByItsEightBytes)
{
    for (const std::string clock : {"00:00:00", "15:23:07", "29:59:59"})
        EXPECT_TRUE(bytes::isClock(bytes::wordAt(clock.data()))) << clock;
    for (const std::string none :
         {"15:60:07", "15:23:60", "15:23-07", "1a:23:07", "15:23:0/", " 5:23:07", "15:2\xB3:07"})
        EXPECT_FALSE(bytes::isClock(bytes::wordAt(none.data()))) << none;
}

TEST(ByteWords, OrderClocksAsTheirTexts)
{
    EXPECT_EQ(bytes::clockOrder(0), bytes::orderOf(bytes::wordAt("00:00:00")));
    EXPECT_EQ(bytes::clockOrder(55'387), bytes::orderOf(bytes::wordAt("15:23:07")));
    EXPECT_EQ(bytes::clockOrder(86'399), bytes::lastClockOrder);
    EXPECT_LT(bytes::clockOrder(3599), bytes::clockOrder(3600));
}

} // namespace
} // namespace timeline
