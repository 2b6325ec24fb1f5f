#include "backends/common/file_pattern.h"

#include <gtest/gtest.h>

namespace {

TEST(FilePattern, MatchesNamesByThePlatformsRules)
{
    struct Case {
        const char* because;
        const char* pattern;
        const char* name;
        bool matches;
    };
    const Case cases[] = {
        {"case does not count", "HT*.xml", "ht1.XML", true},
        {"nor does it for other letters", "É*.txt", "été.TXT", true},
        {"a star is any text, also none", "HT*.xml", "HT.xml", true},
        {"what comes behind it must fit", "HT*.xml", "HT1.xml.bak", false},
        {"no short names of old", "*.xml", "a.xmlx", false},
        {"stars in a row and inside", "diag_*_2005*.*", "diag_RoCsMgr_20051008_152307.txt", true},
        {"the last place that fits is found", "*a.txt", "aaba.txt", true},
        {"everything", "*", ".hidden", true},
        {"star point star is everything", "*.*", "README", true},
        {"an ending of any kind may be none", "README.*", "readme", true},
        {"also behind marks for none", "a??.*", "a", true},
        {"but a point alone is a point", "a??.", "a", false},
        {"but not a part of the name", "READ.*", "readme", false},
        {"a question mark is one character", "a?c", "abc", true},
        {"of any size", "a?c", "aéc", true},
        {"but no point", "a?c", "a.c", false},
        {"it may be none before a point", "a??.txt", "a.txt", true},
        {"and none at the end", "a??", "a", true},
        {"but not inside", "a?c", "ac", false},
        {"without stars the name is exact", "a.txt", "a.txt", true},
        {"and a longer one is another", "a.txt", "a.txt2", false},
        {"nothing matches nothing", "", "a", false},
        {"a question mark after a star", "*?.log", "x.log", true},
        {"brackets are letters", "[ab]", "a", false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.matches, FilePattern(c.pattern).matches(c.name));
    }
}

TEST(FilePattern, ManyStarsTakeNoMoreThanAMoment)
{
    std::string stars;
    for (int i = 0; i < 50; ++i) stars += "*a";

    EXPECT_FALSE(FilePattern(stars + "b").matches(std::string(4000, 'a')));
}

} // namespace
