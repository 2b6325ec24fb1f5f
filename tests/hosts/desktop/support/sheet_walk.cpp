#include "hosts/desktop/support/sheet_walk.h"

#include "console/wizard_sheet.h"
#include "hosts/desktop/sheets/moment_field.h"
#include "hosts/desktop/sheets/sheet_dialog.h"

#include <QAction>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTreeView>

#include <stdexcept>

namespace desktop {

namespace {

constexpr int patience = 30000; ///< milliseconds

/// The widgets of a kind on the page on show.
template <typename Widget>
QList<Widget*> onShow(QWidget& dialog)
{
    QList<Widget*> shown;
    for (auto* widget : dialog.findChildren<Widget*>())
        if (widget->isVisible()) shown << widget;
    return shown;
}

QTreeView& tree(QWidget& dialog)
{
    const auto shown = onShow<QTreeView>(dialog);
    if (shown.empty()) throw std::runtime_error("the page has no tree");
    return *shown.front();
}

} // namespace

SheetWalk::SheetWalk(TestWindow& shown, const char* menuItem)
{
    QAction* action = shown.window->consoleAction(menuItem);
    if (!action) throw std::runtime_error(menuItem);
    action->trigger();
    settle();
    dialog_ = shown.pane().sheet();
    if (!dialog_) throw std::runtime_error(std::string(menuItem) + " opened no sheet");
}

SheetWalk::~SheetWalk()
{
    if (dialog_) dialog_->reject();
    settle();
}

SheetDialog& SheetWalk::dialog()
{
    if (!dialog_) throw std::runtime_error("the sheet has gone");
    return *dialog_;
}

void SheetWalk::forward()
{
    for (auto* button : onShow<QPushButton>(dialog())) {
        if (!button->isDefault()) continue;
        if (!button->isEnabled()) throw std::runtime_error("the page does not go on");
        button->click();
        return settle();
    }
    throw std::runtime_error("the sheet has no button to go on");
}

void SheetWalk::back()
{
    dialog().sheet().wizard()->back();
    settle();
}

void SheetWalk::choose(int option)
{
    const auto options = onShow<QRadioButton>(dialog());
    if (option >= options.size()) throw std::runtime_error("the page has no such option");
    options[option]->click();
    settle();
}

QAbstractItemModel& SheetWalk::nodes()
{
    return *tree(dialog()).model();
}

void SheetWalk::openFirstGroup()
{
    tree(dialog()).expand(nodes().index(0, 0));
    settle();
}

void SheetWalk::tickALeaf()
{
    const QModelIndex group = nodes().index(0, 0);
    for (int row = 0; row < nodes().rowCount(group); ++row) {
        const QModelIndex leaf = nodes().index(row, 0, group);
        if (leaf.data(Qt::CheckStateRole) != Qt::Unchecked) continue;
        nodes().setData(leaf, Qt::Checked, Qt::CheckStateRole);
        return settle();
    }
    throw std::runtime_error("the first group has no leaf to tick");
}

void SheetWalk::setStart(const QDateTime& start)
{
    const auto pickers = onShow<MomentField>(dialog());
    if (pickers.size() != 2) throw std::runtime_error("the page asks for no date and time");
    for (auto* field : pickers) {
        field->selectAll();
        QTest::keyClicks(field, field->textOf(start.date(), start.time()));
        if (!field->finishEditing()) throw std::runtime_error("no date or time was understood");
    }
    settle();
}

double SheetWalk::gathered()
{
    const auto bars = onShow<QProgressBar>(dialog());
    return bars.empty() ? 0 : static_cast<double>(bars.last()->value()) / bars.last()->maximum();
}

void SheetWalk::waitFor(int place)
{
    const auto there = [&] { return dialog_ && dialog_->sheet().currentPosition() == place; };
    if (!QTest::qWaitFor(there, patience)) throw std::runtime_error("the page never came");
    settle();
}

} // namespace desktop
