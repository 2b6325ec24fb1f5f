#include "runtime/dictionary.h"

#include "support/error_of.h"

#include <gtest/gtest.h>

namespace {

using Keys = std::vector<std::string>;

TEST(Dictionary, KeepsKeysInTheOrderOfTheirComing)
{
    Dictionary<int> dictionary;
    dictionary.add("b", 1);
    dictionary.add("a", 2);
    dictionary.item("c") = 3;
    dictionary.item("b") = 4;
    EXPECT_EQ((Keys{"b", "a", "c"}), dictionary.keys());
    EXPECT_EQ(3u, dictionary.count());
    EXPECT_EQ(4, *dictionary.find("b"));
}

TEST(Dictionary, RefusesAKeyTwiceAndKeepsTheFirstItem)
{
    Dictionary<int> dictionary;
    dictionary.add("key", 1);
    EXPECT_EQ(457, errorOf([&] { dictionary.add("key", 2); }));
    EXPECT_EQ(1, dictionary.item("key"));
    EXPECT_EQ(1u, dictionary.count());
}

TEST(Dictionary, TellsCapitalsFromSmallLetters)
{
    Dictionary<int> dictionary;
    dictionary.add("key", 1);
    EXPECT_FALSE(dictionary.exists("KEY"));
    dictionary.add("KEY", 2);
    EXPECT_EQ(1, dictionary.item("key"));
}

TEST(Dictionary, MakesAnEmptyEntryWhereAMissingKeyIsRead)
{
    Dictionary<std::string> dictionary;
    EXPECT_EQ("", dictionary.item("missing"));
    EXPECT_TRUE(dictionary.exists("missing"));
}

TEST(Dictionary, FindsWithoutMakingAnEntry)
{
    const Dictionary<std::string> dictionary;
    EXPECT_EQ(nullptr, dictionary.find("missing"));
    EXPECT_EQ(0u, dictionary.count());
}

TEST(Dictionary, KeepsTheOrderOfTheOthersWhenAKeyGoes)
{
    Dictionary<int> dictionary;
    for (const char* key : {"a", "b", "c", "d"}) dictionary.add(key, key[0]);
    dictionary.remove("b");
    EXPECT_EQ((Keys{"a", "c", "d"}), dictionary.keys());
    EXPECT_EQ('a', dictionary.item("a"));
    EXPECT_EQ('c', dictionary.item("c"));
    EXPECT_EQ('d', dictionary.item("d"));

    dictionary.add("b", 'B');
    EXPECT_EQ((Keys{"a", "c", "d", "b"}), dictionary.keys());
    EXPECT_EQ('B', dictionary.item("b"));
}

TEST(Dictionary, RaisesElementNotFoundForTheRemovalOfAMissingKey)
{
    Dictionary<int> dictionary;
    dictionary.add("a", 1);
    EXPECT_EQ(32811, errorOf([&] { dictionary.remove("A"); }));
    EXPECT_EQ(1u, dictionary.count());
}

TEST(Dictionary, TakesTheEmptyTextAsAKey)
{
    Dictionary<int> dictionary;
    dictionary.add("", 7);
    EXPECT_TRUE(dictionary.exists(""));
    dictionary.remove("");
    EXPECT_EQ(0u, dictionary.count());
}

} // namespace

TEST(Dictionary, HoldsTruthValues)
{
    Dictionary<bool> ticks;
    ticks.item("GA - Trace") = true;
    ticks.item("GA - Trace") = false;
    EXPECT_FALSE(ticks.item("GA - Trace"));
    EXPECT_EQ(1U, ticks.count());
}
