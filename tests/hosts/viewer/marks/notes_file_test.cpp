#include "hosts/viewer/marks/notes_file.h"

#include "support/temporary_folder.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <thread>

namespace viewer {
namespace {

class NotesOfAFile : public testing::Test {
protected:
    static NoteEdit edit(std::uint32_t line, const QString& text)
    {
        const RowIdentity row{"log.txt", line, timeline::noMoment, "0123456789abcdef", {}};
        return {{row, false, {}}, {row, false, text}};
    }

    /// What is kept, as a text for each note.
    static std::vector<std::string> texts(const Notes& notes)
    {
        std::vector<std::string> all;
        for (const Note& note : notes) all.push_back(note.text.toStdString());
        return all;
    }

    static std::string nameOf(const std::string& path)
    {
        return std::filesystem::path(path).filename().string();
    }

    std::vector<std::string> texts() const { return texts(notes.read().notes); }

    TemporaryFolder folder;
    std::string log = folder.write("logs/log.txt", "a line\n");
    std::string own = folder / "own/notes";
    NotesFile notes{log, own};
};

using Texts = std::vector<std::string>;

TEST_F(NotesOfAFile, LieBesideItAndLeaveItAsItIs)
{
    EXPECT_EQ(Texts{}, texts());
    EXPECT_EQ(Texts{"one"}, texts(notes.write({edit(1, "one")}).notes));
    EXPECT_EQ((Texts{"one", "two"}), texts(notes.write({edit(2, "two")}).notes));
    EXPECT_EQ((Texts{"one", "two"}), texts());
    EXPECT_EQ("a line\n", folder.read("logs/log.txt"));
    EXPECT_TRUE(folder.exists("logs/log.txt.notes.json"));
    EXPECT_FALSE(folder.exists("own"));
    EXPECT_TRUE(notes.write({}).sentences.isEmpty());
}

TEST_F(NotesOfAFile, ThatAreAllTakenAwayLeaveNoFile)
{
    notes.write({edit(1, "one")});
    NoteEdit back = edit(1, "one");
    std::swap(back.before, back.after);
    notes.write({back});
    EXPECT_FALSE(folder.exists("logs/log.txt.notes.json"));
    EXPECT_EQ(Texts{}, texts());
}

TEST_F(NotesOfAFile, OfSeveralViewersAreAllKept)
{
    constexpr int viewers = 4;
    constexpr std::uint32_t each = 10;
    std::vector<std::thread> threads;
    for (std::uint32_t viewer = 0; viewer < viewers; ++viewer)
        threads.emplace_back([&, viewer] {
            const NotesFile of(log, own);
            for (std::uint32_t note = 0; note < each; ++note)
                of.write({edit(viewer * each + note, "x")});
        });
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(viewers * each, texts().size());
}

TEST_F(NotesOfAFile, OfBothWhoWroteOneAreKeptAndTold)
{
    notes.write({edit(1, "theirs")});
    const auto result = notes.write({edit(1, "mine")});
    EXPECT_EQ(Texts{"theirs\nmine"}, texts(result.notes));
    ASSERT_EQ(1, result.sentences.size());
    EXPECT_TRUE(result.sentences[0].contains("both texts are kept"));
}

TEST_F(NotesOfAFile, ThatAreDamagedAreToldAndPutAside)
{
    for (const std::string& garbage : {std::string(), std::string("{\"format\""),
                                       std::string(1000, '\0'), std::string(17'000'000, ' ')}) {
        folder.write("logs/log.txt.notes.json", garbage);
        const auto read = notes.read();
        EXPECT_EQ(Texts{}, texts(read.notes));
        ASSERT_EQ(1, read.sentences.size());
        EXPECT_TRUE(read.sentences[0].contains("log.txt.notes.json can't be read"));
        EXPECT_EQ(garbage, folder.read("logs/log.txt.notes.json")) << "reading changes nothing";

        const auto written = notes.write({edit(1, "one")});
        EXPECT_EQ(Texts{"one"}, texts());
        EXPECT_EQ(garbage, folder.read("logs/log.txt.notes.json.broken"));
        EXPECT_TRUE(written.sentences.join(" ").contains("log.txt.notes.json.broken"));
        std::filesystem::remove(folder / "logs/log.txt.notes.json.broken");
    }
    folder.write("logs/log.txt.notes.json", "x");
    folder.write("logs/log.txt.notes.json.broken", "of before");
    notes.write({edit(1, "one")});
    EXPECT_EQ("of before", folder.read("logs/log.txt.notes.json.broken"));
    EXPECT_EQ("x", folder.read("logs/log.txt.notes.json.broken-2"));
}

TEST_F(NotesOfAFile, OfANewerViewerStayAsTheyAre)
{
    const std::string newer = R"({"format": "orvandiag notes", "version": 9})";
    folder.write("logs/log.txt.notes.json", newer);
    EXPECT_TRUE(notes.read().sentences.join(" ").contains("newer viewer"));
    const auto written = notes.write({edit(1, "one")});
    EXPECT_EQ(newer, folder.read("logs/log.txt.notes.json"));
    EXPECT_TRUE(written.sentences.join(" ").contains(QString::fromStdString(own)));
    EXPECT_EQ(Texts{"one"}, texts());
}

TEST_F(NotesOfAFile, AreTheUsersOwnWhereNothingCanBeWrittenBesideIt)
{
    notes.write({edit(1, "beside"), edit(2, "to be taken away")});
    // A folder that bears the name keeps others from it, whoever runs the test.
    std::filesystem::rename(folder / "logs/log.txt.notes.json", folder / "kept");
    folder.makeFolder("logs/log.txt.notes.json/x");
    const auto written = notes.write({edit(3, "own")});
    EXPECT_EQ(Texts{"own"}, texts(written.notes));
    ASSERT_EQ(1, written.sentences.size());
    EXPECT_TRUE(written.sentences[0].contains(QString::fromStdString(notes.own())));

    std::filesystem::remove_all(folder / "logs/log.txt.notes.json");
    std::filesystem::rename(folder / "kept", folder / "logs/log.txt.notes.json");
    EXPECT_EQ((Texts{"beside", "to be taken away", "own"}), texts()) << "both are shown";
    NoteEdit back = edit(2, "to be taken away");
    std::swap(back.before, back.after);
    notes.write({back});
    EXPECT_FALSE(std::filesystem::exists(notes.own())) << "they go beside the log once they can";
    EXPECT_EQ((Texts{"beside", "own"}), texts());
}

TEST_F(NotesOfAFile, OfTheUserThatWereNotReadAreNotTakenAwayByAChangeBesideIt)
{
    const std::string newer = R"({"format": "orvandiag notes", "version": 9})";
    folder.write("own/notes/" + nameOf(notes.own()), newer);
    EXPECT_TRUE(notes.read().sentences.join(" ").contains("newer viewer"));
    EXPECT_EQ(Texts{"one"}, texts(notes.write({edit(1, "one")}).notes));
    EXPECT_EQ(newer, folder.read("own/notes/" + nameOf(notes.own())));
    EXPECT_TRUE(folder.exists("logs/log.txt.notes.json"));

    const std::string damaged = "{\"format\"";
    folder.write("own/notes/" + nameOf(notes.own()), damaged);
    const auto written = notes.write({edit(2, "two")});
    EXPECT_FALSE(std::filesystem::exists(notes.own()));
    EXPECT_EQ(damaged, folder.read("own/notes/" + nameOf(notes.own()) + ".broken"));
    EXPECT_TRUE(written.sentences.join(" ").contains(".broken"));
    EXPECT_EQ((Texts{"one", "two"}), texts());

    std::filesystem::create_symlink(folder / "elsewhere", notes.own());
    notes.write({edit(3, "three")});
    EXPECT_TRUE(std::filesystem::is_symlink(notes.own())) << "one that can't be read stays";
}

TEST_F(NotesOfAFile, OfTheUserThatCanNotBePutAsideStayAndAreTold)
{
    folder.write("own/notes/" + nameOf(notes.own()), "damaged");
    for (int number = 1; number <= 100; ++number)
        folder.write("own/notes/" + nameOf(notes.own()) + ".broken" +
                         (number == 1 ? "" : "-" + std::to_string(number)),
                     "of before");
    const auto written = notes.write({edit(1, "one")});
    EXPECT_EQ("damaged", folder.read("own/notes/" + nameOf(notes.own())));
    EXPECT_TRUE(written.sentences.join(" ").contains(QString::fromStdString(notes.own())));
    EXPECT_EQ(Texts{"one"}, texts());
}

TEST_F(NotesOfAFile, TakenAwayByTheUserAloneStayBesideIt)
{
    notes.write({edit(1, "theirs")});
    const std::string theirs = folder.read("logs/log.txt.notes.json");
    std::filesystem::permissions(folder / "logs", std::filesystem::perms::owner_write,
                                 std::filesystem::perm_options::remove);
    if (std::ofstream(folder / "logs/probe")) GTEST_SKIP() << "this user may write everywhere";
    NoteEdit back = edit(1, "theirs");
    std::swap(back.before, back.after);
    notes.write({back});
    EXPECT_EQ(Texts{}, texts());
    EXPECT_EQ(theirs, folder.read("logs/log.txt.notes.json"));
    std::filesystem::permissions(folder / "logs", std::filesystem::perms::owner_all);
}

TEST_F(NotesOfAFile, BehindALinkAreNeitherReadNorWrittenThere)
{
    folder.write("elsewhere", "precious");
    std::filesystem::create_symlink(folder / "elsewhere", log + ".notes.json");
    EXPECT_TRUE(notes.read().sentences.join(" ").contains("can't be read"));
    notes.write({edit(1, "one")});
    EXPECT_EQ("precious", folder.read("elsewhere"));
    EXPECT_EQ(Texts{"one"}, texts());
}

TEST_F(NotesOfAFile, ThatCanBeKeptNowhereAreTold)
{
    folder.makeFolder("logs/log.txt.notes.json/x");
    folder.write("own", "a file where the folder should be");
    const auto written = notes.write({edit(1, "one")});
    EXPECT_EQ(Texts{"one"}, texts(written.notes)) << "for as long as the viewer is open";
    ASSERT_EQ(1, written.sentences.size());
    EXPECT_TRUE(written.sentences[0].contains("can't be kept"));
}

} // namespace
} // namespace viewer
