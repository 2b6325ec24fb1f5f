#include "hosts/viewer/marks/mark_list.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/time_text.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace viewer {

namespace {

constexpr QSize firstSize(760, 320);
constexpr int noteWidth = 220;
enum Column { timeColumn, sourceColumn, noteColumn, traceColumn };

} // namespace

MarkList::MarkList(Marks& marks, QWidget* parent)
    : QDialog(parent), marks_(marks), list_(new QTreeWidget(this)), hint_(new QLabel(this))
{
    list_->setColumnCount(traceColumn + 1);
    list_->setRootIsDecorated(false);
    list_->setUniformRowHeights(true);
    list_->setAllColumnsShowFocus(true);
    hint_->setTextFormat(Qt::PlainText);
    hint_->setWordWrap(true);
    auto* column = new QVBoxLayout(this);
    column->addWidget(list_, 1);
    column->addWidget(hint_);
    resize(firstSize);
    connect(&marks_, &Marks::changed, this, &MarkList::showMarks);
    connect(list_, &QTreeWidget::itemActivated, this, &MarkList::goToCurrent);
    showInLanguage(this, [this] { showTexts(); });
}

void MarkList::showTexts()
{
    setWindowTitle(tr("Bookmarks and Notes"));
    list_->setAccessibleName(tr("Bookmarks and notes"));
    list_->setHeaderLabels({tr("Time"), tr("Source"), tr("Note"), tr("Trace")});
    showMarks();
}

void MarkList::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    showMarks();
    for (const int column : {timeColumn, sourceColumn}) list_->resizeColumnToContents(column);
    list_->setColumnWidth(noteColumn, noteWidth);
    list_->setFocus();
}

/// The rows of the list keep their order while it is open, as a change of one does not move others.
void MarkList::showMarks()
{
    if (isHidden()) return;
    const int current = list_->indexOfTopLevelItem(list_->currentItem());
    shown_ = marks_.all();
    list_->clear();
    for (const Marks::Mark& mark : shown_) {
        const Note& note = mark.note;
        auto* item = new QTreeWidgetItem(
            list_, {clockText(mark.row ? mark.row->moment : note.row.moment),
                    harmless(note.row.source), harmless(note.text), harmless(note.row.trace)});
        item->setIcon(timeColumn, toolIcon(note.text.isEmpty() ? QStringLiteral("bookmark")
                                           : note.bookmark     ? QStringLiteral("bookmark-note")
                                                               : QStringLiteral("note")));
        item->setToolTip(noteColumn, plainToolTip(note.text));
        item->setToolTip(traceColumn, plainToolTip(harmless(note.row.trace)));
        if (mark.row) continue;
        for (int column = 0; column <= traceColumn; ++column) {
            item->setForeground(column, theme::quietText(palette()));
            item->setToolTip(column, tr("The row of this note was not found in what is open."));
        }
    }
    hint_->setText(shown_.empty()
                       ? tr("Ctrl+B sets a bookmark on the current row, Ctrl+N gives it a note.")
                       : tr("Enter goes to the row, Delete takes the bookmark and the note away."));
    if (list_->topLevelItemCount() > 0)
        list_->setCurrentItem(
            list_->topLevelItem(std::clamp(current, 0, list_->topLevelItemCount() - 1)));
}

void MarkList::goToCurrent()
{
    const int at = list_->indexOfTopLevelItem(list_->currentItem());
    if (at < 0) return;
    const Marks::Mark& mark = shown_[static_cast<std::size_t>(at)];
    if (mark.row) emit asked(*mark.row);
}

void MarkList::removeCurrent()
{
    const int at = list_->indexOfTopLevelItem(list_->currentItem());
    if (at >= 0) marks_.remove(Marks::Mark(shown_[static_cast<std::size_t>(at)]));
}

void MarkList::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Delete) return removeCurrent();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return goToCurrent();
    QDialog::keyPressEvent(event);
}

} // namespace viewer
