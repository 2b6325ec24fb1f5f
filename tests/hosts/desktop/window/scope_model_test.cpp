#include "hosts/desktop/window/scope_model.h"

#include "console/console.h"
#include "hosts/desktop/support/test_window.h"

#include <QAbstractItemModelTester>
#include <QTreeView>

#include <gtest/gtest.h>

namespace desktop {

namespace {

/// Every node below an index, each with its depth and text.
QStringList nodesOf(const QAbstractItemModel& model, const QModelIndex& parent = {},
                    const QString& indent = {})
{
    QStringList nodes;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        nodes << indent + index.data().toString()
              << nodesOf(model, index, indent + QStringLiteral("  "));
    }
    return nodes;
}

QStringList nodesOf(const ScopeItem& item, const QString& indent = {})
{
    QStringList nodes{indent + QString::fromStdString(item.displayName())};
    for (const ScopeItem* child : item.children())
        nodes << nodesOf(*child, indent + QStringLiteral("  "));
    return nodes;
}

TEST(ScopeModel, HasTheNodesOfTheConsoleAsTheyComeAndGo)
{
    TestWindow shown;
    ScopeModel model(shown.console());
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::Fatal);
    const ScopeItem& root = shown.console().scopeItems().item(1);
    EXPECT_EQ(nodesOf(root), nodesOf(model));

    shown.showLog("KoCSMgr");
    const QStringList opened = nodesOf(model);
    EXPECT_EQ(nodesOf(root), opened);
    EXPECT_GT(opened.size(), 7);

    std::filesystem::remove(shown.server.logs() + "/" + shown.server.currentLog("KoCSMgr"));
    shown.window->run(Command::refresh);
    EXPECT_EQ(nodesOf(root), nodesOf(model));
    EXPECT_EQ(opened.size() - 1, nodesOf(model).size());
}

TEST(ScopeModel, OffersToOpenAProcessAndNeverALog)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    ScopeModel model(shown.console());
    const auto& tree = shown.console().scopeItems();
    EXPECT_TRUE(model.hasChildren(model.indexOf(tree.item("KoCSMgr"))));
    EXPECT_TRUE(model.hasChildren(model.indexOf(tree.item("KoNotify")))) << "not opened yet";
    EXPECT_FALSE(model.hasChildren(model.indexOf(tree.item(shown.server.currentLog("KoCSMgr")))));
}

TEST(ScopeModel, MarksTheLogInUseWithAnIconOfItsOwn)
{
    TestWindow shown;
    shown.showLog("KoCSMgr");
    ScopeModel model(shown.console());
    const QModelIndex process = model.indexOf(shown.console().scopeItems().item("KoCSMgr"));
    const auto picture = [&](int row) {
        return model.index(row, 0, process)
            .data(Qt::DecorationRole)
            .value<QIcon>()
            .pixmap(32)
            .toImage();
    };
    ASSERT_GE(model.rowCount(process), 3);
    EXPECT_NE(picture(0), picture(1));
    EXPECT_EQ(picture(1), picture(2));
}

TEST(TreePane, ANodeThatIsOpenedByTheTreesOwnArrowIsOpenedInTheConsole)
{
    TestWindow shown;
    QTreeView& tree = shown.pane().tree();
    const QModelIndex processes = tree.model()->index(0, 0, tree.model()->index(0, 0));
    EXPECT_EQ(QStringLiteral("Processes*"), processes.data().toString());

    tree.expand(processes);
    settle();

    EXPECT_EQ(QStringLiteral("Processes"), processes.data().toString());
    EXPECT_EQ(5, tree.model()->rowCount(processes));
}

TEST(TreePane, SelectingANodeMovesTheConsolesSelectionAndTheOtherWayRound)
{
    TestWindow shown;
    QTreeView& tree = shown.pane().tree();
    shown.showLog("KoNotify");
    EXPECT_EQ(QString::fromStdString("Current- " + shown.server.currentLog("KoNotify")),
              tree.currentIndex().data().toString());

    tree.setCurrentIndex(tree.currentIndex().parent());
    settle();

    EXPECT_EQ("KoNotify", shown.console().currentScopeItem().key());
    EXPECT_FALSE(shown.pane().logShown());
}

} // namespace

} // namespace desktop
