#include "hosts/desktop/log/filter_bar.h"

#include "console/list_view.h"
#include "hosts/common/look/icons.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/log_columns.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>

#include <algorithm>

namespace desktop {

namespace {
constexpr int typingPause = 120; ///< milliseconds
constexpr int fieldRoom = 24;    ///< around a text in its field
} // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), text_(new QLineEdit(this)), excludeText_(new QCheckBox(this)),
      counts_(new QLabel(this))
{
    counts_->setTextFormat(Qt::PlainText);
    rows_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    rows_->setContentsMargins(8, 6, 6, 6);
    auto* columns = new QHBoxLayout;
    auto* row = new QHBoxLayout;
    rows_->addLayout(columns);
    rows_->addLayout(row, 1);
    for (auto& button : buttons_) {
        button = new FilterButton(this);
        columns->addWidget(button);
        connect(button, &FilterButton::changed, this, &FilterBar::changed);
    }
    columns->addStretch();
    columns->addWidget(counts_);
    text_->setClearButtonEnabled(true);
    row->addWidget(text_, 1);
    row->addWidget(excludeText_);
    auto* all = new QToolButton(this);
    all->setAutoRaise(true);
    all->setFocusPolicy(Qt::TabFocus);
    row->addWidget(all);
    auto* close = new QToolButton(this);
    close->setIcon(toolIcon(QStringLiteral("close")));
    close->setAutoRaise(true);
    close->setFocusPolicy(Qt::TabFocus);
    row->addWidget(close);
    showInLanguage(this, [this, all, close] {
        text_->setPlaceholderText(tr("Only rows with this text"));
        text_->setMinimumWidth(fontMetrics().horizontalAdvance(text_->placeholderText()) +
                               fieldRoom);
        text_->setAccessibleName(tr("Filter by text"));
        excludeText_->setText(tr("hide &matches"));
        excludeText_->setToolTip(tr("Hide the rows with the text instead of showing them"));
        all->setText(tr("Show all"));
        all->setToolTip(tr("Show every row again (Ctrl+Shift+A)"));
        close->setToolTip(tr("Close the filter bar and show every row (Esc)"));
        close->setAccessibleName(close->toolTip());
        if (counted_) counts_->setText(counted_());
    });

    typing_.setSingleShot(true);
    typing_.setInterval(typingPause);
    connect(&typing_, &QTimer::timeout, this, &FilterBar::changed);
    connect(text_, &QLineEdit::textChanged, &typing_, qOverload<>(&QTimer::start));
    connect(text_, &QLineEdit::returnPressed, this, &FilterBar::changed);
    connect(excludeText_, &QCheckBox::toggled, this, &FilterBar::changed);
    connect(all, &QToolButton::clicked, this, &FilterBar::reset);
    connect(close, &QToolButton::clicked, this, &FilterBar::closed);
}

void FilterBar::offer(ListView& list, const TextDecoder& decoder)
{
    const LogColumns columns = LogColumns::of(list);
    const std::array<int, 3> offered = {columns.component, columns.source, columns.level};
    for (std::size_t index = 0; index < offered.size(); ++index) {
        const int column = offered[index];
        if (column > list.columnCount()) continue;
        auto values = valuesOf(list, column);
        if (column == columns.level) {
            std::sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
                return QString::fromStdString(left.text).toInt() <
                       QString::fromStdString(right.text).toInt();
            });
        }
        buttons_[index]->offer(QString::fromStdString(list.column(column).text), column, values,
                               decoder);
    }
}

void FilterBar::showTitles(ListView& list)
{
    for (auto* button : buttons_)
        if (button->column() > 0 && button->column() <= list.columnCount())
            button->setTitle(QString::fromStdString(list.column(button->column()).text));
}

LogFilter FilterBar::filter(const CodePage& codePage) const
{
    LogFilter filter;
    for (const auto* button : buttons_) filter.columns.push_back(button->condition());
    filter.text = TextMatcher(codePage, text_->text().toStdU16String());
    filter.excludeText = excludeText_->isChecked();
    return filter;
}

bool FilterBar::offersColumn(int column) const
{
    return std::any_of(buttons_.begin(), buttons_.end(),
                       [&](const auto* button) { return button->column() == column; });
}

void FilterBar::tick(int column, const std::string& value, bool exclude)
{
    for (auto* button : buttons_)
        if (button->column() == column) button->tick(value, exclude);
}

void FilterBar::reset()
{
    for (auto* button : buttons_) button->reset();
    const QSignalBlocker quietExclude(excludeText_);
    text_->clear(); // its own clear button has to hear of it
    excludeText_->setChecked(false);
    typing_.stop();
    emit changed();
}

void FilterBar::startText()
{
    show();
    text_->setFocus(Qt::ShortcutFocusReason);
    text_->selectAll();
}

void FilterBar::showCounts(int shown, int all)
{
    counted_ = [shown, all] {
        const QLocale locale;
        if (shown == all) return tr("%1 rows").arg(locale.toString(all));
        return tr("%1 of %2 rows").arg(locale.toString(shown), locale.toString(all));
    };
    counts_->setText(counted_());
}

QSize FilterBar::minimumSizeHint() const
{
    const QMargins around = rows_->contentsMargins();
    int width = 0;
    for (int index = 0; index < rows_->count(); ++index)
        width = std::max(width, rows_->itemAt(index)->minimumSize().width());
    return {width + around.left() + around.right(), QWidget::minimumSizeHint().height()};
}

/// Two rows where one has no room for all.
void FilterBar::arrange()
{
    int needed = rows_->spacing() + rows_->contentsMargins().left();
    for (int index = 0; index < rows_->count(); ++index)
        needed += rows_->itemAt(index)->minimumSize().width();
    rows_->setDirection(needed <= contentsRect().width() ? QBoxLayout::LeftToRight
                                                         : QBoxLayout::TopToBottom);
}

bool FilterBar::event(QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) arrange();
    return QWidget::event(event);
}

void FilterBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) return emit closed();
    QWidget::keyPressEvent(event);
}

} // namespace desktop
