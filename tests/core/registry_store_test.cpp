#include "core/registry_store.h"

#include "core/tool_context.h"
#include "support/test_tool.h"

#include <gtest/gtest.h>

namespace {

constexpr std::uint32_t hive = registryRoot::localMachine;
const std::string key = "Software\\Test";

using Bytes = std::vector<std::uint8_t>;

RegistryValue stored(int type, std::size_t size, std::uint8_t byte = 'x')
{
    return RegistryValue{type, Bytes(size, byte)};
}

std::string textFrom(TestTool& tool, const std::string& path, const std::string& name)
{
    const RegistryData data = getRegistryValue(tool.context, hive, path, name, registryType::text,
                                               std::string("default"));
    return std::get<std::string>(data);
}

} // namespace

TEST(RegistryKeyExists, TellsWhetherTheKeyOpens)
{
    TestTool tool;
    tool.registry.withKey(key).closed("Software\\Closed");
    EXPECT_TRUE(registryKeyExists(tool.context, hive, key));
    EXPECT_FALSE(registryKeyExists(tool.context, hive, "Software\\None"));
    EXPECT_FALSE(registryKeyExists(tool.context, hive, "Software\\Closed"));
}

TEST(CreateRegistryKey, TellsWhetherTheKeyExisted)
{
    TestTool tool;
    EXPECT_FALSE(createRegistryKey(tool.context, hive, key));
    EXPECT_TRUE(createRegistryKey(tool.context, hive, key));
    EXPECT_TRUE(tool.registry.keyExists(hive, key));
}

TEST(CreateRegistryKey, RaisesItsOwnTextWhereNoKeyCanBeMade)
{
    TestTool tool;
    tool.registry.readOnly("Software");
    const auto create = [&] { createRegistryKey(tool.context, hive, key); };
    EXPECT_EQ(1001, errorOf(create));
    EXPECT_EQ("Unable to create the registry key", errorTextOf(create));
}

TEST(GetRegistryValue, ReadsATextWithoutItsLastByte)
{
    struct Case {
        const char* because;
        RegistryValue value;
        std::string expected;
    };
    const Case cases[] = {
        {"the terminating zero is no part of the text", {registryType::text, {'a', 'b', 0}}, "ab"},
        {"one byte is that byte", {registryType::bytes, {'a'}}, "a"},
        {"no byte is the empty text", {registryType::text, {}}, ""},
        {"the last byte goes whatever it is", {registryType::bytes, {'a', 'b', 'c'}}, "ab"},
        {"the stored type does not matter", {registryType::number, {'a', 'b', 'c', 0}}, "abc"},
        {"the longest text fills the buffer", stored(registryType::bytes, 1024),
         std::string(1023, 'x')},
        {"a byte more is too much", stored(registryType::bytes, 1025), "default"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        tool.registry.withValue(key, "v", c.value);
        EXPECT_EQ(c.expected, textFrom(tool, key, "v"));
    }
}

TEST(GetRegistryValue, ATextStoredWithATerminatingZeroReadsBackWithoutIt)
{
    TestTool tool;
    tool.registry.withText(key, "v", "C:\\Orvan");
    ASSERT_EQ(0, tool.registry.value(hive, key, "v")->bytes.back());
    EXPECT_EQ("C:\\Orvan", textFrom(tool, key, "v"));
    EXPECT_EQ("C:\\Orvan", getRegistryText(tool.context, key, "v"));
}

TEST(GetRegistryValue, ReadsBytesUpToItsBuffer)
{
    TestTool tool;
    tool.registry.withValue(key, "few", {registryType::bytes, {1, 2, 0}})
        .withValue(key, "none", {registryType::bytes, {}})
        .withValue(key, "most", stored(registryType::bytes, 4096))
        .withValue(key, "tooMany", stored(registryType::bytes, 4097))
        .withText(key, "text", "ab");
    const auto bytes = [&](const char* name) {
        return std::get<Bytes>(
            getRegistryValue(tool.context, hive, key, name, registryType::bytes, Bytes{99}));
    };
    EXPECT_EQ((Bytes{1, 2, 0}), bytes("few"));
    EXPECT_EQ(Bytes{}, bytes("none"));
    EXPECT_EQ(Bytes(4096, 'x'), bytes("most"));
    EXPECT_EQ(Bytes{99}, bytes("tooMany"));
    EXPECT_EQ((Bytes{'a', 'b', 0}), bytes("text"));
    EXPECT_EQ(Bytes{99}, bytes("missing"));
}

TEST(GetRegistryValue, ReadsANumberOfUpToFourBytes)
{
    TestTool tool;
    tool.registry.withNumber(key, "number", -2)
        .withValue(key, "four", {registryType::bytes, {1, 2, 3, 4}})
        .withValue(key, "two", {registryType::bytes, {1, 2}})
        .withValue(key, "five", {registryType::bytes, {1, 2, 3, 4, 5}});
    EXPECT_EQ(-2, getRegistryNumber(tool.context, key, "number", 7));
    EXPECT_EQ(0x04030201, getRegistryNumber(tool.context, key, "four", 7));
    EXPECT_EQ(0x0201, getRegistryNumber(tool.context, key, "two", 7));
    EXPECT_EQ(7, getRegistryNumber(tool.context, key, "five", 7));
    EXPECT_EQ(7, getRegistryNumber(tool.context, key, "missing", 7));
    EXPECT_EQ(0, getRegistryNumber(tool.context, "None", "number"));
}

TEST(GetRegistryValue, AMissingKeyOrValueGivesTheDefault)
{
    TestTool tool;
    tool.registry.withKey(key).closed("Closed");
    EXPECT_EQ("default", textFrom(tool, key, "v"));
    EXPECT_EQ("default", textFrom(tool, "None", "v"));
    EXPECT_EQ("default", textFrom(tool, "Closed", "v"));
    EXPECT_EQ("", getRegistryText(tool.context, "None", "v"));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(
        getRegistryValue(tool.context, hive, "None", "v", registryType::text, {})));
}

