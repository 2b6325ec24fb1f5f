#include "hosts/common/look/key_list.h"

#include "hosts/common/look/mnemonics.h"
#include "hosts/common/look/roomy_delegate.h"
#include "hosts/common/look/screen_room.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QTreeWidgetItem* addGroup(QTreeWidget& list, const QString& title)
{
    auto* group = new QTreeWidgetItem(&list, {title});
    group->setFirstColumnSpanned(true);
    QFont bold = list.font();
    bold.setBold(true);
    group->setFont(0, bold);
    group->setExpanded(true);
    return group;
}

void addAction(QTreeWidgetItem& group, const QAction& action, const QString& before)
{
    new QTreeWidgetItem(&group,
                        {before + withoutMnemonic(action.text()),
                         action.shortcut().toString(QKeySequence::NativeText), action.statusTip()});
}

void addMenu(QTreeWidget& list, const QString& title, const QMenu& menu)
{
    QTreeWidgetItem* group = addGroup(list, title);
    for (const QAction* action : menu.actions()) {
        if (action->isSeparator()) continue;
        if (action->menu() == nullptr) {
            addAction(*group, *action, {});
            continue;
        }
        // What a menu offers at the moment, such as sites used of late, has no keys.
        for (const QAction* inner : action->menu()->actions())
            if (!inner->shortcut().isEmpty())
                addAction(*group, *inner, withoutMnemonic(action->text()) + QStringLiteral(": "));
    }
}

} // namespace

KeyList::KeyList(const QMainWindow& window, const std::vector<Group>& groups, QWidget* parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Keys"));
    auto* list = new QTreeWidget(this);
    list->setHeaderLabels({tr("Command"), tr("Key"), tr("What it does")});
    list->setAccessibleName(tr("Keys"));
    list->setItemDelegate(new RoomyDelegate(list));
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    for (const QAction* menu : window.menuBar()->actions())
        if (menu->menu()) addMenu(*list, withoutMnemonic(menu->text()), *menu->menu());
    for (const Group& group : groups) {
        QTreeWidgetItem* item = addGroup(*list, group.title);
        for (const Key& key : group.keys) new QTreeWidgetItem(item, {key.what, key.key, key.does});
    }
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
