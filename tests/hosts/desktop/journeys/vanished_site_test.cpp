#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QTreeView>

#include <gmock/gmock.h>

#include <fstream>

namespace desktop {

namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;

/// A site, or a log of it, that goes while the window shows it.
struct Vanished : testing::Test {
    OpenProgram shown;
    std::string away = shown.server.folder() / "away";

    std::string problem() { return shown.window().problem().toStdString(); }

    void takeSite() { fs::rename(shown.server.site(), away); }
    void bringSite() { fs::rename(away, shown.server.site()); }

    QModelIndex node(const QStringList& names)
    {
        return rowAt(*shown.pane().tree().model(),
                     QStringList{"Kelma Orvan Diagnostics", "Processes"} + names);
    }

    /// The name of the first older log of a process in the tree.
    QString olderLog(const char* process)
    {
        const QModelIndex above = node({QString::fromLatin1(process)});
        return shown.pane()
            .tree()
            .model()
            ->index(1, 0, above)
            .data(Qt::AccessibleTextRole)
            .toString();
    }

    /// Closes every message box from now on.
    void closeBoxes()
    {
        person::answerNextDialog([this](QWidget& dialog) {
            closeBoxes();
            if (dynamic_cast<QMessageBox*>(&dialog)) person::press(Qt::Key_Return);
        });
    }

    /// Closes the next message box; what it said.
    static std::shared_ptr<QString> answerBox()
    {
        auto said = std::make_shared<QString>();
        person::answerNextDialog([said](QWidget& dialog) {
            *said = dynamic_cast<QMessageBox&>(dialog).text();
            person::press(Qt::Key_Return);
        });
        return said;
    }
};

TEST_F(Vanished, ASiteIsMissedAtF5AndWelcomeBackAtTheNext)
{
    shown.showLog("KoCSMgr");
    shown.window().showNode("KoCSMgr");
    const int logs = shown.pane().table()->model()->rowCount();
    takeSite();
    person::press(QKeySequence("F5"));
    EXPECT_THAT(problem(), HasSubstr("no longer there"));
    EXPECT_THAT(problem(), HasSubstr(shown.server.site()));
    EXPECT_FALSE(fs::exists(shown.server.site())) << "nothing makes a folder of its name";

    bringSite();
    person::press(QKeySequence("F5"));
    EXPECT_THAT(problem(), IsEmpty());
    shown.window().showNode("KoCSMgr");
    EXPECT_EQ(logs, shown.pane().table()->model()->rowCount());
}

TEST_F(Vanished, EveryToolCommandOnAVanishedSiteLeavesAWindowThatSaysSo)
{
    takeSite();
    // The tool tells in a box of its own that it finds no languages.
    closeBoxes();
    for (const char* key : {"Ctrl+1", "Ctrl+2", "Ctrl+3", "Ctrl+4", "Ctrl+5", "Ctrl+6", "Ctrl+7"}) {
        SCOPED_TRACE(key);
        person::press(QKeySequence(QLatin1String(key)));
        EXPECT_THAT(problem(), HasSubstr("no longer there"));
        EXPECT_TRUE(shown.window().isVisible());
        if (shown.pane().sheet()) person::press(Qt::Key_Escape);
        EXPECT_EQ(nullptr, shown.pane().sheet());
    }
    EXPECT_FALSE(fs::exists(shown.server.site()));
}

TEST_F(Vanished, AWizardThatIsOpenComesToItsEndWithoutTheSite)
{
    shown.clickCard("1");
    person::clickButton(shown.sheet(), "Next >");
    QTreeView* tree = nullptr;
    for (auto* view : shown.sheet().findChildren<QTreeView*>())
        if (view->isVisible()) tree = view;
    ASSERT_NE(nullptr, tree);
    takeSite();
    person::clickTick(*tree, tree->model()->index(0, 0));
    person::clickButton(shown.sheet(), "Next >");
    person::clickButton(shown.sheet(), "Finish");
    EXPECT_EQ(nullptr, shown.pane().sheet());
    EXPECT_THAT(problem(), HasSubstr("no longer there"));
}

TEST_F(Vanished, ALogThatIsGoneIsSaidInABoxAndTheWindowStays)
{
    shown.showLog("KoCSMgr");
    const QString log = olderLog("KoCSMgr");
    fs::remove(shown.server.logs() + "/" + log.toStdString());
    const auto said = answerBox();
    person::clickRow(shown.pane().tree(), node({"KoCSMgr", log}));
    EXPECT_THAT(said->toStdString(), HasSubstr(log.toStdString()));
    EXPECT_EQ(log, shown.pane().selectedName());
    EXPECT_EQ(0, shown.log().model().rowCount());
    EXPECT_THAT(problem(), IsEmpty());

    person::clickRow(shown.pane().tree(), node({"KoCSMgr"}));
    person::press(QKeySequence("F5"));
    EXPECT_FALSE(node({"KoCSMgr", log}).isValid());
}

TEST_F(Vanished, ALogThatIsGoneWhileItIsOnShowIsSaidAtF5)
{
    shown.showLog("KoCSMgr");
    const QString log = olderLog("KoCSMgr");
    person::clickRow(shown.pane().tree(), node({"KoCSMgr", log}));
    const int rows = shown.log().model().rowCount();
    ASSERT_GT(rows, 3);
    fs::remove(shown.server.logs() + "/" + log.toStdString());
    shown.log().table().goTo(rows - 1);
    EXPECT_EQ(rows, shown.log().model().rowCount()) << "what was read is still there to read";

    const auto said = answerBox();
    person::press(QKeySequence("F5"));
    EXPECT_THAT(said->toStdString(), HasSubstr(log.toStdString()));
    EXPECT_EQ(QStringLiteral("KoCSMgr"), shown.pane().selectedName()) << "the node above";
}

TEST_F(Vanished, ALogThatShrinksOnShowIsReadAnewAtF5)
{
    shown.showLog("KoCSMgr");
    const std::string log = shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr");
    const int rows = shown.log().model().rowCount();
    shown.log().table().goTo(rows - 1);
    std::ifstream stream(log, std::ios::binary);
    std::string line;
    std::uintmax_t size = 0;
    for (int count = 0; count < 5 && std::getline(stream, line); ++count) size += line.size() + 1;
    fs::resize_file(log, size);
    person::press(QKeySequence("F5"));
    EXPECT_TRUE(shown.pane().logShown());
    EXPECT_EQ(5, shown.log().model().rowCount());
    EXPECT_EQ(4, shown.log().table().currentIndex().row());
    EXPECT_THAT(problem(), IsEmpty());
}

TEST_F(Vanished, AProgramWhoseSiteIsGoneClosesInPeace)
{
    shown.showLog("KoCSMgr");
    takeSite();
    person::press(QKeySequence("Ctrl+Q"));
    EXPECT_FALSE(shown.window().isVisible());
    shown.program.close();
    EXPECT_EQ(nullptr, shown.program.tool());
    EXPECT_FALSE(fs::exists(shown.server.site()));
}

} // namespace

} // namespace desktop
