#include "tracelines/trace_line_format.h"

#include <gtest/gtest.h>

#include <random>

namespace {

/// What a line becomes; "no line" for one that is none.
std::string formatted(const std::string& line, LogFields fields = LogFields::basic)
{
    std::string text;
    return appendFormattedTraceLine(line, fields, text) ? text : "no line";
}

TEST(AppendFormattedTraceLine, FormatsABasicLine)
{
    struct Case {
        const char* because;
        std::string line;
        std::string expected;
    };
    const Case cases[] = {
        {"the common case", "15:23:07:123,Conv,1234,CallFlow,7,Call answered",
         "15:23:07:123 (Conv,1234,CallFlow,7) Call answered"},
        {"a time with its date", "2005-10-08 15:23:07,Conv,1,X,0,A",
         "2005-10-08 15:23:07 (Conv,1,X,0) A"},
        {"commas belong to the trace", "15:23:07:123,Conv,1,X,0,a,b,,c",
         "15:23:07:123 (Conv,1,X,0) a,b,,c"},
        {"a trace may be empty", "15:23:07:123,Conv,1,X,0,", "15:23:07:123 (Conv,1,X,0) "},
        {"so may source and component", "15:23:07:123,,1,,0,a", "15:23:07:123 (,1,,0) a"},
        {"numbers may have a sign and blanks", "15:23:07:123,S, -1 ,X,+2,a",
         "15:23:07:123 (S, -1 ,X,+2) a"},
        {"bytes of a code page stay", "15:23:07:123,S,1,X,0,caf\xE9",
         "15:23:07:123 (S,1,X,0) caf\xE9"},
        {"a trace that looks formatted", "15:23:07:123,S,1,X,0, (S,1,X,0) a",
         "15:23:07:123 (S,1,X,0)  (S,1,X,0) a"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.expected, formatted(c.line));
    }
}

TEST(AppendFormattedTraceLine, FormatsAnExtendedLine)
{
    const std::string id31(31, 'i');
    const std::string id32(32, 'i');
    const auto line = [](const std::string& callId) {
        return "15:23:07:123,Conv,1,12,3," + callId + ",CallFlow,7,a,b";
    };

    EXPECT_EQ("15:23:07:123 (Conv,1,CallFlow,7) a,b", formatted(line(""), LogFields::extended));
    EXPECT_EQ("15:23:07:123 (Conv,1,CallFlow,7) a,b", formatted(line(id31), LogFields::extended));
    EXPECT_EQ("15:23:07:123 (Conv,1,CallFlow,7) " + id32 + ": a,b",
              formatted(line(id32), LogFields::extended));
}

TEST(AppendFormattedTraceLine, LeavesAFormattedLineAsItIs)
{
    for (const auto fields : {LogFields::basic, LogFields::extended})
        for (const char* line :
             {"15:23:07:123 (Conv,1234,CallFlow,7) Call answered",
              "2005-10-08 15:23:07 (Conv,1,X,0) A", "15:23:07:123 (Conv,1,X,0) ",
              "15:23:07:123 (Conv,1,X,0)", "15:23:07:123 (Conv,-1,a (b,0) a,b,c,d,e"})
            EXPECT_EQ(line, formatted(line, fields));
}

TEST(AppendFormattedTraceLine, RefusesAnyOtherLine)
{
    struct Case {
        const char* because;
        std::string line;
    };
    const Case cases[] = {
        {"nothing", ""},
        {"words", "this is not a line of a log"},
        {"a field too few", "15:23:07:123,Conv,1,X,0"},
        {"no time", ",Conv,1,X,0,a"},
        {"half a time", "15:23:07,Conv,1,X,0,a"},
        {"letters in the time", "15:23:0x:123,Conv,1,X,0,a"},
        {"a date alone", "2005-10-08,Conv,1,X,0,a"},
        {"another date form", "10/08/2005 15:23:07,Conv,1,X,0,a"},
        {"a number that is none", "15:23:07:123,Conv,one,X,0,a"},
        {"no number", "15:23:07:123,Conv,,X,0,a"},
        {"a sign alone", "15:23:07:123,Conv,-,X,0,a"},
        {"a level that is none", "15:23:07:123,Conv,1,X,high,a"},
        {"something behind the time", "15:23:07:1234,Conv,1,X,0,a"},
        {"a formatted line without its parenthesis", "15:23:07:123 (Conv,1,X,0 a"},
        {"a formatted line with a field too few", "15:23:07:123 (Conv,1,X) a"},
        {"no blank behind the parenthesis", "15:23:07:123 (Conv,1,X,0)a"},
        {"a time and nothing else", "15:23:07:123"},
        {"a long time and nothing else", "2005-10-08 15:23:07"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ("no line", formatted(c.line));
        EXPECT_EQ("no line", formatted(c.line, LogFields::extended));
    }
    EXPECT_EQ("no line", formatted("15:23:07:123,Conv,1,X,0,basic", LogFields::extended));
}

TEST(AppendFormattedTraceLine, TakesNoMoreThan510Bytes)
{
    const std::string start = "15:23:07:123,Conv,1,X,0,";
    const std::string at = start + std::string(510 - start.size(), 'x');

    EXPECT_NE("no line", formatted(at));
    EXPECT_EQ("no line", formatted(at + "x"));
}

TEST(AppendFormattedTraceLine, AppendsAndLeavesTheTextAloneOtherwise)
{
    std::string text = "before ";

    EXPECT_FALSE(appendFormattedTraceLine("15:23:07:123,Conv,1,X", LogFields::basic, text));
    EXPECT_EQ("before ", text);
    EXPECT_TRUE(appendFormattedTraceLine("15:23:07:123,Conv,1,X,0,a", LogFields::basic, text));
    EXPECT_EQ("before 15:23:07:123 (Conv,1,X,0) a", text);
}

TEST(AppendFormattedTraceLine, AnswersAnyBytes)
{
    const std::string pieces[] = {"15:23:07:123",
                                  "2005-10-08 15:23:07",
                                  ",",
                                  " (",
                                  ")",
                                  "1",
                                  "S",
                                  std::string(1, '\0'),
                                  "\xFF",
                                  " "};
    std::mt19937 random(13);
    for (int round = 0; round < 20000; ++round) {
        std::string line = pieces[random() % 3];
        for (unsigned count = random() % 16; count > 0; --count) line += pieces[random() % 10];
        for (const auto fields : {LogFields::basic, LogFields::extended}) {
            const auto text = formatted(line, fields);
            if (text != "no line") {
                EXPECT_EQ(text, formatted(text, fields)) << line;
            }
        }
    }
}

TEST(TimeOfSoundTraceLine, IsSureOfPlainLinesAlone)
{
    struct Case {
        const char* because;
        LogFields fields;
        std::string line;
        std::string time;
    };
    const Case cases[] = {
        {"a basic line", LogFields::basic, "15:23:07:123,S,1,X,0,a", "15:23:07:123"},
        {"a line with a date", LogFields::basic, "2005-10-08 15:23:07,S,1,X,0,a",
         "2005-10-08 15:23:07"},
        {"an extended line", LogFields::extended, "15:23:07:123,S,1,t,p,c,X,0,a", "15:23:07:123"},
        {"the largest numbers", LogFields::basic, "15:23:07:123,S,999999999,X,9999,",
         "15:23:07:123"},
        {"a number that may be too large", LogFields::basic, "15:23:07:123,S,1000000000,X,0,a", ""},
        {"a level that may be too large", LogFields::basic, "15:23:07:123,S,1,X,10000,a", ""},
        {"a sign", LogFields::basic, "15:23:07:123,S,-1,X,0,a", ""},
        {"a blank", LogFields::basic, "15:23:07:123,S,1,X, 0,a", ""},
        {"no number", LogFields::basic, "15:23:07:123,S,,X,0,a", ""},
        {"a formatted line", LogFields::basic, "15:23:07:123 (S,1,X,0) a", ""},
        {"a basic line where lines are extended", LogFields::extended, "15:23:07:123,S,1,X,0,a",
         ""},
        {"no line at all", LogFields::basic, "garbage", ""},
        {"a line past the limit", LogFields::basic, "15:23:07:123,S,1,X,0," + std::string(510, 'a'),
         ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.because);
        EXPECT_EQ(c.time, timeOfSoundTraceLine(c.line, c.fields));
    }
}

TEST(TimeOfSoundTraceLine, KeepsItsWordForAnyBytes)
{
    std::mt19937 random(4711);
    const std::string plain = "15:23:07:123,Conv,1234,CallFlow,7,text";
    const std::string bytes = "0123456789,:-+ ()x\xE9";
    int sure = 0;
    for (int round = 0; round < 50'000; ++round) {
        std::string line = plain;
        for (unsigned change = random() % 4; change > 0; --change)
            line[random() % line.size()] = bytes[random() % bytes.size()];
        const std::string time(timeOfSoundTraceLine(line, LogFields::basic));
        if (time.empty()) continue;
        ++sure;
        EXPECT_EQ(0U, formatted(line).rfind(time + " (", 0)) << line;
    }
    EXPECT_GT(sure, 10'000);
}

} // namespace
