#include "backends/site/language/language_catalogue.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "runtime/run_time_error.h"

namespace {

TEST(ParseLanguageCatalogue, GivesTheTextOfEachId)
{
    const auto catalogue = parseLanguageCatalogue("# French\n\n1062 = OK\n1042 = Nom de fichier\n");

    EXPECT_EQ((LanguageCatalogue{{1042, "Nom de fichier"}, {1062, "OK"}}), catalogue);
}

TEST(ParseLanguageCatalogue, ReadsOneLineAsItIsMeant)
{
    struct Case {
        const char* because;
        std::string line;
        LanguageCatalogue expected;
    };
    const Case cases[] = {
        {"nothing is an empty catalogue", "", {}},
        {"a last line needs no end", "7 = a", {{7, "a"}}},
        {"lines may end as on Windows", "7 = a\r\n8 = b\r\n", {{7, "a"}, {8, "b"}}},
        {"editors may put a mark in front",
         "\xEF\xBB\xBF"
         "7 = a",
         {{7, "a"}}},
        {"blanks around id and text are layout", " \t7\t =  a b \t", {{7, "a b"}}},
        {"blanks are not needed", "7=a", {{7, "a"}}},
        {"a blank at an end is written out", "7 = \\sa\\s", {{7, " a "}}},
        {"a text may be a blank alone", "7 = \\s", {{7, " "}}},
        {"line ends, tabs and backslashes too", "7 = a\\r\\nb\\tc\\\\n", {{7, "a\r\nb\tc\\n"}}},
        {"only the first equals sign counts", "7 = a = b", {{7, "a = b"}}},
        {"a number sign inside a text is text", "7 = # 1", {{7, "# 1"}}},
        {"an indented comment is one", "  # 7 = a", {}},
        {"the largest id", "65535 = a", {{65535, "a"}}},
        {"text of any script",
         "7 = 参照(&B)...\xF0\x9F\x93\x81",
         {{7, "参照(&B)...\xF0\x9F\x93\x81"}}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, parseLanguageCatalogue(c.line));
    }
}

TEST(ParseLanguageCatalogue, RefusesABadLineWithItsNumber)
{
    struct Case {
        const char* because;
        std::string line;
    };
    const Case cases[] = {
        {"no equals sign", "1062 OK"},
        {"no id", "= OK"},
        {"an id that is no number", "abc = OK"},
        {"more than a number", "1062a = OK"},
        {"a blank in the number", "10 62 = OK"},
        {"a sign", "+1062 = OK"},
        {"zero", "0 = OK"},
        {"below zero", "-1 = OK"},
        {"past sixteen bits", "65536 = OK"},
        {"past any integer", "99999999999999999999 = OK"},
        {"no text", "1062 ="},
        {"blanks are no text", "1062 =  \t "},
        {"an id a second time", "1 = again"},
        {"an unknown escape", "1062 = a\\x41"},
        {"an escape of nothing", "1062 = a\\"},
        {"a zero byte", std::string("1062 = a\0b", 10)},
        {"a carriage return inside", "1062 = a\rb"},
        {"a lone continuation byte", "1062 = \x80"},
        {"Windows-1252", "1062 = caf\xE9"},
        {"a character cut short", "1062 = \xE3\x81"},
        {"an overlong form", "1062 = \xC0\xAF"},
        {"an overlong form of three bytes", "1062 = \xE0\x80\xAF"},
        {"half a surrogate pair", "1062 = \xED\xA0\x80"},
        {"past the last character", "1062 = \xF4\x90\x80\x80"},
        {"UTF-16", std::string("\xFF\xFE"
                               "1\0",
                               4)},
        {"comments are UTF-8 too", "# caf\xE9"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        try {
            parseLanguageCatalogue("1 = first\n\n" + c.line + "\n4 = fourth\n");
            ADD_FAILURE() << "accepted";
        } catch (const RunTimeError& error) {
            EXPECT_EQ(runTimeErrors::invalidFileFormat, error.number());
            EXPECT_EQ(0u, error.description().find("Line 3 of the language catalogue: "))
                << error.description();
        }
    }
}

TEST(ParseLanguageCatalogue, EitherReadsOrRefusesGarbage)
{
    std::mt19937 random(20051008);
    const std::string alphabet = "0123456789 =\\snrt#\n\r\t\xE3\x81\x82" + std::string(1, '\0');
    int refused = 0;
    for (int round = 0; round < 20000; ++round) {
        std::string bytes(random() % 40, ' ');
        for (char& byte : bytes) byte = alphabet[random() % alphabet.size()];
        try {
            for (const auto& [id, text] : parseLanguageCatalogue(bytes)) {
                ASSERT_GE(id, 1);
                ASSERT_FALSE(text.empty());
            }
        } catch (const RunTimeError& error) {
            ASSERT_EQ(runTimeErrors::invalidFileFormat, error.number());
            ++refused;
        }
    }
    EXPECT_GT(refused, 0);
}

} // namespace
