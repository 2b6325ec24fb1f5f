#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "backends/site/language/language_catalogue.h"
#include "core/string_table.h"
#include "support/places.h"

namespace {

constexpr std::size_t longestText = 1199;

std::filesystem::path cataloguePath(const std::string& code)
{
    return std::filesystem::path(checkout::data) / "languages" /
           ("ZMKbrandingres_" + code + ".txt");
}

std::size_t leadingBlanks(std::string_view text)
{
    return std::min(text.find_first_not_of(' '), text.size());
}

std::size_t trailingBlanks(std::string_view text)
{
    const auto last = text.find_last_not_of(' ');
    return last == std::string_view::npos ? text.size() : text.size() - last - 1;
}

/// UTF-16 units of a text in UTF-8: one a character, two for a character of four bytes.
std::size_t utf16Length(std::string_view text)
{
    std::size_t units = 0;
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte & 0xC0U) != 0x80) ++units;
        if (byte >= 0xF0) ++units;
    }
    return units;
}

/// Texts of `code` that may read as in English, names apart.
const std::set<int>& cognates(const std::string& code)
{
    static const std::map<std::string, std::set<int>> table = {
        {"DEU", {1057, 1062, 1103, 1120, 1146, 1147}},
        {"ESP", {1001, 1038, 1059, 1102}},
        {"FRA", {1032, 1062, 1082, 1102, 1103, 1146, 1147}},
        {"JPN", {1062}},
    };
    return table.at(code);
}

/// Names of makers, products, logs and files, which no language changes.
const std::vector<std::string> names = {"Kelma", "Orvan", "RoCSMgr", "Windows",
                                        "MMC",   ".CAB",  "32"};
const std::set<int> namesAlone = {1013, 1126};

class ShippedCatalogue : public testing::TestWithParam<const char*> {
protected:
    void SetUp() override
    {
        std::ifstream file(cataloguePath(GetParam()), std::ios::binary);
        ASSERT_TRUE(file) << cataloguePath(GetParam());
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        catalogue = parseLanguageCatalogue(bytes);
    }

    LanguageCatalogue catalogue;
};

class Translation : public ShippedCatalogue {};

TEST_P(ShippedCatalogue, HasExactlyTheIdsOfTheEnglishTable)
{
    std::vector<int> ids;
    for (const auto& [id, text] : catalogue) ids.push_back(id);
    std::vector<int> expected;
    for (int id = firstTextId; id <= lastTextId; ++id) expected.push_back(id);

    EXPECT_EQ(expected, ids);
}

TEST_P(ShippedCatalogue, FitsTheBufferThatTextsAreLoadedInto)
{
    for (const auto& [id, text] : catalogue) EXPECT_LE(utf16Length(text), longestText) << id;
}

TEST_P(ShippedCatalogue, HasTheOuterBlanksOfTheEnglishText)
{
    for (const auto& [id, text] : catalogue) {
        EXPECT_EQ(leadingBlanks(englishText(TextId{id})), leadingBlanks(text))
            << id << ": " << text;
        EXPECT_EQ(trailingBlanks(englishText(TextId{id})), trailingBlanks(text))
            << id << ": " << text;
    }
}

TEST_P(ShippedCatalogue, HasAMnemonicWhereTheEnglishTextHasOne)
{
    for (const auto& [id, text] : catalogue) {
        const auto english = englishText(TextId{id});
        EXPECT_EQ(std::count(english.begin(), english.end(), '&'),
                  std::count(text.begin(), text.end(), '&'))
            << id << ": " << text;
    }
}

TEST_P(ShippedCatalogue, KeepsNames)
{
    for (const auto& [id, text] : catalogue) {
        for (const auto& name : names) {
            if (englishText(TextId{id}).find(name) == std::string_view::npos) continue;
            EXPECT_NE(std::string::npos, text.find(name))
                << id << " lacks " << name << ": " << text;
        }
    }
}

TEST_P(Translation, DiffersFromEnglishButForNamesAndCognates)
{
    for (const auto& [id, text] : catalogue) {
        const bool mayBeTheSame = namesAlone.count(id) != 0 || cognates(GetParam()).count(id) != 0;
        EXPECT_EQ(mayBeTheSame, englishText(TextId{id}) == text) << id << ": " << text;
    }
}

TEST(EnglishCatalogue, IsTheEnglishTable)
{
    std::ifstream file(cataloguePath("ENU"), std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    const auto catalogue = parseLanguageCatalogue(bytes);

    ASSERT_FALSE(catalogue.empty());
    for (const auto& [id, text] : catalogue) EXPECT_EQ(englishText(TextId{id}), text) << id;
}

TEST(LanguageFolder, HoldsTheCataloguesThatAreCheckedHere)
{
    std::set<std::string> found;
    for (const auto& entry :
         std::filesystem::directory_iterator(cataloguePath("ENU").parent_path())) {
        found.insert(entry.path().filename().string());
    }
    std::set<std::string> expected;
    for (const char* code : {"DEU", "ENU", "ESP", "FRA", "JPN"}) {
        expected.insert(cataloguePath(code).filename().string());
    }
    EXPECT_EQ(expected, found);
}

std::string codeOf(const testing::TestParamInfo<const char*>& info)
{
    return info.param;
}

INSTANTIATE_TEST_SUITE_P(Languages, ShippedCatalogue,
                         testing::Values("DEU", "ENU", "ESP", "FRA", "JPN"), codeOf);
INSTANTIATE_TEST_SUITE_P(Languages, Translation, testing::Values("DEU", "ESP", "FRA", "JPN"),
                         codeOf);

} // namespace
