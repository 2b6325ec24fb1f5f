#include "backends/site/registry/registry_file.h"

#include "runtime/run_time_error.h"
#include "support/temporary_folder.h"
#include "text/utf8.h"

#include <gmock/gmock.h>

#include <random>

namespace {

using testing::ElementsAre;

const std::string head = "Windows Registry Editor Version 5.00\r\n\r\n";
const std::string key = "HKEY_LOCAL_MACHINE\\Software\\Test";

std::vector<std::uint8_t> bytesOf(const std::string& text)
{
    return {text.begin(), text.end()};
}

/// The value that a line behind the test key gives.
RegistryValue valueOf(const std::string& line)
{
    const auto tree = parseRegistryFile(head + "[" + key + "]\r\n" + line + "\r\n");
    const auto& values = tree.find(key)->values();
    return values.empty() ? RegistryValue{-1, {}} : values.front().value;
}

TEST(ParseRegistryFile, ReadsEachKindOfValue)
{
    struct Case {
        const char* because;
        std::string line;
        RegistryValue expected;
    };
    const Case cases[] = {
        {"a text ends in a zero byte", "\"x\"=\"abc\"", {1, bytesOf(std::string("abc\0", 4))}},
        {"the empty text has no bytes", "\"x\"=\"\"", {1, {}}},
        {"backslashes and quotation marks are escaped",
         R"("x"="C:\\Orvan\\ \"a\"")",
         {1, bytesOf(std::string("C:\\Orvan\\ \"a\"\0", 14))}},
        {"a text may hold line ends", "\"x\"=\"a\r\nb\"", {1, bytesOf(std::string("a\r\nb\0", 5))}},
        {"a number, lowest byte first", "\"x\"=dword:0000012c", {4, {0x2C, 1, 0, 0}}},
        {"of fewer digits", "\"x\"=DWORD:f", {4, {15, 0, 0, 0}}},
        {"bytes", "\"x\"=hex:00,fF,7", {3, {0, 255, 7}}},
        {"no bytes", "\"x\"=hex:", {3, {}}},
        {"bytes over several lines", "\"x\"=hex:01,02,\\\r\n  03,\\\r\n  04", {3, {1, 2, 3, 4}}},
        {"a line of bytes may begin behind the backslash", "\"x\"=hex:\\\r\n  01", {3, {1}}},
        {"blanks between them", "\"x\" = hex: 01 , 02 ", {3, {1, 2}}},
        {"an expandable text is UTF-16 in the file",
         "\"x\"=hex(2):25,00,e9,00,00,00",
         {2, bytesOf(std::string("%é\0", 4))}},
        {"a list of texts",
         "\"x\"=hex(7):61,00,00,00,62,00,00,00,00,00",
         {7, bytesOf(std::string("a\0b\0\0", 5))}},
        {"a text in bytes", "\"x\"=hex(1):61,00,00,00", {1, bytesOf(std::string("a\0", 2))}},
        {"without its terminating zero", "\"x\"=hex(1):61,00", {1, bytesOf(std::string("a\0", 2))}},
        {"a text that is its terminating zero", "\"x\"=hex(1):00,00", {1, {}}},
        {"an expandable text that is its terminating zero", "\"x\"=hex(2):00,00", {2, {}}},
        {"an expandable text without any byte", "\"x\"=hex(2):", {2, {}}},
        {"an expandable text without its zero",
         "\"x\"=hex(2):61,00",
         {2, bytesOf(std::string("a\0", 2))}},
        {"a list without texts", "\"x\"=hex(7):00,00", {7, {}}},
        {"in its longer form", "\"x\"=hex(7):00,00,00,00", {7, {}}},
        {"a large number",
         "\"x\"=hex(b):01,00,00,00,00,00,00,80",
         {11, {1, 0, 0, 0, 0, 0, 0, 128}}},
        {"a kind of no name", "\"x\"=hex(ffff0009):aa", {static_cast<int>(0xFFFF0009), {0xAA}}},
        {"a comment behind a value", "\"x\"=dword:1 ; one", {4, {1, 0, 0, 0}}},
        {"a value taken back", "\"x\"=dword:1\r\n\"X\"=-", {-1, {}}},
        {"the last of two counts", "\"x\"=dword:1\r\n\"X\"=dword:2", {4, {2, 0, 0, 0}}},
        {"the default value", "@=\"d\"", {1, bytesOf(std::string("d\0", 2))}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, valueOf(c.line));
    }
}

TEST(ParseRegistryFile, FindsKeysAndValuesWithoutRegardToCase)
{
    const auto tree =
        parseRegistryFile(head + "[hklm\\SOFTWARE\\Größe]\r\n\"Name\"=\"a\"\r\n@=\"d\"\r\n");

    const auto* found = tree.find("HKEY_LOCAL_MACHINE\\software\\grÖße");
    ASSERT_NE(nullptr, found);
    EXPECT_NE(nullptr, found->value("NAME"));
    EXPECT_NE(nullptr, found->value(""));
    EXPECT_EQ(nullptr, found->value("other"));
    EXPECT_NE(nullptr, tree.find("HKLM\\Software")) << "a key above another is one";
    EXPECT_NE(nullptr, tree.find("HKEY_USERS")) << "the hives are always there";
    EXPECT_EQ(nullptr, tree.find("HKLM\\Software\\Größe\\none"));
    EXPECT_EQ(nullptr, tree.find("HKEY_NONE"));
    EXPECT_EQ(nullptr, tree.find(""));
}