TEST(GetRegistryValue, AnUnsupportedTypeRaises1001WhenTheKeyOpens)
{
    TestTool tool;
    tool.registry.withText(key, "v", "x");
    for (const int type : {0, 2, 5, 7, 11, -1}) {
        const auto get = [&] {
            getRegistryValue(tool.context, hive, key, "v", type, std::string());
        };
        EXPECT_EQ(1001, errorOf(get)) << type;
        EXPECT_EQ("Unsupported value type", errorTextOf(get)) << type;
    }
    EXPECT_EQ(
        0, errorOf([&] { getRegistryValue(tool.context, hive, "None", "v", 2, std::string()); }));
}

TEST(SetRegistryValue, WritesEachTypeAsItsBytes)
{
    struct Case {
        const char* because;
        int type;
        RegistryData data;
        Bytes expected;
    };
    const Case cases[] = {
        {"the store adds the zero that is not counted",
         registryType::text,
         std::string("ab"),
         {'a', 'b', 0}},
        {"an empty text has no bytes", registryType::text, std::string(), {}},
        {"a number becomes its text", registryType::text, std::int32_t{-12}, {'-', '1', '2', 0}},
        {"nothing is the empty text", registryType::text, {}, {}},
        {"bytes are written as they are", registryType::bytes, Bytes{0, 255, 7}, {0, 255, 7}},
        {"no bytes are written too", registryType::bytes, Bytes{}, {}},
        {"a number has its lowest byte first",
         registryType::number,
         std::int32_t{-2},
         {254, 255, 255, 255}},
        {"a text becomes its number", registryType::number, std::string("258"), {2, 1, 0, 0}},
        {"nothing is zero", registryType::number, {}, {0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        tool.registry.withKey(key);
        setRegistryValue(tool.context, hive, key, "v", c.type, c.data);
        ASSERT_TRUE(tool.registry.has(key, "v"));
        EXPECT_EQ((RegistryValue{c.type, c.expected}), *tool.registry.value(hive, key, "v"));
    }
}

TEST(SetRegistryValue, WhatCannotBeConvertedRaisesAndWritesNothing)
{
    struct Case {
        const char* because;
        int type;
        RegistryData data;
        int error;
    };
    const Case cases[] = {
        {"a text that is no number", registryType::number, std::string("many"), 13},
        {"the empty text is no number", registryType::number, std::string(), 13},
        {"a number past 32 bits", registryType::number, std::string("3000000000"), 6},
        {"bytes are no number", registryType::number, Bytes{1}, 13},
        {"bytes are no text", registryType::text, Bytes{1}, 13},
        {"a text is no array of bytes", registryType::bytes, std::string("x"), 13},
        {"nor is nothing", registryType::bytes, {}, 13},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        TestTool tool;
        tool.registry.withKey(key);
        EXPECT_EQ(c.error,
                  errorOf([&] { setRegistryValue(tool.context, hive, key, "v", c.type, c.data); }));
        EXPECT_TRUE(tool.registry.written().empty());
    }
}

TEST(SetRegistryValue, AnUnsupportedTypeWritesNothingAndRaisesNothing)
{
    TestTool tool;
    tool.registry.withKey(key);
    for (const int type : {0, 2, 5, 7, -1})
        setRegistryValue(tool.context, hive, key, "v", type, std::string("x"));
    EXPECT_TRUE(tool.registry.written().empty());
    EXPECT_FALSE(tool.registry.has(key, "v"));
}

TEST(SetRegistryValue, AMissingKeyIsNeitherMadeNorAnError)
{
    TestTool tool;
    setRegistryValue(tool.context, hive, key, "v", registryType::text, std::string("x"));
    setRegistryValue(tool.context, hive, key, "v", registryType::number, std::string("no number"));
    EXPECT_FALSE(tool.registry.keyExists(hive, key));
}

TEST(SetRegistryValue, AKeyThatMayNotBeWrittenStaysAsItIs)
{
    TestTool tool;
    tool.registry.withText(key, "v", "old").readOnly(key);
    setRegistryValue(tool.context, hive, key, "v", registryType::text, std::string("new"));
    EXPECT_EQ("old", tool.registry.text(key, "v"));
}

TEST(SetRegistryValue, WhatWasWrittenReadsBack)
{
    TestTool tool;
    tool.registry.withKey(key);
    for (const std::string& text :
         {std::string("x"), std::string(1023, 'y'), std::string("\xC3\xA9"), std::string()}) {
        setRegistryValue(tool.context, hive, key, "v", registryType::text, text);
        EXPECT_EQ(text, textFrom(tool, key, "v"));
    }
    setRegistryValue(tool.context, hive, key, "v", registryType::text, std::string(1024, 'y'));
    EXPECT_EQ("default", textFrom(tool, key, "v"));
}

TEST(EnumRegistryKeys, GivesEveryNameOf250Subkeys)
{
    TestTool tool;
    for (int number = 0; number < 250; ++number)
        tool.registry.withKey(key + "\\Sub" + std::to_string(number));
    const KeyNames names = enumRegistryKeys(tool.context, hive, key);
    EXPECT_EQ(0, names.lowerBound());
    ASSERT_EQ(249, names.upperBound());
    EXPECT_EQ("Sub0", names.at(0));
    EXPECT_EQ("Sub249", names.at(249));
    EXPECT_EQ(9, errorOf([&] { names.at(250); }));
    EXPECT_EQ(9, errorOf([&] { names.at(-1); }));
}

TEST(EnumRegistryKeys, AKeyWithoutSubkeysGivesOneElementOf260Blanks)
{
    TestTool tool;
    tool.registry.withKey(key);
    const KeyNames names = enumRegistryKeys(tool.context, hive, key);
    EXPECT_EQ(0, names.lowerBound());
    ASSERT_EQ(0, names.upperBound());
    EXPECT_EQ(std::string(260, ' '), names.at(0));
}

TEST(EnumRegistryKeys, AMissingKeyGivesAnArrayWithoutBounds)
{
    TestTool tool;
    const KeyNames names = enumRegistryKeys(tool.context, hive, key);
    EXPECT_EQ(9, errorOf([&] { names.lowerBound(); }));
    EXPECT_EQ(9, errorOf([&] { names.upperBound(); }));
    EXPECT_EQ(9, errorOf([&] { names.at(0); }));
}

TEST(EnumRegistryKeys, AnEmptyPathListsTheHiveItself)
{
    TestTool tool;
    tool.registry.withKey("Software\\Below").withKey("System");
    const KeyNames names = enumRegistryKeys(tool.context, hive, "");
    ASSERT_EQ(1, names.upperBound());
    EXPECT_EQ("Software", names.at(0));
    EXPECT_EQ("System", names.at(1));
}

TEST(EnumRegistryKeys, StopsAtANameThatItsBufferCannotHold)
{
    TestTool tool;
    tool.registry.withKey("Top\\first").withKey("Top\\" + std::string(260, 'n')).withKey("Top\\z");
    EXPECT_EQ(0, enumRegistryKeys(tool.context, hive, "Top").upperBound());

    TestTool other;
    other.registry.withKey("Top\\" + std::string(259, 'n')).withKey("Top\\z");
    EXPECT_EQ(1, enumRegistryKeys(other.context, hive, "Top").upperBound());
}
