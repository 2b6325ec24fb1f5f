#include "hosts/viewer/table/row_table.h"

#include "hosts/common/filters/highlights.h"
#include "hosts/common/look/theme.h"
#include "hosts/viewer/table/row_access.h"
#include "hosts/viewer/table/row_painter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QSettings>

#include <algorithm>

namespace viewer {

namespace {

constexpr int rowRoom = 6;
constexpr std::size_t mostHeld = 200; ///< selected rows that are kept through a change
const QString columnsKey = QStringLiteral("table/columns");

} // namespace

RowTable::RowTable(RowModel& model, QSettings& settings, QWidget* parent)
    : QAbstractItemView(parent), rows_(model), settings_(settings),
      header_(new QHeaderView(Qt::Horizontal, this))
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setFrameShape(NoFrame);
    setFont(theme::traceFont());
    setTabKeyNavigation(false);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    header_->setFont(QApplication::font());
    header_->setSectionsMovable(true);
    header_->setSectionsClickable(true);
    header_->setHighlightSections(false);
    header_->setMinimumSectionSize(24);
    header_->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header_->setContextMenuPolicy(Qt::CustomContextMenu);
    setModel(&rows_);
    header_->setModel(&rows_);
    const QByteArray remembered = settings_.value(columnsKey).toByteArray();
    resetColumns();
    header_->restoreState(remembered);
    connect(header_, &QHeaderView::sectionResized, this, &RowTable::rememberColumns);
    connect(header_, &QHeaderView::sectionMoved, this, &RowTable::rememberColumns);
    connect(header_, &QWidget::customContextMenuRequested, this,
            [this](const QPoint& at) { offerColumns(header_->mapToGlobal(at)); });
    connect(&rows_, &QAbstractItemModel::modelAboutToBeReset, this, &RowTable::hold);
    // Behind the selection model, which hears of it, too, and then has nothing selected.
    connect(&rows_, &QAbstractItemModel::modelReset, this, &RowTable::restore);
    connect(&rows_, &QAbstractItemModel::headerDataChanged, viewport(),
            qOverload<>(&QWidget::update));
    makeRowsSpeak(*this);
}

RowTable::~RowTable() = default;

void RowTable::setHighlights(const Highlights& highlights)
{
    highlights_ = &highlights;
    connect(&highlights, &Highlights::changed, viewport(), qOverload<>(&QWidget::update));
}

void RowTable::setGutter(QWidget& gutter)
{
    gutter_ = &gutter;
    updateGeometries();
}

int RowTable::rowHeight() const
{
    return fontMetrics().height() + rowRoom;
}

std::size_t RowTable::firstInSight() const
{
    return static_cast<std::size_t>(verticalScrollBar()->value());
}

std::size_t RowTable::rowsInSight() const
{
    return static_cast<std::size_t>(std::max(1, viewport()->height() / rowHeight()));
}

/// The place at a height of the viewport; it may be past the last row.
int RowTable::placeAt(int y) const
{
    const int rows = y < 0 ? -((-y + rowHeight() - 1) / rowHeight()) : y / rowHeight();
    return verticalScrollBar()->value() + rows;
}

std::vector<RowColumn> RowTable::shownColumns() const
{
    std::vector<RowColumn> columns;
    for (int at = 0; at < rowColumns; ++at)
        if (const int section = header_->logicalIndex(at); !header_->isSectionHidden(section))
            columns.push_back(static_cast<RowColumn>(section));
    return columns;
}

bool RowTable::showsColumn(RowColumn column) const
{
    return !header_->isSectionHidden(static_cast<int>(column));
}

void RowTable::showColumn(RowColumn column, bool shown)
{
    if (!shown && shownColumns().size() == 1) return;
    header_->setSectionHidden(static_cast<int>(column), !shown);
    rememberColumns();
}

void RowTable::resetColumns()
{
    for (const RowColumnInfo& info : RowColumns::all()) {
        const int section = static_cast<int>(info.column);
        header_->moveSection(header_->visualIndex(section), section);
        header_->setSectionHidden(section, !info.shown);
        const int text =
            fontMetrics().horizontalAdvance(QString(info.characters, QLatin1Char('0')));
        header_->resizeSection(section, text + 2 * RowPainter::margin + 2);
    }
    rememberColumns();
}

