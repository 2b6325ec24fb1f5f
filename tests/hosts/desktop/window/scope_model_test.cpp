#include "hosts/desktop/window/scope_model.h"

#include "console/console.h"
#include "hosts/desktop/support/test_window.h"

#include <QAbstractItemModelTester>
#include <QDateTime>
#include <QLocale>
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
        nodes << indent + index.data(Qt::AccessibleTextRole).toString()
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

TEST(ScopeModel, NamesALogByTheMomentItWasBegun)
{
    TestWindow shown;
    const std::string process = "KoNotify";
    for (const char* stamp : {"20241231_235900", "20250218_081502", "20250218_081530"})
        shown.server.folder().write(
            "site/drive_c/KelmaOrvan/Logs/diag_" + process + "_" + stamp + ".txt", "");
    const std::string current = shown.server.currentLog(process);
    shown.showLog(process);
    ScopeModel model(shown.console());
    const auto index = [&](const std::string& key) {
        return model.indexOf(shown.console().scopeItems().item(key));
    };
    const QDateTime begun = QDateTime::fromString(
        QString::fromStdString(current).section('_', 2).section('.', 0, 0), "yyyyMMdd_HHmmss");
    ASSERT_TRUE(begun.isValid());
    EXPECT_EQ(QLocale().toString(begun, "d MMM HH:mm") + QStringLiteral(" \u00b7 current"),
              index(current).data().toString());
    EXPECT_EQ(QString::fromStdString("Current- " + current),
              index(current).data(Qt::AccessibleTextRole).toString());
    EXPECT_TRUE(
        index(current).data(Qt::ToolTipRole).toString().contains(QString::fromStdString(current)));
    EXPECT_EQ(QStringLiteral("31 Dec 2024 23:59"),
              index("diag_KoNotify_20241231_235900.txt").data().toString());
    EXPECT_EQ(QStringLiteral("18 Feb 08:15:02"),
              index("diag_KoNotify_20250218_081502.txt").data().toString())
        << "another log was begun in that minute";
    EXPECT_EQ(process, index(process).data().toString().toStdString());
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
              tree.currentIndex().data(Qt::AccessibleTextRole).toString());

    tree.setCurrentIndex(tree.currentIndex().parent());
    settle();

    EXPECT_EQ("KoNotify", shown.console().currentScopeItem().key());
    EXPECT_FALSE(shown.pane().logShown());
}

} // namespace

} // namespace desktop
