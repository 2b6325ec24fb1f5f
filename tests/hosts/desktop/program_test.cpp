#include "hosts/desktop/program.h"

#include "hosts/desktop/support/person.h"
#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/viewer_program.h"
#include "hosts/desktop/window/about_dialog.h"
#include "hosts/desktop/window/recent_sites.h"
#include "settings/about_box.h"
#include "support/places.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>

namespace desktop {

namespace {

using testing::HasSubstr;

struct TestProgram {
    TestProgram()
        : settings((testApplication(), QString::fromStdString(folder / "s.ini")),
                   QSettings::IniFormat)
    {
        program.window().show();
    }

    TemporaryFolder folder;
    QSettings settings;
    Program program{settings, built::data, HostFacts{}};
};

TEST(Program, OffersTheWaysToBeginWhereNoSiteIs)
{
    TestProgram test;
    test.program.openDefault(test.folder / "data/orvandiag/site");
    EXPECT_EQ("", test.program.window().problem().toStdString());
    EXPECT_EQ(nullptr, test.program.tool());
    EXPECT_FALSE(std::filesystem::exists(test.folder / "data")) << "nothing is made unasked";
    QStringList offered;
    for (const auto* card : test.program.window().findChildren<QAbstractButton*>())
        if (card->isVisible() && !card->accessibleDescription().isEmpty()) offered << card->text();
    EXPECT_EQ((QStringList{"Open a Site", "Make a Sample Server", "Read the Manual"}), offered);

    const std::string wanted = test.folder / "data/orvandiag/site";
    person::pickNext(wanted);
    for (auto* card : test.program.window().findChildren<QAbstractButton*>())
        if (card->text() == "Make a Sample Server") QTest::keyClick(card, Qt::Key_Return);
    settle();
    ASSERT_NE(nullptr, test.program.tool());
    EXPECT_EQ(wanted, test.program.tool()->site().folder());
    EXPECT_EQ(QStringList{QString::fromStdString(wanted)}, recentSites(test.settings));
}

TEST(Program, CallsASampleServerOneInTitleAndStatusBar)
{
    TestProgram test;
    const auto& window = test.program.window();
    const auto marked = [&] {
        const auto labels = window.statusBar()->findChildren<QLabel*>();
        return std::any_of(labels.begin(), labels.end(), [](const QLabel* label) {
            return label->text().startsWith("Sample server: ");
        });
    };
    test.program.openSample(test.folder / "sample");
    EXPECT_EQ(QStringLiteral("Kelma Orvan Diagnostics - Sample Server - Orvan Diagnostic Tool"),
              window.windowTitle());
    EXPECT_TRUE(marked());

    test.folder.write("server/site.ini", "[site]\ncomputer=VOICE\n");
    test.program.openSite(test.folder / "server");
    EXPECT_EQ(QStringLiteral("Kelma Orvan Diagnostics - Orvan Diagnostic Tool"),
              window.windowTitle());
    EXPECT_FALSE(marked());
}

TEST(Program, SaysInASentenceWhyASiteDoesNotOpenAndKeepsTheOneThatIs)
{
    TestProgram test;
    test.program.openSample(test.folder / "site");
    const OpenTool* open = test.program.tool();

    test.program.openSite(test.folder.makeFolder("empty"));
    EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("no site.ini"));
    test.folder.write("damaged/site.ini", "[site]\nwhat=this\n");
    test.program.openSite(test.folder / "damaged");
    EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("site.ini line 2"));
    test.folder.write("file", "");
    test.program.openSample(test.folder / "file/below");
    EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("No sample server"));

    EXPECT_EQ(open, test.program.tool());
    EXPECT_NE(nullptr, test.program.window().pane());
}

TEST(Program, OpensOneSiteAfterTheOther)
{
    TestProgram test;
    test.program.openSample(test.folder / "one");
    test.program.openSample(test.folder / "two");
    EXPECT_EQ(test.folder / "two", test.program.tool()->site().folder());
    EXPECT_EQ(2, recentSites(test.settings).size());
    emit test.program.window().siteAsked(QString::fromStdString(test.folder / "one"));
    EXPECT_EQ(test.folder / "one", test.program.tool()->site().folder());
    test.program.close();
    EXPECT_EQ(nullptr, test.program.tool());
    EXPECT_EQ(nullptr, test.program.window().pane());
}

TEST(Program, TellsThatASiteWasNotClosedCleanlyWhateverComesNext)
{
    for (const bool another : {true, false}) {
        TestProgram test;
        test.program.openSample(test.folder / "one");
        test.folder.write("one/registry.reg", "no registry at all");
        if (another)
            test.program.openSample(test.folder / "two");
        else
            test.program.close();
        EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("not closed cleanly"));
        EXPECT_EQ(another, test.program.tool() != nullptr);
    }
}

