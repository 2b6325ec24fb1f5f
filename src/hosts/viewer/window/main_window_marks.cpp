#include "hosts/viewer/details/details_pane.h"
#include "hosts/viewer/histogram/strip_marks.h"
#include "hosts/viewer/marks/mark_gutter.h"
#include "hosts/viewer/marks/mark_list.h"
#include "hosts/viewer/session/session_keeper.h"
#include "hosts/viewer/window/main_window.h"

#include <QDialogButtonBox>
#include <QInputDialog>
#include <QPushButton>
#include <QStatusBar>

namespace viewer {

namespace {

constexpr int toldFor = 4000; ///< milliseconds

} // namespace

void MainWindow::makeMarks()
{
    marks_ = std::make_unique<Marks>(document_, dataFolder_ + QStringLiteral("/notes"));
    stripMarks_ = std::make_unique<StripMarks>(document_, *times_, *marks_);
    markList_ = new MarkList(*marks_, this);
    auto* gutter = new MarkGutter(*table_, *model_, *marks_);
    table_->setGutter(*gutter);
    const auto remark = [this](const timeline::IndexRow& row) { return marks_->remark(row); };
    model_->setRemarks(remark);
    details_->setRemarks(remark);
    connect(gutter, &MarkGutter::toggled, this, [this](std::size_t place) {
        table_->goTo(place);
        toggleBookmark(place);
    });
    connect(markList_, &MarkList::asked, this, &MainWindow::goToRow);
    connect(marks_.get(), &Marks::changed, this, &MainWindow::showMarks);
    connect(marks_.get(), &Marks::told, this, &MainWindow::sayFailure);
}

/// Does what commands of bookmarks and notes do.
void MainWindow::performMarks(Command command)
{
    switch (command) {
    case Command::toggleBookmark:
        if (const auto place = table_->currentPlace()) toggleBookmark(*place);
        return;
    case Command::nextBookmark:
        return goToMark(Direction::down);
    case Command::previousBookmark:
        return goToMark(Direction::up);
    case Command::clearBookmarks:
        marks_->clearBookmarks();
        return statusBar()->showMessage(tr("No row has a bookmark any more."), toldFor);
    case Command::note:
        return askForNote();
    case Command::startAfresh:
        session_->startAfresh();
        return updateActions();
    case Command::markList:
        markList_->show();
        markList_->raise();
        return markList_->activateWindow();
    default:
        return performCalls(command);
    }
}

void MainWindow::toggleBookmark(std::size_t place)
{
    const auto set = marks_->toggleBookmark(place);
    if (!set) return;
    statusBar()->showMessage(
        *set ? tr("The row has a bookmark.") : tr("The row has no bookmark any more."), toldFor);
}

void MainWindow::goToMark(Direction direction)
{
    if (const auto place = marks_->next(table_->currentPlace(), direction))
        return table_->goTo(*place);
    statusBar()->showMessage(
        marks_->isEmpty() ? tr("No row has a bookmark or a note. Ctrl+B sets a bookmark.")
                          : tr("The rows with bookmarks and notes are hidden by the filter."),
        toldFor);
}

/// Goes to a row, if it is on show.
bool MainWindow::goToRow(const timeline::IndexRow& row)
{
    const auto place = document_.placesOnShow({row}).front();
    if (place)
        table_->goTo(*place);
    else
        statusBar()->showMessage(tr("The row is hidden by the filter; Ctrl+Shift+A shows all."),
                                 toldFor);
    return place.has_value();
}

/// The row stays the one that was asked about, where another view comes while the dialog is open.
void MainWindow::askForNote()
{
    const auto place = table_->currentPlace();
    if (!place) return;
    const timeline::IndexRow row = document_.indexRow(*place);
    const Note* note = marks_->of(row);
    QInputDialog dialog(this);
    dialog.setWindowTitle(tr("Note"));
    dialog.setOption(QInputDialog::UsePlainTextEditForTextInput);
    dialog.setTextValue(note == nullptr ? QString() : note->text);
    const auto showRoom = [&dialog](const QString& text) {
        const auto tooMany = text.trimmed().size() - Marks::longestText;
        dialog.setLabelText(tooMany > 0
                                ? tr("The text is %1 characters too long for a note:").arg(tooMany)
                                : tr("Text for this row; an empty one takes the note away:"));
        if (auto* buttons = dialog.findChild<QDialogButtonBox*>())
            buttons->button(QDialogButtonBox::Ok)->setEnabled(tooMany <= 0);
    };
    showRoom({});
    connect(&dialog, &QInputDialog::textValueChanged, this, showRoom);
    if (dialog.exec() == QDialog::Accepted) setNote(row, dialog.textValue().trimmed());
}

void MainWindow::setNote(const timeline::IndexRow& row, const QString& text)
{
    if (!marks_->setText(row, text)) sayFailure(tr("The note can't be kept: %1").arg(text));
}

/// Shows the changed marks wherever rows are.
void MainWindow::showMarks()
{
    table_->viewport()->update();
    if (!details_->isHidden()) details_->show(table_->currentPlace());
    updateActions();
}

} // namespace viewer
