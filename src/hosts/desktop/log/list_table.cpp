#include "hosts/desktop/log/list_table.h"

#include "console/list_view.h"
#include "hosts/common/look/csv_field.h"
#include "hosts/desktop/log/list_model.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QSettings>

#include <algorithm>

namespace desktop {

namespace {

/// The console's widths are generous: a character of the table's font for so many units.
constexpr int unitsPerCharacter = 10;
constexpr int automaticCharacters = 24;
constexpr int mostCharacters = 44;
constexpr int sampledRows = 200;   ///< at the top, for a first width
constexpr double mostOfView = 0.6; ///< that all columns but the last take together
constexpr int cellMargin = 14;
constexpr int symbolSize = 14;
constexpr int symbolRoom = 24; ///< for a mark or a sign before the text of a log's cell

/// Of the kind of list and its number of columns: what a setting is remembered for.
QString viewName(const ListView& list)
{
    return QStringLiteral("%1-%2")
        .arg(QString::fromStdString(list.definition().name))
        .arg(list.columnCount());
}

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
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this, [this](QPoint at) {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        offerColumns(*menu);
        menu->popup(horizontalHeader()->mapToGlobal(at));
    });
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
    return QStringLiteral("widths/") + viewName(*rows_.list());
}

QString ListTable::hiddenKey() const
{
    return QStringLiteral("hidden/") + viewName(*rows_.list());
}

void ListTable::listShown()
{
    const ListView* list = rows_.list();
    if (!list) return;
    arranging_ = true;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    markOrder();
    arranging_ = false;
    roomyWidth_ = 0;
    for (int column = 0; column + 1 < list->columnCount(); ++column)
        roomyWidth_ += firstWidth(column, false);
    showColumns();
    giveWidths();
    const int last = list->columnCount() - 1;
    lastWidth_ = std::max(
        std::min(firstWidth(last, false), fontMetrics().averageCharWidth() * automaticCharacters),
        horizontalHeader()->sectionSizeHint(last));
    fillLastColumn();
}

/// The widths that the person gave the columns; else the console's, or in a window that would have
/// no room for the last column then, what their contents need.
void ListTable::giveWidths()
{
    const ListView& list = *rows_.list();
    tight_ = roomyWidth_ > viewport()->width() * mostOfView;
    const QVariantList remembered = settings_.value(widthsKey()).toList();
    const bool known = remembered.size() == list.columnCount();
    arranging_ = true;
    for (int column = 0; column + 1 < list.columnCount(); ++column)
        if (!isColumnHidden(column))
            setColumnWidth(column, known ? remembered[column].toInt() : firstWidth(column, tight_));
    arranging_ = false;
}

/// What the person has hidden of such a list. Else what has to give way, for the last column to
/// have its share.
QVariantList ListTable::hiddenColumns() const
{
    if (settings_.contains(hiddenKey())) return settings_.value(hiddenKey()).toList();
    QVariantList hidden;
    int others = 0;
    for (int column = 0; column + 1 < rows_.columnCount(); ++column)
        others += firstWidth(column, true);
    for (const int column : spare_) {
        if (others <= viewport()->width() * mostOfView) break;
        if (column < 0 || column + 1 >= rows_.columnCount()) continue;
        others -= firstWidth(column, true);
        hidden << column;
    }
    return hidden;
}

/// Gives those that come back their widths.
void ListTable::showColumns()
{
    const QVariantList hidden = hiddenColumns();
    bool more = false;
    arranging_ = true;
    for (int column = 0; column < rows_.columnCount(); ++column) {
        const bool hide = column + 1 < rows_.columnCount() && hidden.contains(column);
        more |= isColumnHidden(column) && !hide;
        setColumnHidden(column, hide);
    }
    arranging_ = false;
    if (more) giveWidths();
}

void ListTable::setColumnShown(int column, bool shown)
{
    if (!rows_.list()) return;
    QVariantList hidden = hiddenColumns();
    hidden.removeAll(column);
    if (!shown) hidden << column;
    settings_.setValue(hiddenKey(), hidden);
    showColumns();
    fillLastColumn();
    // A cell that is hidden can't be scrolled to.
    if (!shown && currentIndex().column() == column) goTo(currentIndex().row());
}

void ListTable::offerColumns(QMenu& menu)
{
    if (!rows_.list()) return;
    for (int column = 0; column + 1 < rows_.columnCount(); ++column) {
        QString title = rows_.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
        QAction* entry = menu.addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")));
        entry->setCheckable(true);
        entry->setChecked(!isColumnHidden(column));
        connect(entry, &QAction::toggled, this,
                [this, column](bool shown) { setColumnShown(column, shown); });
    }
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
    const bool tight = roomyWidth_ > viewport()->width() * mostOfView;
    if (rows_.list()) showColumns();
    if (rows_.list() && tight != tight_) giveWidths();
    fillLastColumn();
}

/// What the console asks for and the rows at the top need. To look at all would take long.
int ListTable::firstWidth(int column, bool tight) const
{
    const ListView& list = *rows_.list();
    const auto& declared = list.columns()[static_cast<std::size_t>(column)];
    const int character = fontMetrics().averageCharWidth();
    int width = character * (declared.width == automaticWidth ? automaticCharacters
                                                              : declared.width / unitsPerCharacter);
    if (tight) width = 0;
    for (int row = 0; row < std::min(sampledRows, rows_.rowCount()); ++row)
        width = std::max(width, fontMetrics().horizontalAdvance(rows_.text(row, column + 1)));
    width = std::min(width, character * mostCharacters) + cellMargin;
    if (list.definition().text == ListText::serverCodePage && column == 0) width += symbolRoom;
    return std::max(width, horizontalHeader()->sectionSizeHint(column));
}

void ListTable::rememberWidths()
{
    QVariantList widths;
    const QVariantList before = settings_.value(widthsKey()).toList();
    for (int column = 0; column < rows_.columnCount(); ++column) {
        // A hidden one has no width of its own now, and the one before when it comes back.
        const bool known = before.size() == rows_.columnCount();
        const int hidden = known ? before[column].toInt() : firstWidth(column, tight_);
        widths << (isColumnHidden(column) ? hidden : columnWidth(column));
    }
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
    int column = std::max(0, currentIndex().column());
    while (isColumnHidden(column)) ++column; // the last one never is
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