TEST(Program, OpensALogByTheToolAndWhatTheToolDoesNotReadInTheViewer)
{
    TestProgram test;
    QStringList viewed;
    bool installed = true;
    test.program.viewer = [&](const QString& path) {
        viewed << path;
        return installed;
    };
    test.folder.write("some.log", "no line of a server\n");
    const QString log = QString::fromStdString(test.folder / "some.log");
    test.program.openFile(log);
    EXPECT_EQ(QStringList{log}, viewed) << "no site is open";

    test.program.openSample(test.folder / "site");
    test.program.openFile(log);
    EXPECT_TRUE(test.program.window().pane()->logShown());
    EXPECT_EQ(log, test.program.window().pane()->selectedName());
    EXPECT_EQ(1, viewed.size());

    installed = false;
    test.program.openFile(QStringLiteral("/tmp/frame.mdb"));
    EXPECT_EQ(QStringLiteral("/tmp/frame.mdb"), viewed.value(1));
    EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("not installed here"));
}

TEST(Viewer, IsTheProgramBesideTheConsoleAndIsGivenThePath)
{
    TestProgram test;
    EXPECT_FALSE(
        openInViewer(QStringLiteral("/tmp/a b"), QString::fromStdString(test.folder / "none")))
        << "and none is on the search path";
    test.folder.write("bin/orvandiag-viewer",
                      "#!/bin/sh\nprintf %s \"$1\" > \"$0.part\" && mv \"$0.part\" \"$0.given\"\n");
    const std::string program = test.folder / "bin/orvandiag-viewer";
    std::filesystem::permissions(program, std::filesystem::perms::owner_all);
    EXPECT_TRUE(
        openInViewer(QStringLiteral("/tmp/a b"), QString::fromStdString(test.folder / "bin")));
    EXPECT_TRUE(waitUntil([&] { return std::filesystem::exists(program + ".given"); }));
    EXPECT_EQ("/tmp/a b", test.folder.read("bin/orvandiag-viewer.given"));
}

TEST(Help, ShowsThePageOfATopicAndSaysWhenThereIsNoManual)
{
    TestProgram test;
    EXPECT_NE(0, test.program.desktop().showHelp("", 320));
    test.program.desktop().setManual(test.folder / "none");
    emit test.program.window().helpAsked(0);
    EXPECT_THAT(test.program.window().problem().toStdString(), HasSubstr("manual"));
}

TEST(OpenTool, NamesAPickedFileByItsDriveInsideTheSite)
{
    TestWindow shown;
    const std::string site = shown.server.site();
    EXPECT_EQ("C:\\KelmaOrvan\\Logs", shown.tool->toolPath(shown.server.logs()));
    EXPECT_EQ("C:\\", shown.tool->toolPath(site + "/drive_c"));
    EXPECT_EQ("/tmp/other.txt", shown.tool->toolPath("/tmp/other.txt"));
    EXPECT_EQ(site + "/drive_copy/x", shown.tool->toolPath(site + "/drive_copy/x"));
}

TEST(AboutDialog, TellsTheVersionAndChangesTheLanguageOfMenusAndTasks)
{
    TestWindow shown;
    frmAbout& form = shown.tool->snapIn().showAbout();
    AboutDialog about(form);
    about.show();
    settle();
    EXPECT_EQ(QStringLiteral("Orvan Diagnostic Tool"), about.windowTitle());
    QStringList texts;
    for (auto* label : about.findChildren<QLabel*>()) texts << label->text();
    EXPECT_TRUE(texts.contains(QString::fromStdString(form.lblVersion.caption())));

    ASSERT_GT(form.mnuLanguageList().size(), 3U);
    int french = -1;
    for (std::size_t index = 0; index < form.mnuLanguageList().size(); ++index)
        if (form.mnuLanguageList()[index].tag == "1036") french = static_cast<int>(index);
    ASSERT_GE(french, 0);
    form.mnuLanguageList_Click(french);
    settle();
    EXPECT_NE(QStringLiteral("Orvan Diagnostic Tool"), about.windowTitle());

    QTest::keyClick(&about, Qt::Key_Escape);
    EXPECT_FALSE(form.visible());
    EXPECT_FALSE(about.isVisible());
    const QString before = shown.window->consoleAction("mnuGatherLogFiles")->text();
    // The dialog of the command is modal; the form's own OK closes it.
    QTimer::singleShot(0, [&] { form.cmdOK_Click(); });
    shown.window->run(Command::about);
    EXPECT_NE(before, shown.window->consoleAction("mnuGatherLogFiles")->text());
}

} // namespace

} // namespace desktop
