#pragma once

#include "platform/registry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What every Registry promises. A `Machine` has a default constructor that gives an empty
/// HKEY_LOCAL_MACHINE, `Registry& registry()`, and `inOrderOfStore(names)`, keys that were made in
/// that order as the store keeps them.
template <typename Machine>
class RegistryContract : public testing::Test {
protected:
    static constexpr std::uint32_t hive = registryRoot::localMachine;

    Registry& registry() { return machine.registry(); }

    static RegistryValue text(const std::string& bytes)
    {
        return RegistryValue{registryType::text, {bytes.begin(), bytes.end()}};
    }

    RegistryValue stored(const std::string& path, const std::string& name)
    {
        return registry().value(hive, path, name).value_or(RegistryValue{-1, {}});
    }

    Machine machine;
};

TYPED_TEST_SUITE_P(RegistryContract);

TYPED_TEST_P(RegistryContract, AKeyIsMadeWithThoseAboveIt)
{
    auto& registry = this->registry();
    EXPECT_FALSE(registry.keyExists(this->hive, "Software\\A\\B"));
    EXPECT_EQ(false, registry.createKey(this->hive, "Software\\A\\B"));
    EXPECT_EQ(true, registry.createKey(this->hive, "Software\\A\\B"));
    EXPECT_TRUE(registry.keyExists(this->hive, "Software\\A"));
    EXPECT_TRUE(registry.keyExists(this->hive, "Software\\A\\B"));
}

TYPED_TEST_P(RegistryContract, KeyNamesMatchWithoutRegardToCaseAndKeepTheirSpelling)
{
    auto& registry = this->registry();
    registry.createKey(this->hive, "Software\\Alpha");
    EXPECT_EQ(true, registry.createKey(this->hive, "SOFTWARE\\ALPHA"));
    EXPECT_TRUE(registry.keyExists(this->hive, "software\\alpha"));
    EXPECT_EQ((std::vector<std::string>{"Alpha"}), registry.subkeys(this->hive, "SOFTWARE"));
}

TYPED_TEST_P(RegistryContract, LettersBeyondAsciiHaveACaseToo)
{
    auto& registry = this->registry();
    registry.createKey(this->hive, "Caf\u00E9");
    EXPECT_TRUE(registry.keyExists(this->hive, "CAF\u00C9"));
    EXPECT_TRUE(registry.setValue(this->hive, "caf\u00C9", "\u00DC", this->text("x")));
    EXPECT_EQ(this->text(std::string("x\0", 2)), this->stored("Caf\u00E9", "\u00FC"));
}

TYPED_TEST_P(RegistryContract, ATrailingSeparatorMeansNothing)
{
    auto& registry = this->registry();
    EXPECT_EQ(false, registry.createKey(this->hive, "Software\\A\\"));
    EXPECT_TRUE(registry.keyExists(this->hive, "Software\\A"));
    EXPECT_TRUE(registry.setValue(this->hive, "Software\\A\\", "v", this->text("x")));
    EXPECT_EQ(this->text(std::string("x\0", 2)), this->stored("Software\\A", "v"));
}

TYPED_TEST_P(RegistryContract, AMissingKeyHasNeitherValuesNorSubkeys)
{
    auto& registry = this->registry();
    EXPECT_FALSE(registry.value(this->hive, "None", "v").has_value());
    EXPECT_FALSE(registry.subkeys(this->hive, "None").has_value());
    EXPECT_FALSE(registry.setValue(this->hive, "None", "v", this->text("x")));
    EXPECT_FALSE(registry.keyExists(this->hive, "None"));
}

TYPED_TEST_P(RegistryContract, AMissingValueIsNothing)
{
    this->registry().createKey(this->hive, "A");
    EXPECT_FALSE(this->registry().value(this->hive, "A", "v").has_value());
}