void RowTable::rememberColumns()
{
    settings_.setValue(columnsKey, header_->saveState());
    updateGeometries();
    viewport()->update();
}

void RowTable::offerColumns(const QPoint& at)
{
    QMenu menu(this);
    for (const RowColumnInfo& info : RowColumns::all()) {
        QAction* entry = menu.addAction(RowColumns::title(info.column));
        entry->setCheckable(true);
        entry->setChecked(showsColumn(info.column));
        connect(entry, &QAction::triggered, this,
                [this, column = info.column](bool shown) { showColumn(column, shown); });
    }
    menu.addSeparator();
    connect(menu.addAction(tr("&Reset Columns")), &QAction::triggered, this,
            &RowTable::resetColumns);
    menu.exec(at);
}

std::optional<std::size_t> RowTable::currentPlace() const
{
    if (!currentIndex().isValid()) return std::nullopt;
    return static_cast<std::size_t>(currentIndex().row());
}

std::vector<PlaceRange> RowTable::selectedRanges(std::size_t most) const
{
    std::vector<PlaceRange> selected;
    for (const QItemSelectionRange& range : selectionModel()->selection())
        selected.emplace_back(range.top(), static_cast<std::size_t>(range.bottom()) + 1);
    std::sort(selected.begin(), selected.end());
    std::vector<PlaceRange> ranges;
    for (auto [first, end] : selected) {
        if (!ranges.empty() && first <= ranges.back().second) {
            // One may overlap the next.
            first = ranges.back().second;
            end = std::max(first, end);
        }
        end = std::min(end, first + most);
        most -= end - first;
        if (!ranges.empty() && first == ranges.back().second)
            ranges.back().second = end;
        else if (first < end)
            ranges.emplace_back(first, end);
    }
    return ranges;
}

std::size_t RowTable::selectedCount() const
{
    std::size_t count = 0;
    const auto all = static_cast<std::size_t>(rows_.rowCount());
    for (const auto& [first, end] : selectedRanges(all)) count += end - first;
    return count;
}

std::vector<std::size_t> RowTable::selectedPlaces(std::size_t most) const
{
    std::vector<std::size_t> places;
    for (const auto& [first, end] : selectedRanges(most))
        for (std::size_t place = first; place < end; ++place) places.push_back(place);
    return places;
}

void RowTable::goTo(std::size_t place)
{
    if (place >= static_cast<std::size_t>(rows_.rowCount())) return;
    const int column = currentIndex().isValid() ? currentIndex().column() : 0;
    const QModelIndex row = rows_.index(static_cast<int>(place), column);
    selectionModel()->setCurrentIndex(row, QItemSelectionModel::ClearAndSelect |
                                               QItemSelectionModel::Rows);
    const std::size_t first = firstInSight();
    if (place < first || place >= first + rowsInSight()) scrollTo(row, PositionAtCenter);
}

void RowTable::scrollToEnd()
{
    verticalScrollBar()->setValue(verticalScrollBar()->maximum());
}

bool RowTable::isAtEnd() const
{
    return verticalScrollBar()->value() == verticalScrollBar()->maximum();
}

/// Rows come behind the last one alone.
void RowTable::rowsInserted(const QModelIndex& parent, int first, int last)
{
    QAbstractItemView::rowsInserted(parent, first, last);
    updateGeometries();
    viewport()->update();
}

/// Notes what stays through a change: the current row where it stands in sight, or else the row at
/// the top.
void RowTable::hold()
{
    held_.selected.clear();
    held_.anchor.reset();
    held_.all = false;
    if (rows_.rowCount() == 0) return;
    const std::size_t selected = selectedCount();
    held_.all = selected > mostHeld && selected == static_cast<std::size_t>(rows_.rowCount());
    for (const std::size_t place : selectedPlaces(mostHeld))
        held_.selected.push_back(rows_.document().indexRow(place));
    const std::size_t first = firstInSight();
    const auto current = currentPlace();
    const bool inSight = current && *current >= first && *current < first + rowsInSight();
    const std::size_t anchor = inSight ? *current : first;
    if (anchor == 0) return;
    held_.anchor = inSight && held_.current ? *held_.current : rows_.document().indexRow(anchor);
    held_.above = static_cast<int>(anchor - first);
}

