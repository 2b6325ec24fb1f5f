#include "backends/jet/table/stored_form.h"

#include <gtest/gtest.h>

namespace {

using Place = jet::StoredForm::Place;

jet::TextValue valueOf(const std::string& piece, std::size_t count)
{
    std::string text;
    for (std::size_t at = 0; at < count; ++at) text += piece;
    jet::TextValue value;
    value.assignUtf8(text);
    return value;
}

TEST(FormOfText, CompressesThreeCharactersAndMoreWhereTheColumnLetsIt)
{
    struct Case {
        const char* because;
        const char* piece;
        std::size_t count;
        bool mayCompress;
        std::size_t bytes;
    };
    const Case cases[] = {
        {"nothing takes nothing", "x", 0, true, 0},
        {"one character stays plain", "x", 1, true, 2},
        {"two characters stay plain", "x", 2, true, 4},
        {"three take their mark and a byte each", "x", 3, true, 5},
        {"so do those of the code page's upper half", "\xC3\xAB", 3, true, 5},
        {"a character past U+00FF makes all plain", "\xD0\x96", 3, true, 6},
        {"a column that is not compressed", "x", 255, false, 510},
        {"as many as a column has", "x", 255, true, 257},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto form = jet::formOfText(valueOf(c.piece, c.count), c.mayCompress);
        EXPECT_EQ(c.bytes, form.bytes);
        EXPECT_EQ(c.bytes == c.count + 2 && c.count > 2, form.compressed);
        EXPECT_EQ(Place::inRow, form.place);
    }
}

TEST(FormOfMemo, GoesByItsSizeToTheRowToAPageOrToAChain)
{
    struct Case {
        const char* because;
        const char* piece;
        std::size_t count;
        Place place;
        bool compressed;
        std::size_t bytes;
    };
    const Case cases[] = {
        {"an empty one has its head in the row", "x", 0, Place::inRow, false, 0},
        {"64 plain bytes are the last in the row", "x", 32, Place::inRow, true, 34},
        {"whatever their stored form takes", "x", 33, Place::oneRow, true, 35},
        {"the same without compression", "\xD0\x96", 32, Place::inRow, false, 64},
        {"a character more", "\xD0\x96", 33, Place::oneRow, false, 66},
        {"3,804 plain bytes are the last in a row of their own", "x", 1902, Place::oneRow, true,
         1904},
        {"whatever their stored form takes, more of them make a chain", "x", 1903, Place::chain,
         true, 1905},
        {"the same without compression", "\xD0\x96", 1902, Place::oneRow, false, 3804},
        {"a character more", "\xD0\x96", 1903, Place::chain, false, 3806},
        {"the longest that is compressed takes 4,096 bytes", "x", 4094, Place::chain, true, 4096},
        {"a longer one is plain", "x", 4095, Place::chain, false, 8190},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto form = jet::formOfMemo(valueOf(c.piece, c.count), true);
        EXPECT_EQ(c.place, form.place);
        EXPECT_EQ(c.compressed, form.compressed);
        EXPECT_EQ(c.bytes, form.bytes);
        EXPECT_EQ(12 + (c.place == Place::inRow ? c.bytes : 0), form.memoCellBytes());
    }
}

} // namespace
