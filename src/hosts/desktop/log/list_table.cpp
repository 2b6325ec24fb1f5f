#include "hosts/desktop/log/list_table.h"

#include "console/list_view.h"
#include "hosts/common/look/csv_field.h"
#include "hosts/desktop/log/list_model.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSettings>

#include <algorithm>

namespace desktop {

namespace {

/// The console's widths are generous: a character of the table's font for so many units.
constexpr int unitsPerCharacter = 10;
constexpr int automaticCharacters = 24;
constexpr int mostCharacters = 44;
constexpr int sampledRows = 200; ///< at the top, for a first width
constexpr int cellMargin = 14;
constexpr int symbolSize = 14;
constexpr int symbolRoom = 24; ///< for a mark or a sign before the text of a log's cell

} // namespace

ListTable::ListTable(ListModel& model, QSettings& settings, QWidget* parent)
    : QTableView(parent), rows_(model), settings_(settings)
{
    setModel(&rows_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setFrameShape(NoFrame);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setIconSize({symbolSize, symbolSize});
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(1);
    horizontalHeader()->setFont(QApplication::font());
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSortIndicatorClearable(true);
    horizontalHeader()->setMinimumSectionSize(24);
    horizontalHeader()->setSectionsClickable(true);
    connect(horizontalHeader(), &QHeaderView::sortIndicatorChanged, this, &ListTable::sortRows);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
        if (arranging_ || !rows_.list()) return;
        rememberWidths();
        if (column + 1 == rows_.columnCount())
            lastWidth_ = columnWidth(column);
        else
            fillLastColumn();
    });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& index) { emit opened(rows_.positionOfRow(index.row())); });
}

QString ListTable::widthsKey() const
{
    const ListView* list = rows_.list();
    return QStringLiteral("widths/%1-%2")
        .arg(QString::fromStdString(list->definition().name))
        .arg(list->columnCount());
}

void ListTable::listShown()
{
    const ListView* list = rows_.list();
    if (!list) return;
    arranging_ = true;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    markOrder();
    const QVariantList remembered = settings_.value(widthsKey()).toList();
    for (int column = 0; column < list->columnCount(); ++column) {
        if (column + 1 == list->columnCount()) continue;
        setColumnWidth(column, remembered.size() == list->columnCount() ? remembered[column].toInt()
                                                                        : firstWidth(column));
    }
    arranging_ = false;
    const int last = list->columnCount() - 1;
    lastWidth_ =
        std::max(std::min(firstWidth(last), fontMetrics().averageCharWidth() * automaticCharacters),
                 horizontalHeader()->sectionSizeHint(last));
    fillLastColumn();
}

/// The mark in the header tells the order of the rows: the person's, or the console's own until a
/// click sorts otherwise.
void ListTable::markOrder()
{
    const ListSort& own = rows_.list()->definition().sort;
    RowOrder order = rows_.list()->chosenOrder();
    if (order.column < 1) order = {own.onLoad ? own.column : 0, own.ascending};
    horizontalHeader()->setSortIndicatorShown(true);
    horizontalHeader()->setSortIndicator(order.column - 1, order.ascending ? Qt::AscendingOrder
                                                                           : Qt::DescendingOrder);
}

/// The current row stays in sight, wherever it goes.
void ListTable::sortRows(int column, Qt::SortOrder order)
{
    if (arranging_) return;
    rows_.sort(column, order);
    if (currentIndex().isValid()) scrollTo(currentIndex(), PositionAtCenter);
}

/// The last column takes what the others leave, and at least what it needs itself.
void ListTable::fillLastColumn()
{
    const int last = rows_.columnCount() - 1;
    if (last < 0) return;
    const bool arranging = arranging_;
    arranging_ = true;
    const int others = horizontalHeader()->length() - columnWidth(last);
    setColumnWidth(last, std::max(lastWidth_, viewport()->width() - others));
    arranging_ = arranging;
}

void ListTable::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    fillLastColumn();
}

/// What the console asks for and the rows at the top need. To look at all would take long.
int ListTable::firstWidth(int column) const
{
    const ListView& list = *rows_.list();
    const auto& declared = list.columns()[static_cast<std::size_t>(column)];
    const int character = fontMetrics().averageCharWidth();
    int width = character * (declared.width == automaticWidth ? automaticCharacters
                                                              : declared.width / unitsPerCharacter);
    for (int row = 0; row < std::min(sampledRows, rows_.rowCount()); ++row)
        width = std::max(width, fontMetrics().horizontalAdvance(rows_.text(row, column + 1)));
    width = std::min(width, character * mostCharacters) + cellMargin;
    if (list.definition().text == ListText::serverCodePage && column == 0) width += symbolRoom;
    return std::max(width, horizontalHeader()->sectionSizeHint(column));
}

void ListTable::rememberWidths()
{
    QVariantList widths;
    for (int column = 0; column < rows_.columnCount(); ++column) widths << columnWidth(column);
    settings_.setValue(widthsKey(), widths);
}

std::vector<int> ListTable::selectedRowNumbers() const
{
    std::vector<int> numbers;
    for (const auto& range : selectionModel()->selection())
        for (int row = range.top(); row <= range.bottom(); ++row) numbers.push_back(row);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

int ListTable::copyAsText() const
{
    const auto numbers = selectedRowNumbers();
    if (numbers.empty()) return 0;
    QString text;
    for (const int row : numbers) text += rows_.rowText(row).trimmed() + QLatin1Char('\n');
    QGuiApplication::clipboard()->setText(text);
    return static_cast<int>(numbers.size());
}

int ListTable::copyAsCsv() const
{
    const auto numbers = selectedRowNumbers();
    if (numbers.empty()) return 0;
    QString text;
    const auto addLine = [&](const auto& cell) {
        for (int column = 0; column < rows_.columnCount(); ++column) {
            if (column > 0) text += QLatin1Char(',');
            text += csvField(cell(column));
        }
        text += QLatin1String("\r\n");
    };
    addLine([&](int column) {
        return rows_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    });
    for (const int row : numbers) addLine([&](int column) { return rows_.text(row, column + 1); });
    QGuiApplication::clipboard()->setText(text);
    return static_cast<int>(numbers.size());
}

void ListTable::goTo(int row)
{
    if (row < 0 || row >= rows_.rowCount()) return;
    const int column = std::max(0, currentIndex().column());
    // Not by the view, which would add to the selection while Shift or Ctrl of a key is down.
    selectionModel()->setCurrentIndex(
        rows_.index(row, column), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(currentIndex(), PositionAtCenter);
}

std::uint32_t ListTable::currentPosition() const
{
    return currentIndex().isValid() ? rows_.positionOfRow(currentIndex().row()) : 0;
}

void ListTable::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && currentPosition() != 0) {
        emit opened(currentPosition());
        return;
    }
    // Home and End go to the first and the last row: a log is read by lines, not by cells.
    if (event->key() == Qt::Key_Home && event->modifiers() == Qt::NoModifier) return goTo(0);
    if (event->key() == Qt::Key_End && event->modifiers() == Qt::NoModifier)
        return goTo(rows_.rowCount() - 1);
    QTableView::keyPressEvent(event);
}

void ListTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTableView::currentChanged(current, previous);
    if (current.row() != previous.row()) emit currentRowChanged(current.row());
}

} // namespace desktop
