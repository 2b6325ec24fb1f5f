#include "hosts/viewer/marks/note.h"

#include "runtime/run_time_error.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

namespace viewer {
namespace {

RowIdentity row(std::uint32_t line)
{
    return {"a.txt", line, timeline::dayOf(2025, 2, 20) + 1234, "0123456789abcdef", "a trace"};
}

TEST(Note, IsTheSameBehindAFile)
{
    const Notes notes = {{row(1), true, QStringLiteral("a text\n\u00e4 \"second\" line")},
                         {row(2), false, "x"}};
    Notes read = notesOfJson(toJson(notes, "a.txt"));
    ASSERT_EQ(2u, read.size());
    for (std::size_t note = 0; note < 2; ++note) {
        EXPECT_TRUE(read[note].row.is(notes[note].row));
        EXPECT_TRUE(read[note].says(notes[note]));
        EXPECT_EQ("a trace", read[note].row.trace);
    }
    read = notesOfJson(
        toJson({{{"a.txt", 7, timeline::noMoment, "0123456789abcdef", ""}, true, ""}}, "a.txt"));
    EXPECT_EQ(timeline::noMoment, read.front().row.moment);
}

TEST(Note, OfAFileThatIsNoneIsRefused)
{
    const std::string head = R"({"format": "orvandiag notes", "version": 1, "notes": )";
    const std::string note = R"("file": "a.txt", "line": 1, "bookmark": true, "note": "")";
    const std::string hash = R"(, "hash": "0123456789abcdef")";
    ASSERT_EQ(1u, notesOfJson(QByteArray::fromStdString(head + "[{" + note + hash + "}]}")).size());
    struct Case {
        const char* because;
        std::string json;
        int expected;
    };
    const Case cases[] = {
        {"nothing is in it", "", 5},
        {"it is no JSON", "\x80\x01\x02", 5},
        {"it is cut off", head + "[{", 5},
        {"it is a list", "[1, 2]", 5},
        {"it is JSON of something else", R"({"version": 1, "notes": []})", 5},
        {"it has no version", R"({"format": "orvandiag notes", "notes": []})", 5},
        {"it is newer", R"({"format": "orvandiag notes", "version": 2, "notes": 7})", 321},
        {"its notes are no list", head + "7}", 5},
        {"a note is no object", head + "[7]}", 5},
        {"a note has no hash", head + "[{" + note + "}]}", 5},
        {"a hash is none", head + "[{" + note + R"(, "hash": "../../../../x"}]})", 5},
        {"a line is negative",
         head + R"([{"file": "a", "line": -1, "bookmark": true, "note": "")" + hash + "}]}", 5},
        {"a line is too large",
         head + R"([{"file": "a", "line": 1e300, "bookmark": true, "note": "")" + hash + "}]}", 5},
        {"a time is none", head + "[{" + note + hash + R"(, "time": "soon"}]})", 5},
        {"a day is none", head + "[{" + note + hash + R"(, "time": "2025-13-01T00:00:00.000"}]})",
         5},
        {"a text is a number",
         head + R"([{"file": "a", "line": 1, "bookmark": true, "note": 7)" + hash + "}]}", 5},
        {"it is too deep", std::string(100'000, '['), 5},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.because);
        EXPECT_EQ(one.expected, errorOf([&] { notesOfJson(QByteArray::fromStdString(one.json)); }));
    }
}

TEST(Note, AChangeKeepsWhatOthersHaveChangedMeanwhile)
{
    const Note none{row(1), false, {}};
    const Note marked{row(1), true, {}};
    const Note theirs{row(1), false, "theirs"};
    const Note mine{row(1), false, "mine"};
    struct Case {
        const char* because;
        Notes there;
        NoteEdit edit;
        Notes expected;
        bool bothKept;
    };
    const Case cases[] = {
        {"nothing was there", {}, {none, mine}, {mine}, false},
        {"another row stays",
         {{row(2), true, {}}},
         {none, mine},
         {{row(2), true, {}}, mine},
         false},
        {"a bookmark and a text go together",
         {theirs},
         {none, marked},
         {{row(1), true, "theirs"}},
         false},
        {"what it was before is replaced", {theirs}, {theirs, mine}, {mine}, false},
        {"what it was before is taken away", {marked}, {marked, none}, {}, false},
        {"both wrote a text", {theirs}, {none, mine}, {{row(1), false, "theirs\nmine"}}, true},
        {"both wrote the same", {mine}, {none, mine}, {mine}, false},
        {"a text that was changed is not taken away", {theirs}, {mine, none}, {theirs}, true},
        {"what is gone already stays so", {}, {mine, none}, {}, false},
    };
    for (const Case& one : cases) {
        SCOPED_TRACE(one.because);
        Notes notes = one.there;
        EXPECT_EQ(one.bothKept, apply(notes, one.edit));
        ASSERT_EQ(one.expected.size(), notes.size());
        for (std::size_t note = 0; note < notes.size(); ++note) {
            EXPECT_TRUE(notes[note].row.is(one.expected[note].row));
            EXPECT_TRUE(notes[note].says(one.expected[note])) << notes[note].text.toStdString();
        }
    }
}

} // namespace
} // namespace viewer
