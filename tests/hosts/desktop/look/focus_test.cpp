// Where the keys go can be seen.
#include "hosts/common/look/theme.h"
#include "hosts/desktop/log/list_table.h"
#include "hosts/desktop/log/log_view.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"
#include "hosts/desktop/window/task_card.h"
#include "hosts/desktop/window/task_pad_view.h"

#include <QTreeView>

#include <gtest/gtest.h>

namespace desktop {

namespace {

/// The colours of some pixels of the current row of a view, at its right end where no text is.
QColor groundOfCurrentRow(QAbstractItemView& view)
{
    settle();
    const QRect row = view.visualRect(view.currentIndex());
    const QImage drawn = view.viewport()->grab().toImage();
    return drawn.pixelColor(std::min(row.right(), view.viewport()->width() - 1) - 6,
                            row.center().y());
}

struct Focus : testing::TestWithParam<theme::Scheme> {
    Focus() { theme::apply(GetParam()); }
    ~Focus() override { theme::apply(theme::Scheme::light); }

    QColor strong() { return shown.window().palette().color(QPalette::Highlight); }
    QColor resting() { return theme::restingSelection(shown.window().palette()); }

    OpenProgram shown;
};

TEST_P(Focus, TheSelectionOfTheViewThatHasItStandsOut)
{
    shown.showLog("KoCSMgr");
    QTreeView& tree = shown.pane().tree();
    ListTable& table = shown.log().table();
    ASSERT_NE(strong(), resting());
    tree.setFocus();
    EXPECT_EQ(strong(), groundOfCurrentRow(tree));
    EXPECT_EQ(resting(), groundOfCurrentRow(table));
    person::press(Qt::Key_F6);
    EXPECT_TRUE(table.hasFocus());
    EXPECT_EQ(resting(), groundOfCurrentRow(tree));
    EXPECT_EQ(strong(), groundOfCurrentRow(table));
}

TEST_P(Focus, TheCellThatKeysGoToHasAnEdge)
{
    shown.showLog("KoCSMgr");
    ListTable& table = shown.log().table();
    const auto edges = [&] {
        settle();
        const QRect cell = table.visualRect(table.currentIndex());
        const QImage drawn = table.viewport()->grab().toImage();
        const QColor edge = table.palette().color(QPalette::HighlightedText);
        int found = 0;
        for (int x = cell.left() + 6; x < cell.right() - 6; ++x)
            found += drawn.pixelColor(x, cell.top() + 1) == edge;
        return found;
    };
    table.setFocus();
    EXPECT_GT(edges(), 20);
    shown.pane().tree().setFocus();
    EXPECT_EQ(0, edges());
}

TEST_P(Focus, F6MarksACardAndComesBackToIt)
{
    shown.window().showNode("Static Node");
    shown.pane().tree().setFocus();
    person::press(Qt::Key_F6);
    auto* first = qobject_cast<TaskCard*>(QApplication::focusWidget());
    ASSERT_NE(nullptr, first);
    EXPECT_EQ(QStringLiteral("task-1"), first->objectName());
    const QImage drawn = first->grab().toImage();
    EXPECT_EQ(strong(), drawn.pixelColor(1, drawn.height() / 2));

    person::press(Qt::Key_Tab);
    QWidget* second = QApplication::focusWidget();
    ASSERT_NE(first, second);
    person::press(Qt::Key_F6);
    EXPECT_TRUE(shown.pane().tree().hasFocus());
    person::press(Qt::Key_F6);
    EXPECT_EQ(second, QApplication::focusWidget());
}

INSTANTIATE_TEST_SUITE_P(InEachScheme, Focus,
                         testing::Values(theme::Scheme::light, theme::Scheme::dark),
                         [](const auto& scheme) {
                             return theme::nameOf(scheme.param).toStdString();
                         });

} // namespace

} // namespace desktop
