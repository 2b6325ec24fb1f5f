#include "hosts/cli/naming/long_paths.h"

#include "hosts/cli/command.h"

#include <gtest/gtest.h>

namespace cli {
namespace {

TEST(LongPaths, AreThoseThatTheSystemTakesNot)
{
    EXPECT_FALSE(isTooLong(""));
    EXPECT_FALSE(isTooLong("no/such/folder"));
    EXPECT_TRUE(isTooLong(std::string(40'000, 'a')));
}

TEST(LongPaths, AreShownByTheirBeginningAndTheirEnd)
{
    EXPECT_EQ("/srv/site", shortened("/srv/site"));
    EXPECT_EQ(std::string(120, 'a'), shortened(std::string(120, 'a')));
    EXPECT_EQ(std::string(60, 'a') + "..." + std::string(20, 'b'),
              shortened(std::string(60, 'a') + std::string(5000, '/') + std::string(20, 'b')));
    std::string accents;
    for (int at = 0; at < 200; ++at) accents += "\xC3\xA9";
    EXPECT_EQ(accents.substr(0, 120) + "..." + accents.substr(0, 40), shortened(accents))
        << "letters are not cut in the middle";
}

TEST(LongPaths, AreRefusedWithTheirLength)
{
    EXPECT_NO_THROW(requireShortEnough("the site", "/srv/site"));
    try {
        requireShortEnough("the site", std::string(40'000, 'a'));
        ADD_FAILURE() << "nothing was refused";
    } catch (const CommandFailure& failure) {
        EXPECT_EQ("the site has too long a path, 40,000 bytes: " + std::string(60, 'a') + "..." +
                      std::string(20, 'a'),
                  failure.what());
    }
}

} // namespace
} // namespace cli
