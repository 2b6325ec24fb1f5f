#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"

#include <QAbstractButton>
#include <QAction>
#include <QLabel>
#include <QTreeView>

#include <gtest/gtest.h>

namespace desktop {

namespace {

/// The tool's own texts, while the language changes under an open window.
struct ToolLanguage : testing::Test {
    OpenProgram shown;

    QString menuText(const char* item)
    {
        return QString(shown.window().consoleAction(item)->text()).remove('&');
    }

    QStringList headers()
    {
        const QAbstractItemModel& model = *shown.pane().table()->model();
        QStringList texts;
        for (int column = 0; column < model.columnCount(); ++column)
            texts << model.headerData(column, Qt::Horizontal).toString();
        return texts;
    }

    /// What the tree's nodes that are on show have in `role`, from the top.
    QStringList treeTexts(int role)
    {
        const QTreeView& tree = shown.pane().tree();
        QStringList texts;
        for (QModelIndex at = tree.model()->index(0, 0); at.isValid(); at = tree.indexBelow(at))
            texts << at.data(role).toString();
        return texts;
    }

    QStringList treeNames() { return treeTexts(Qt::DisplayRole); }

    /// The same nodes by names that no language changes: those of the logs' files.
    QStringList treeFiles() { return treeTexts(Qt::AccessibleTextRole); }
};

TEST_F(ToolLanguage, MenusAndTaskCardsChangeAtOnceAndBack)
{
    ASSERT_EQ(QStringLiteral("Gather Log Files"), menuText("mnuGatherLogFiles"));
    EXPECT_TRUE(person::chooseLanguage("French"));
    EXPECT_EQ(QStringLiteral("Collecter les fichiers journaux"), menuText("mnuGatherLogFiles"));
    EXPECT_EQ(QStringLiteral("Configurer les macro-traces"), menuText("mnuConfigureMacroTrace"));
    auto* card = shown.pane().findChild<QAbstractButton*>("task-1");
    ASSERT_NE(nullptr, card);
    EXPECT_TRUE(card->isVisible());
    EXPECT_EQ(QStringLiteral("Configurer les macro-traces"), card->text());
    EXPECT_TRUE(card->accessibleDescription().startsWith("Utilisez cette tâche"));
    bool titled = false;
    for (auto* label : shown.pane().findChildren<QLabel*>())
        titled = titled || label->text() == "Tâches de diagnostic Kelma Orvan";
    EXPECT_TRUE(titled);

    EXPECT_TRUE(person::chooseLanguage("English"));
    EXPECT_EQ(QStringLiteral("Gather Log Files"), menuText("mnuGatherLogFiles"));
    EXPECT_EQ(QStringLiteral("Configure Macro Traces"),
              shown.pane().findChild<QAbstractButton*>("task-1")->text());
}

TEST_F(ToolLanguage, AWizardOpenedAfterwardsSpeaksIt)
{
    EXPECT_TRUE(person::chooseLanguage("French"));
    shown.clickCard("1");
    EXPECT_EQ(QStringLiteral("Assistant Configuration des macro-traces"),
              shown.sheet().windowTitle());
    person::press(Qt::Key_Escape);
}

TEST_F(ToolLanguage, AListAndTheTreeBesideItAreNamedAnewWhereTheyStand)
{
    shown.showLog("KoCSMgr");
    shown.window().showNode("KoCSMgr");
    shown.pane().table()->goTo(1);
    QStringList files = treeFiles();
    ASSERT_TRUE(files.contains("KoCSMgr"));
    ASSERT_TRUE(treeNames().contains(QString::fromUtf8("19 Feb 14:41 \u00b7 current")));
    ASSERT_TRUE(headers().contains("File Name")) << headers().join('|').toStdString();

    EXPECT_TRUE(person::chooseLanguage("French"));
    EXPECT_TRUE(headers().contains("Nom de fichier")) << headers().join('|').toStdString();
    EXPECT_EQ(QStringLiteral("KoCSMgr"), shown.pane().selectedName());
    EXPECT_EQ(1, shown.pane().table()->currentIndex().row());
    files.front() = "Diagnostics Kelma Orvan";
    EXPECT_EQ(files, treeFiles()) << "what was opened stays open";
    EXPECT_TRUE(treeNames().contains(QString::fromUtf8("19 f\u00e9vr. 14:41 \u00b7 en cours")))
        << treeNames().join('|').toStdString();

    person::press(QKeySequence("F5"));
    EXPECT_TRUE(headers().contains("Nom de fichier"));
    EXPECT_EQ(QStringLiteral("KoCSMgr"), shown.pane().selectedName());
    EXPECT_EQ(files, treeFiles());
}

TEST_F(ToolLanguage, ALogsHeadersFollowAndItsLinesStay)
{
    shown.showLog("KoCSMgr");
    shown.log().table().goTo(20);
    const int rows = shown.log().model().rowCount();
    const QString line = shown.log().model().rowText(20);
    EXPECT_TRUE(person::chooseLanguage("French"));
    EXPECT_TRUE(headers().contains("Composant")) << headers().join('|').toStdString();
    EXPECT_EQ(rows, shown.log().model().rowCount());
    EXPECT_EQ(20, shown.log().table().currentIndex().row());
    EXPECT_EQ(line, shown.log().model().rowText(20));
    EXPECT_TRUE(person::chooseLanguage("English"));
    EXPECT_TRUE(headers().contains("Component")) << headers().join('|').toStdString();
}

} // namespace

} // namespace desktop
