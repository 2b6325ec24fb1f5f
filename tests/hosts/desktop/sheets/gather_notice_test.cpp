#include "hosts/desktop/sheets/gather_notice.h"

#include "hosts/common/gather/gather_sentences.h"
#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"
#include "system/file_descriptor.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QTimer>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

TEST(GatherNotice, HasEverySentenceInTheWindowsOwnTexts)
{
    const std::vector<std::string> all(std::begin(gatherSentences::all),
                                       std::end(gatherSentences::all));
    EXPECT_THAT(translatedGatherSentences(), testing::UnorderedElementsAreArray(all));
}

/// A person who gathers, and reads what stands beside the required texts.
struct GatherTold : testing::Test {
    OpenProgram shown{20'000};
    std::string target = shown.server.folder() / "gathered";

    void begin()
    {
        fs::create_directories(target);
        person::press(QKeySequence("Ctrl+5"));
        person::pickNext(target);
        person::clickButton(shown.sheet(), "Browse...");
    }

    void frame(const char* date)
    {
        person::clickButton(shown.sheet(), "Process logs over specified time frame");
        person::clickButton(shown.sheet(), "Next >");
        person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::date), date);
        person::typeInto(OpenProgram::picker(shown.sheet(), MomentField::Part::time), "8:00 AM");
        person::clickButton(shown.sheet(), "Next >");
    }

    /// Waits for the last page, looks at its required text, and gives what is said beside it.
    std::string end()
    {
        const auto* summary = shown.sheet().findChild<QPlainTextEdit*>();
        EXPECT_TRUE(waitUntil(
            [&] {
                summary = shown.sheet().findChild<QPlainTextEdit*>();
                return summary && summary->isVisible();
            },
            20'000));
        if (!summary) return "no last page";
        EXPECT_THAT(summary->toPlainText().toStdString(),
                    HasSubstr("The specified logs have been placed in the following directory:"));
        const std::string said = shown.sheet().findChild<NoticeBar*>()->sentence().toStdString();
        person::clickButton(shown.sheet(), "Finish");
        return said;
    }
};

TEST_F(GatherTold, NothingIsSaidOfAGatherThatBroughtAll)
{
    begin();
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_THAT(end(), IsEmpty());
    EXPECT_THAT(shown.window().problem().toStdString(), IsEmpty());
}

TEST_F(GatherTold, AnEmptyTimeFrameIsSaid)
{
    begin();
    frame("2/18/2001");
    EXPECT_THAT(end(), HasSubstr("No line lies in the time frame."));
}

TEST_F(GatherTold, ADestinationThatCannotBeMadeIsSaidAndWhy)
{
    begin();
    fs::remove_all(target);
    shown.server.folder().write("gathered", "a file where the folder was");
    frame("2/18/2025");
    EXPECT_THAT(end(), AllOf(HasSubstr("destination"), HasSubstr("gathered")));
}

TEST_F(GatherTold, AFolderThatAnotherGatherWritesToIsRefusedUntilThePersonComesBack)
{
    begin();
    {
        const FileDescriptor another(::open(target.c_str(), O_RDONLY | O_DIRECTORY));
        ASSERT_EQ(0, ::flock(another.get(), LOCK_EX));
        person::clickButton(shown.sheet(), "Next >");
        auto* notice = shown.sheet().findChild<NoticeBar*>();
        ASSERT_TRUE(waitUntil([&] { return !notice->sentence().isEmpty(); }));
        EXPECT_EQ("Another gather is writing to " + target +
                      "; wait until it has ended, or name another folder.",
                  notice->sentence().toStdString());
        EXPECT_TRUE(fs::is_empty(target));
    }
    person::clickButton(shown.sheet(), "< Back");
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_THAT(end(), IsEmpty());
}

TEST_F(GatherTold, OtherGathersAreKeptOutOfItsFolderFromTheBeginning)
{
    begin();
    fs::remove(target);
    bool kept = false;
    const auto watch = std::make_unique<QTimer>();
    QObject::connect(watch.get(), &QTimer::timeout, [&] {
        const FileDescriptor folder(::open(target.c_str(), O_RDONLY | O_DIRECTORY));
        kept = kept || (folder.isOpen() && ::flock(folder.get(), LOCK_EX | LOCK_NB) != 0);
    });
    watch->start(1);
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_THAT(end(), IsEmpty());
    EXPECT_TRUE(kept);
    const FileDescriptor folder(::open(target.c_str(), O_RDONLY | O_DIRECTORY));
    EXPECT_EQ(0, ::flock(folder.get(), LOCK_EX | LOCK_NB)) << "and let in afterwards";
}

TEST_F(GatherTold, ItsResultsAreNotNamedInTheSecondOfEarlierOnes)
{
    constexpr const char* earlier = "VM_WPN_20010218_080000.mdb";
    const auto results = [&] {
        std::vector<fs::path> found;
        for (const auto& entry : fs::directory_iterator(target))
            if (entry.path().extension() == ".mdb" && entry.path().filename() != earlier)
                found.push_back(entry.path());
        return found;
    };
    begin();
    // An earlier gather has just ended when this one's turn comes.
    QTimer writes;
    QObject::connect(&writes, &QTimer::timeout, [&] {
        if (results().empty()) shown.server.folder().write(std::string("gathered/") + earlier, "x");
    });
    QTimer::singleShot(900, &writes, &QTimer::stop);
    writes.start(5);
    frame("2/18/2001");
    EXPECT_THAT(end(), HasSubstr("No line lies in the time frame."));
    struct stat before {};
    ASSERT_EQ(0, ::stat((target + "/" + earlier).c_str(), &before));
    ASSERT_EQ(1U, results().size());
    struct statx own {};
    ASSERT_EQ(0, ::statx(AT_FDCWD, results().front().c_str(), 0, STATX_BTIME, &own));
    if ((own.stx_mask & STATX_BTIME) == 0) GTEST_SKIP() << "files without a time of birth";
    EXPECT_GT(static_cast<std::time_t>(own.stx_btime.tv_sec), before.st_ctime);
}

TEST_F(GatherTold, ACancelAndWhatWasKeptAreSaidInTheLanguage)
{
    for (const bool german : {false, true}) {
        ASSERT_TRUE(!german || person::chooseLanguage("German"));
        person::press(QKeySequence("Ctrl+5"));
        auto* sheet = &shown.sheet();
        person::press(Qt::Key_Return);
        // Behind the first painting of the page at work.
        ASSERT_TRUE(waitUntil([&] { return sheet->sheet().currentPosition() == 4; }));
        bool cancelled = false;
        std::function<void()> cancelWhenAtWork = [&] {
            if (!shown.pane().sheetAtWork())
                return QTimer::singleShot(0, &shown.window(), cancelWhenAtWork);
            cancelled = true;
            person::press(Qt::Key_Escape);
        };
        QTimer::singleShot(0, &shown.window(), cancelWhenAtWork);
        ASSERT_TRUE(waitUntil([&] { return cancelled && !shown.pane().sheetAtWork(); }, 20'000));
        settle();
        EXPECT_THAT(
            shown.window().problem().toStdString(),
            HasSubstr(german ? "Das Sammeln wurde abgebrochen." : "The gather was cancelled."));
        fs::remove_all(target);
    }
}

} // namespace

} // namespace desktop
