#include "hosts/desktop/program.h"

#include "hosts/desktop/support/test_window.h"
#include "hosts/desktop/window/about_dialog.h"
#include "hosts/desktop/window/recent_sites.h"
#include "settings/about_box.h"
#include "support/places.h"

#include <QAction>
#include <QLabel>
#include <QTest>
#include <QTimer>

#include <gmock/gmock.h>

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

TEST(Program, MakesASampleServerWhereNoSiteIs)
{
    TestProgram test;
    test.program.openDefault(test.folder / "data/orvandiag/site");
    EXPECT_TRUE(test.program.window().problem().isEmpty())
        << test.program.window().problem().toStdString();
    ASSERT_NE(nullptr, test.program.tool());
    EXPECT_TRUE(test.program.tool()->present());
    EXPECT_EQ(QStringList{QString::fromStdString(test.folder / "data/orvandiag/site")},
              recentSites(test.settings));
}

TEST(Program, SaysInASentenceWhyASiteDoesNotOpenAndKeepsTheOneThatIs)
{
    TestProgram test;
    test.program.openDefault(test.folder / "site");
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