TEST(ParseRegistryFile, ReadsEveryEncodingThatRegistriesAreExportedIn)
{
    const std::string text = head + "[" + key + "]\r\n\"Näme\"=\"参\"\r\n";
    std::string swapped;
    const auto little = utf16LittleEndian(text);
    for (std::size_t i = 0; i < little.size(); i += 2) swapped += {little[i + 1], little[i]};

    for (const auto& bytes :
         {text, "\xEF\xBB\xBF" + text, "\xFF\xFE" + little, "\xFE\xFF" + swapped}) {
        const auto tree = parseRegistryFile(bytes);
        ASSERT_NE(nullptr, tree.find(key)->value("NÄME"));
        EXPECT_EQ(bytesOf(std::string("参\0", 4)), tree.find(key)->value("näme")->value.bytes);
    }
}

TEST(ParseRegistryFile, KeepsTheOrderOfKeysAndValues)
{
    const auto tree =
        parseRegistryFile(head + "[HKLM\\b]\n\"z\"=\"\"\n\"a\"=\"\"\n[HKLM\\a]\n[HKLM\\b\\2]\n"
                                 "[HKLM\\b\\1]\n");

    EXPECT_THAT(tree.find("HKLM")->subkeyNames(), ElementsAre("b", "a"));
    EXPECT_THAT(tree.find("HKLM\\b")->subkeyNames(), ElementsAre("2", "1"));
    EXPECT_EQ("z", tree.find("HKLM\\b")->values().front().name);
}

TEST(ParseRegistryFile, RemovesAKeyThatIsTakenBack)
{
    const auto tree =
        parseRegistryFile(head + "[HKLM\\a\\b\\c]\n[HKLM\\ab]\n[-HKLM\\A\\B]\n[-HKLM\\none]\n");

    EXPECT_EQ(nullptr, tree.find("HKLM\\a\\b"));
    EXPECT_NE(nullptr, tree.find("HKLM\\a"));
    EXPECT_THAT(tree.sections(), ElementsAre("HKEY_LOCAL_MACHINE\\ab"));
    const auto emptied = parseRegistryFile(head + "[HKLM\\a]\n[-HKLM]\n");
    EXPECT_THAT(emptied.find("HKLM")->subkeyNames(), testing::IsEmpty());
}

