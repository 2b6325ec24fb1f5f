#include "hosts/desktop/sheets/undone.h"

#include "hosts/common/look/notice_bar.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/outside_view.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTreeView>

#include <gmock/gmock.h>

#include <filesystem>

namespace desktop {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;

struct UndoneWork : testing::Test {
    OpenProgram shown;
    OutsideView site{shown.server.site()};

    std::string said() { return shown.sheet().findChild<NoticeBar*>()->sentence().toStdString(); }

    void tickFirstTrace()
    {
        for (auto* tree : shown.sheet().findChildren<QTreeView*>()) {
            if (!tree->isVisible()) continue;
            const QModelIndex group = tree->model()->index(0, 0);
            tree->expand(group);
            settle();
            for (int row = 0; row < tree->model()->rowCount(group); ++row) {
                const QModelIndex leaf = tree->model()->index(row, 0, group);
                if (leaf.data(Qt::CheckStateRole) != Qt::Unchecked) continue;
                return person::clickTick(*tree, leaf);
            }
        }
        throw std::runtime_error("no trace to tick");
    }

    std::string megabytes()
    {
        return site.sql("SELECT trim(Value) FROM vw_ConfigurationValue WHERE "
                        "FullName='System.LogMgr.MaxDiagnosticMegabytesSaved'");
    }
};

TEST_F(UndoneWork, AWrongNumberOfMegabytesIsSaidBesideTheSheet)
{
    const std::string before = megabytes();
    person::press(QKeySequence("Ctrl+6"));
    QComboBox* space = shown.sheet().findChild<QComboBox*>();
    for (const char* typed : {"plenty", "12 MB", "99999999999"}) {
        SCOPED_TRACE(typed);
        person::click(*space->lineEdit());
        person::press(QKeySequence("Ctrl+A"));
        person::type(typed);
        person::clickButton(shown.sheet(), "Apply");
        EXPECT_THAT(said(), AllOf(HasSubstr('"' + std::string(typed) + '"'),
                                  HasSubstr("not a number of megabytes")));
        EXPECT_EQ(before, megabytes());
    }
    person::click(*space->lineEdit());
    person::press(QKeySequence("Ctrl+A"));
    person::type("plenty");
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_THAT(shown.window().problem().toStdString(), HasSubstr("\"plenty\""))
        << "the sheet has gone, so the window says it";
}

TEST_F(UndoneWork, ANumberOfMegabytesIsTakenWithoutAWord)
{
    person::press(QKeySequence("Ctrl+6"));
    QComboBox* space = shown.sheet().findChild<QComboBox*>();
    person::click(*space->lineEdit());
    person::press(QKeySequence("Ctrl+A"));
    person::type("5050");
    person::clickButton(shown.sheet(), "Apply");
    EXPECT_THAT(said(), IsEmpty());
    EXPECT_EQ("5050", megabytes());
}

TEST_F(UndoneWork, TracesThatTheServerRefusesAreSaidBesideTheRequiredText)
{
    site.sql("DROP VIEW csp_LoggerDiagnosticGridModify");
    for (const char* key : {"Ctrl+1", "Ctrl+2"}) {
        SCOPED_TRACE(key);
        person::press(QKeySequence(QLatin1String(key)));
        person::clickButton(shown.sheet(), "Next >");
        EXPECT_THAT(said(), IsEmpty());
        tickFirstTrace();
        person::clickButton(shown.sheet(), "Next >");
        EXPECT_TRUE(person::button(shown.sheet(), "Finish").isVisible())
            << "the wizard ends as ever";
        const bool now = !said().empty();
        person::clickButton(shown.sheet(), "Finish");
        const std::string later = shown.window().problem().toStdString();
        EXPECT_TRUE(now || !later.empty()) << "said before the end or at the end";
    }
}

TEST_F(UndoneWork, ADatabaseThatCannotBeOpenedIsSaidFromTheStart)
{
    const std::string file = shown.server.site() + "/OrvanDirDb.sqlite";
    shown.program.close();
    fs::rename(file, file + ".away");
    shown.program.openSite(shown.server.site());
    EXPECT_THAT(shown.window().problem().toStdString(),
                AllOf(HasSubstr("The server's database could not be opened: Cannot open "),
                      HasSubstr("Logs can be read")));
    shown.program.close();
    fs::rename(file + ".away", file);
    shown.program.openSite(shown.server.site());
    EXPECT_EQ("", shown.window().problem().toStdString());
}

TEST_F(UndoneWork, AMissingLogFolderIsSaidUntilItIsThere)
{
    const std::string logs = shown.server.logs();
    fs::rename(logs, logs + ".away");
    person::press(QKeySequence("F5"));
    EXPECT_ANY_THROW(shown.showLog("KoCSMgr"));
    EXPECT_EQ("The server's log folder C:\\KelmaOrvan\\Logs is not there.",
              shown.window().problem().toStdString());
    fs::rename(logs + ".away", logs);
    person::press(QKeySequence("F5"));
    shown.showLog("KoCSMgr");
    EXPECT_EQ("", shown.window().problem().toStdString());
}

TEST_F(UndoneWork, ASignalThatTheRegistryDidNotTakeIsSaid)
{
    shown.program.close();
    std::string registry = shown.server.folder().read("site/registry.reg");
    const std::string key = "RoLogMgr\\BroadCast]";
    registry.replace(registry.find(key), key.size(), "RoLogMgr\\Another]");
    shown.server.folder().write("site/registry.reg", registry);
    shown.program.openSite(shown.server.site());
    for (const bool byCard : {false, true}) {
        SCOPED_TRACE(byCard ? "card" : "key");
        shown.window().showProblem([] { return QString(); });
        byCard ? shown.clickCard("4") : person::press(QKeySequence("Ctrl+4"));
        EXPECT_THAT(shown.window().problem().toStdString(),
                    HasSubstr("The server was not told to start new log files"));
    }
}

TEST_F(UndoneWork, ACommandOfACardThatFailsIsSaidLikeThatOfTheMenu)
{
    for (const char* routine : {"ResultViews_TaskClick", "mnuStartNewLogFiles_Click"}) {
        Undone undone;
        undone.note(RunTimeError(61, "Disk full"),
                    std::string("[snapinOrvanDiagnostics]") + routine);
        const LiveSentence said = undone.take(nullptr);
        ASSERT_TRUE(said) << routine;
        EXPECT_EQ(QStringLiteral("Not all of it was done: Disk full."), said());
    }
}

TEST_F(UndoneWork, NewLogFilesTwiceWithinASecondAreTwoDeeds)
{
    for (int times = 0; times < 3; ++times) {
        person::press(QKeySequence("Ctrl+4"));
        EXPECT_THAT(shown.window().problem().toStdString(), IsEmpty());
    }
}

TEST_F(UndoneWork, WhatIsDoneIsNotSaidToBeUndone)
{
    for (const char* key : {"Ctrl+1", "Ctrl+2"}) {
        SCOPED_TRACE(key);
        person::press(QKeySequence(QLatin1String(key)));
        person::clickButton(shown.sheet(), "Next >");
        tickFirstTrace();
        person::clickButton(shown.sheet(), "Next >");
        EXPECT_THAT(said(), IsEmpty());
        person::clickButton(shown.sheet(), "Finish");
    }
    person::press(QKeySequence("Ctrl+3"));
    person::clickButton(shown.sheet(), "Finish");
    person::press(QKeySequence("Ctrl+4"));
    EXPECT_TRUE(shown.window().problem().isEmpty()) << shown.window().problem().toStdString();
}

TEST(Undone, TellsTheFirstErrorOfWhatWritesAndOnlyOnce)
{
    Undone undone;
    undone.note(RunTimeError(runTimeErrors::fileNotFound), "[mdlTraces]initMacroTraces");
    EXPECT_FALSE(undone.take(nullptr)) << "reading leaves nothing undone";
    undone.note(RunTimeError(runTimeErrors::permissionDenied), "[mdlDiagnosticGrid]SetFlags");
    undone.note(RunTimeError(runTimeErrors::fileNotFound), "[mdlDiagnosticGrid]SetFlags");
    const LiveSentence sentence = undone.take(nullptr);
    ASSERT_TRUE(sentence);
    EXPECT_EQ("Not all of it was done: Permission denied.", sentence().toStdString());
    EXPECT_FALSE(undone.take(nullptr));
}

} // namespace

} // namespace desktop