TYPED_TEST_P(RegistryContract, ATextGetsItsTerminatingZero)
{
    this->registry().createKey(this->hive, "A");
    struct Case {
        const char* because;
        std::string written;
        std::string expected;
    };
    const Case cases[] = {
        {"the store adds the zero", "text", std::string("text\0", 5)},
        {"a zero that is there is enough", std::string("text\0", 5), std::string("text\0", 5)},
        {"the empty text has no bytes", "", ""},
        {"letters outside ASCII are UTF-8", "\xC3\xA9", std::string("\xC3\xA9\0", 3)},
        {"quotes, separators and line breaks are text", "\"C:\\x\\\"\r\n",
         std::string("\"C:\\x\\\"\r\n\0", 10)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_TRUE(this->registry().setValue(this->hive, "A", "v", this->text(c.written)));
        EXPECT_EQ(this->text(c.expected), this->stored("A", "v"));
    }
}

TYPED_TEST_P(RegistryContract, EveryKindOfTextEndsInAZeroAndIsWithoutBytesWhenEmpty)
{
    auto& registry = this->registry();
    registry.createKey(this->hive, "A");
    for (const int type : {registryType::text, registryType::expandableText, registryType::texts}) {
        SCOPED_TRACE(type);
        EXPECT_TRUE(registry.setValue(this->hive, "A", "v", {type, {'a'}}));
        EXPECT_EQ((RegistryValue{type, {'a', 0}}), this->stored("A", "v"));
        EXPECT_TRUE(registry.setValue(this->hive, "A", "v", {type, {0}}));
        EXPECT_EQ((RegistryValue{type, {}}), this->stored("A", "v"));
    }
    EXPECT_TRUE(registry.setValue(this->hive, "A", "v", {registryType::texts, {0, 0}}));
    EXPECT_EQ((RegistryValue{registryType::texts, {}}), this->stored("A", "v"));
}

TYPED_TEST_P(RegistryContract, BytesAndNumbersComeBackAsWritten)
{
    auto& registry = this->registry();
    registry.createKey(this->hive, "A");
    const RegistryValue bytes{registryType::bytes, {0x55, 0x00, 0xFF, 0x0A}};
    const RegistryValue none{registryType::bytes, {}};
    const RegistryValue number{registryType::number, {0xFE, 0xFF, 0xFF, 0xFF}};
    EXPECT_TRUE(registry.setValue(this->hive, "A", "bytes", bytes));
    EXPECT_TRUE(registry.setValue(this->hive, "A", "none", none));
    EXPECT_TRUE(registry.setValue(this->hive, "A", "number", number));
    EXPECT_EQ(bytes, this->stored("A", "bytes"));
    EXPECT_EQ(none, this->stored("A", "none"));
    EXPECT_EQ(number, this->stored("A", "number"));
}

TYPED_TEST_P(RegistryContract, AValueIsReplacedWithItsType)
{
    auto& registry = this->registry();
    registry.createKey(this->hive, "A");
    registry.setValue(this->hive, "A", "Name", this->text("x"));
    const RegistryValue number{registryType::number, {1, 0, 0, 0}};
    EXPECT_TRUE(registry.setValue(this->hive, "A", "NAME", number));
    EXPECT_EQ(number, this->stored("A", "name"));
}

TYPED_TEST_P(RegistryContract, SubkeysComeInTheOrderOfTheStore)
{
    auto& registry = this->registry();
    for (const char* name : {"c", "a", "b"})
        registry.createKey(this->hive, std::string("Top\\") + name + "\\below");
    EXPECT_EQ(this->machine.inOrderOfStore({"c", "a", "b"}), registry.subkeys(this->hive, "Top"));
    EXPECT_EQ((std::vector<std::string>{}), registry.subkeys(this->hive, "Top\\a\\below"));
    EXPECT_EQ((std::vector<std::string>{"Top"}), registry.subkeys(this->hive, ""));
}

TYPED_TEST_P(RegistryContract, AnotherHiveHasNothing)
{
    constexpr std::uint32_t currentUser = 0x80000001;
    this->registry().createKey(this->hive, "A");
    EXPECT_FALSE(this->registry().keyExists(currentUser, "A"));
    EXPECT_FALSE(this->registry().createKey(currentUser, "B").has_value());
    EXPECT_FALSE(this->registry().setValue(currentUser, "A", "v", this->text("x")));
}

REGISTER_TYPED_TEST_SUITE_P(RegistryContract, AKeyIsMadeWithThoseAboveIt,
                            KeyNamesMatchWithoutRegardToCaseAndKeepTheirSpelling,
                            LettersBeyondAsciiHaveACaseToo, ATrailingSeparatorMeansNothing,
                            AMissingKeyHasNeitherValuesNorSubkeys, AMissingValueIsNothing,
                            ATextGetsItsTerminatingZero,
                            EveryKindOfTextEndsInAZeroAndIsWithoutBytesWhenEmpty,
                            BytesAndNumbersComeBackAsWritten, AValueIsReplacedWithItsType,
                            SubkeysComeInTheOrderOfTheStore, AnotherHiveHasNothing);