TEST(ParseRegistryFile, RefusesDamageWithTheNumberOfItsLine)
{
    struct Case {
        const char* because;
        std::string line;
    };
    const Case cases[] = {
        {"words", "some words"},
        {"a key without its end", "[HKLM\\Software"},
        {"a hive that is none", "[HKEY_LOCAL_MACHIN\\Software]"},
        {"a key without a name", "[HKLM\\\\Software]"},
        {"a key of one bracket", "["},
        {"a name that is too long", "[HKLM\\" + std::string(256, 'x') + "]"},
        {"a name without its closing mark", "\"x"},
        {"a value without an equals sign", "\"x\" 1"},
        {"a value of nothing", "\"x\"="},
        {"a value of no known form", "\"x\"=12"},
        {"a text without its closing mark", "\"x\"=\"abc"},
        {"a text with a lone backslash", "\"x\"=\"C:\\Orvan\""},
        {"more than a text", "\"x\"=\"a\"b"},
        {"a number of nine digits", "\"x\"=dword:000000001"},
        {"a number without digits", "\"x\"=dword:"},
        {"more than a number", "\"x\"=dword:12g"},
        {"bytes that end in a comma", "\"x\"=hex:01,"},
        {"a byte of three digits", "\"x\"=hex:001"},
        {"a backslash within a line of bytes", "\"x\"=hex:01,\\02"},
        {"a kind without its end", "\"x\"=hex(2:00"},
        {"a single-byte code page", "\"x\"=\"caf\xE9\""},
        {"a zero byte", std::string("\"x\"=\"a\0b\"", 9)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        const auto text = head + "[" + key + "]\r\n\"y\"=\"1\"\r\n" + c.line + "\r\n";
        EXPECT_EQ(runTimeErrors::invalidFileFormat, errorOf([&] { parseRegistryFile(text); }));
        EXPECT_THAT(errorTextOf([&] { parseRegistryFile(text); }),
                    testing::StartsWith("registry.reg line 5: "));
    }
}

TEST(ParseRegistryFile, RefusesWhatIsNoRegistryFile)
{
    for (const auto& bytes :
         {std::string(), std::string("REGEDIT4\r\n"), "x" + head, std::string("\xFF\xFE"),
          "\xFF\xFE" + utf16LittleEndian(head) + "x", head + "\"x\"=\"value before any key\"\r\n",
          head + "[-HKLM\\a]\r\n\"x\"=\"of a removed key\"\r\n"})
        EXPECT_EQ(runTimeErrors::invalidFileFormat, errorOf([&] { parseRegistryFile(bytes); }));
    std::string deep = "[HKLM";
    for (int level = 0; level < 100'000; ++level) deep += "\\a";
    EXPECT_EQ(runTimeErrors::invalidFileFormat,
              errorOf([&] { parseRegistryFile(head + deep + "]"); }));
}

TEST(RegistryFileText, LeavesWhatWasNotChangedAsItWas)
{
    const std::string text = head + "; from the server\r\n"
                                    "[HKEY_LOCAL_MACHINE\\Software\\Test]\r\n"
                                    "@=\"default\"\r\n"
                                    "; its path\r\n"
                                    "\"Path\"=hex(2):43,00,\\\r\n  3a,00,00,00\r\n"
                                    "\"Many\"=hex(7):61,00,00,00,00,00\r\n"
                                    "\"Large\"=hex(b):01,00,00,00,00,00,00,00\r\n"
                                    "\"Odd\"=hex(7):61\r\n"
                                    "\"Number\"=dword:0000001F\r\n"
                                    "\"Lines\"=\"a\nb\"\r\n"
                                    "\r\n"
                                    "[HKEY_CURRENT_USER\\Software]\r\n"
                                    "\"x\"=\"\"\r\n"
                                    "\r\n"
                                    "; the end\r\n";

    EXPECT_EQ(text, registryFileText(parseRegistryFile(text)));
    std::string plain = text;
    for (std::size_t i; (i = plain.find("\r\n")) != std::string::npos;) plain.erase(i, 1);
    EXPECT_EQ(plain, registryFileText(parseRegistryFile(plain)));
}

TEST(RegistryFileText, WritesEachKindOfValueSoThatItReadsBack)
{
    const RegistryValue values[] = {
        {1, {}},
        normalised({1, bytesOf("C:\\Orvan \"x\" é")}),
        normalised({1, bytesOf("two\r\nlines\n")}),
        normalised({1, bytesOf(std::string("zero\0within", 11))}),
        normalised({1, bytesOf("caf\xE9")}),
        {2, bytesOf(std::string("%TEMP%\0", 7))},
        {3, {}},
        {3, std::vector<std::uint8_t>(1000, 0xA5)},
        {4, {1, 2, 3, 4}},
        {4, {1, 2}},
        {7, bytesOf(std::string("a\0b\0\0", 5))},
        {0, {}},
        {-5, {9}},
    };
    RegistryTree tree;
    int number = 0;
    for (const auto& value : values)
        tree.make(key).setValue({"v" + std::to_string(number++), value, {}, {}});
    tree.make(key).setValue({"a \\ \"name\"", values[0], {}, {}});

    const auto text = registryFileText(tree);
    const auto again = parseRegistryFile(text);

    number = 0;
    for (const auto& value : values)
        EXPECT_EQ(value, again.find(key)->value("v" + std::to_string(number++))->value);
    EXPECT_NE(nullptr, again.find(key)->value("a \\ \"name\""));
    EXPECT_EQ(text, registryFileText(again));
    EXPECT_NE(std::string::npos, text.find("\"v8\"=dword:04030201\r\n"));
}

TEST(RegistryFileText, PutsANewKeyBehindItsRelatives)
{
    auto tree = parseRegistryFile(head + "[HKLM\\a]\n[HKLM\\a\\1]\n[HKLM\\b]\n[HKCU\\x]\n");

    tree.make("HKLM\\A\\2\\deep");
    tree.make("HKLM\\c");
    tree.make("HKU\\new");

    EXPECT_THAT(tree.sections(),
                ElementsAre("HKEY_LOCAL_MACHINE\\a", "HKEY_LOCAL_MACHINE\\a\\1",
                            "HKEY_LOCAL_MACHINE\\a\\2\\deep", "HKEY_LOCAL_MACHINE\\b",
                            "HKEY_LOCAL_MACHINE\\c", "HKEY_CURRENT_USER\\x", "HKEY_USERS\\new"));
}

TEST(ParseRegistryFile, AnswersAnyBytesWithATreeOrARefusal)
{
    const std::string pieces[] = {
        head,    "[HKLM\\a]", "[-HKLM\\a]", "\"x\"=",  "@=",
        "\"v\"", "dword:1",   "hex:",       "hex(7):", "01,",
        "02",    "\\",        "\n",         "\r\n",    "\"",
        "-",     "; c",       "]",          "\xE9",    std::string(1, '\0')};
    std::mt19937 random(5);
    for (int round = 0; round < 4000; ++round) {
        std::string text = head;
        for (unsigned count = random() % 30; count > 0; --count) text += pieces[random() % 20];
        const int error = errorOf([&] {
            const auto written = registryFileText(parseRegistryFile(text));
            EXPECT_EQ(written, registryFileText(parseRegistryFile(written))) << text;
        });
        EXPECT_TRUE(error == 0 || error == runTimeErrors::invalidFileFormat) << text;
    }
}

} // namespace