void RowTable::reset()
{
    QAbstractItemView::reset();
    updateGeometries();
}

void RowTable::restore()
{
    const int rows = rows_.rowCount();
    if (rows == 0) return emit currentPlaceChanged();
    restoring_ = true;
    Document& document = rows_.document();
    const auto indexOf = [&](const timeline::IndexRow& row) {
        const auto place = document.placeOf(row);
        if (!place) return QModelIndex();
        return rows_.index(std::min(static_cast<int>(*place), rows - 1), 0);
    };
    if (held_.current) {
        if (const QModelIndex current = indexOf(*held_.current); current.isValid())
            selectionModel()->setCurrentIndex(current, QItemSelectionModel::ClearAndSelect |
                                                           QItemSelectionModel::Rows);
    }
    QItemSelection selection;
    if (held_.all) selection.select(rows_.index(0, 0), rows_.index(rows - 1, rowColumns - 1));
    for (const timeline::IndexRow& row : held_.selected)
        if (const QModelIndex index = indexOf(row);
            index.isValid() &&
            document.indexRow(static_cast<std::size_t>(index.row())).place == row.place)
            selection.select(index, index.siblingAtColumn(rowColumns - 1));
    if (!selection.isEmpty())
        selectionModel()->select(selection,
                                 QItemSelectionModel::Select | QItemSelectionModel::Rows);
    if (held_.anchor)
        if (const QModelIndex anchor = indexOf(*held_.anchor); anchor.isValid())
            verticalScrollBar()->setValue(anchor.row() - held_.above);
    restoring_ = false;
    emit currentPlaceChanged();
}

void RowTable::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QAbstractItemView::currentChanged(current, previous);
    viewport()->update();
    if (restoring_) return;
    if (current.isValid())
        held_.current = rows_.document().indexRow(static_cast<std::size_t>(current.row()));
    emit currentPlaceChanged();
}

QRect RowTable::visualRect(const QModelIndex& index) const
{
    if (!index.isValid()) return {};
    const int height = rowHeight();
    return {header_->sectionViewportPosition(index.column()),
            (index.row() - verticalScrollBar()->value()) * height,
            header_->sectionSize(index.column()), height};
}

QModelIndex RowTable::indexAt(const QPoint& point) const
{
    const int row = placeAt(point.y());
    if (row < 0 || row >= rows_.rowCount()) return {};
    const int column = header_->logicalIndexAt(point.x());
    // Right of the columns a row is still that row.
    return rows_.index(row, column >= 0 ? column : header_->logicalIndex(rowColumns - 1));
}

void RowTable::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    if (!index.isValid()) return;
    const int first = verticalScrollBar()->value();
    const int rows = static_cast<int>(rowsInSight());
    const int row = index.row();
    if (hint == PositionAtCenter)
        verticalScrollBar()->setValue(row - rows / 2);
    else if (hint == PositionAtTop || row < first)
        verticalScrollBar()->setValue(row);
    else if (hint == PositionAtBottom || row >= first + rows)
        verticalScrollBar()->setValue(row - rows + 1);
}

QModelIndex RowTable::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    const int rows = rows_.rowCount();
    if (rows == 0) return {};
    const int row = std::max(0, currentIndex().row());
    const int column = std::max(0, currentIndex().column());
    const int page = std::max(1, static_cast<int>(rowsInSight()) - 1);
    QScrollBar* across = horizontalScrollBar();
    switch (action) {
    case MoveUp:
    case MovePrevious:
        return rows_.index(std::max(0, row - 1), column);
    case MoveDown:
    case MoveNext:
        return rows_.index(currentIndex().isValid() ? std::min(rows - 1, row + 1) : 0, column);
    case MovePageUp:
        return rows_.index(std::max(0, row - page), column);
    case MovePageDown:
        return rows_.index(std::min(rows - 1, row + page), column);
    case MoveHome:
        return rows_.index(0, column);
    case MoveEnd:
        return rows_.index(rows - 1, column);
    case MoveLeft:
        across->setValue(across->value() - across->singleStep());
        return currentIndex();
    case MoveRight:
        across->setValue(across->value() + across->singleStep());
        return currentIndex();
    }
    return {};
}

