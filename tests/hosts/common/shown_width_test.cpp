#include "hosts/common/shown_width.h"

#include <gtest/gtest.h>

TEST(ShownWidth, CountsTheColumnsOfATerminalAndNeitherBytesNorCharacters)
{
    EXPECT_EQ(0u, shownWidth(""));
    EXPECT_EQ(7u, shownWidth("Message"));
    EXPECT_EQ(5u, shownWidth("Größe"));
    EXPECT_EQ(6u, shownWidth("行番号")) << "a wide letter takes two";
    EXPECT_EQ(2u, shownWidth("ｱｲ")) << "a narrow one takes one";
    EXPECT_EQ(2u, shownWidth("e\xCC\x81t")) << "a combining mark takes none";
    EXPECT_EQ(1u, shownWidth("a\x07")) << "nor does a control character";
    EXPECT_EQ(3u, shownWidth("a\xFF"
                             "b"));
    EXPECT_EQ(2u, shownWidth("\xF0\x9F\x93\x9E"));
}
