#include "hosts/desktop/window/key_list.h"

#include "hosts/common/look/roomy_delegate.h"
#include "hosts/common/look/screen_room.h"
#include "hosts/desktop/sheets/mnemonics.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace desktop {

namespace {

void addMenu(QTreeWidget& list, const QString& title, const QMenu& menu)
{
    auto* group = new QTreeWidgetItem(&list, {title});
    group->setFirstColumnSpanned(true);
    QFont bold = list.font();
    bold.setBold(true);
    group->setFont(0, bold);
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator()) continue;
        if (action->menu()) {
            for (const QAction* inner : action->menu()->actions())
                if (!inner->shortcut().isEmpty())
                    new QTreeWidgetItem(group,
                                        {withoutMnemonic(action->text()) + QStringLiteral(": ") +
                                             withoutMnemonic(inner->text()),
                                         inner->shortcut().toString(QKeySequence::NativeText),
                                         inner->statusTip()});
            continue;
        }
        new QTreeWidgetItem(group, {withoutMnemonic(action->text()),
                                    action->shortcut().toString(QKeySequence::NativeText),
                                    action->statusTip()});
    }
    group->setExpanded(true);
}

} // namespace

KeyList::KeyList(QMainWindow& window, QWidget* parent) : QDialog(parent)
{
    setWindowTitle(tr("Keys"));
    auto* list = new QTreeWidget(this);
    list->setHeaderLabels({tr("Command"), tr("Key"), tr("What it does")});
    list->setAccessibleName(tr("Keys"));
    list->setItemDelegate(new RoomyDelegate(list));
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->menu()) addMenu(*list, withoutMnemonic(menu->text()), *menu->menu());
    auto* inLists = new QTreeWidgetItem(list, {tr("In lists and pages")});
    const auto add = [&](const QString& what, const QString& key, const QString& does) {
        new QTreeWidgetItem(inLists, {what, key, does});
    };
    add(tr("Open"), tr("Enter"), tr("Opens the log or the node of the current row"));
    add(tr("Open or close a node"), tr("Right, Left"), tr("In a tree"));
    add(tr("Tick"), tr("Space"), tr("Ticks or clears the current node of a page's tree"));
    add(tr("Help on a page"), QStringLiteral("F1"),
        tr("In a wizard or a sheet, and in the about box"));
    add(tr("First and last row"), tr("Home, End"), tr("In a list"));
    add(tr("Close find or filter"), tr("Esc"), tr("Closes the bar in which the cursor is"));
    inLists->setExpanded(true);
    // Each column shows all it has; where the three are wider than the window, it scrolls.
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list, 1);
    column->addWidget(buttons);
    const int wanted = list->header()->length() + 60;
    resizeWithinScreen(*this, {wanted, 660});
}

} // namespace desktop