int RowTable::horizontalOffset() const
{
    return horizontalScrollBar()->value();
}

int RowTable::verticalOffset() const
{
    return verticalScrollBar()->value() * rowHeight();
}

void RowTable::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags command)
{
    const QRect room = rect.normalized();
    const int last = rows_.rowCount() - 1;
    const int top = std::max(0, placeAt(room.top()));
    const int bottom = std::min(last, placeAt(room.bottom()));
    QItemSelection selection;
    if (top <= bottom) selection.select(rows_.index(top, 0), rows_.index(bottom, rowColumns - 1));
    selectionModel()->select(selection, command);
    viewport()->update();
}

QRegion RowTable::visualRegionForSelection(const QItemSelection&) const
{
    return viewport()->rect();
}

void RowTable::updateGeometries()
{
    const int height = header_->sizeHint().height();
    const int gutter = gutter_ != nullptr ? gutter_->sizeHint().width() : 0;
    setViewportMargins(gutter, height, 0, 0);
    const QRect room = viewport()->geometry();
    if (gutter_ != nullptr)
        gutter_->setGeometry(room.left() - gutter, room.top() - height, gutter,
                             room.height() + height);
    header_->setGeometry(room.left(), room.top() - height, room.width(), height);
    const int rows = static_cast<int>(rowsInSight());
    verticalScrollBar()->setPageStep(rows);
    verticalScrollBar()->setRange(0, std::max(0, rows_.rowCount() - rows));
    horizontalScrollBar()->setPageStep(room.width());
    horizontalScrollBar()->setSingleStep(4 * fontMetrics().averageCharWidth());
    horizontalScrollBar()->setRange(0, std::max(0, header_->length() - room.width()));
    QAbstractItemView::updateGeometries();
}

void RowTable::scrollContentsBy(int dx, int)
{
    if (dx != 0) header_->setOffset(horizontalScrollBar()->value());
    viewport()->update();
}

void RowTable::paintEvent(QPaintEvent*)
{
    QPainter drawing(viewport());
    const std::size_t first = firstInSight();
    const std::size_t rows = std::min(
        rowsInSight() + 1, static_cast<std::size_t>(rows_.rowCount()) -
                               std::min(first, static_cast<std::size_t>(rows_.rowCount())));
    if (rows == 0) return;
    rows_.document().prepare(first, rows);
    std::vector<RowPainter::Cell> cells;
    for (const RowColumn column : shownColumns()) {
        const int section = static_cast<int>(column);
        const RowPainter::Cell cell{column, header_->sectionViewportPosition(section),
                                    header_->sectionSize(section)};
        if (cell.left < viewport()->width() && cell.left + cell.width > 0) cells.push_back(cell);
    }
    RowPainter painter(drawing, palette(), font(), highlights_);
    const int height = rowHeight();
    const int current = currentIndex().isValid() ? currentIndex().row() : -1;
    for (std::size_t at = 0; at < rows; ++at) {
        const int row = static_cast<int>(first + at);
        const RowPainter::Look look{selectionModel()->isRowSelected(row, {}), hasFocus(),
                                    row == current};
        painter.draw(QRect(0, static_cast<int>(at) * height, viewport()->width(), height), cells,
                     rows_, first + at, look);
    }
}

void RowTable::changeEvent(QEvent* event)
{
    QAbstractItemView::changeEvent(event);
    if (event->type() == QEvent::FontChange) updateGeometries();
}

void RowTable::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    if (byKey && !currentIndex().isValid()) return;
    emit menuAsked(byKey ? viewport()->mapToGlobal(visualRect(currentIndex()).bottomLeft())
                         : event->globalPos());
}

} // namespace viewer
