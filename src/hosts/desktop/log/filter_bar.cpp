#include "hosts/desktop/log/filter_bar.h"

#include "console/list_view.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/log_columns.h"
#include "runtime/run_time_error.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace desktop {

namespace {
constexpr int typingPause = 120; ///< milliseconds
constexpr int fixedButtons = 3;  ///< component, source, level
constexpr int fieldRoom = 24;    ///< around a text in its field
} // namespace

FilterBar::FilterBar(const CodePage& codePage, QWidget* parent)
    : QWidget(parent), more_(new QToolButton(this)), rest_(new QToolButton(this)),
      decoder_(codePage, ListText::serverCodePage), expression_(new QCheckBox(this)),
      matchesCase_(new QCheckBox(this)), text_(new QLineEdit(this)),
      excludeText_(new QCheckBox(this)), counts_(new QLabel(this))
{
    counts_->setTextFormat(Qt::PlainText);
    rows_ = new QBoxLayout(QBoxLayout::LeftToRight, this);
    rows_->setContentsMargins(8, 6, 6, 6);
    columns_ = new QHBoxLayout;
    auto* row = new QHBoxLayout;
    rows_->addLayout(columns_);
    rows_->addLayout(row, 1);
    more_->setIcon(toolIcon(QStringLiteral("more")));
    for (QToolButton* button : {more_, rest_}) {
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        columns_->addWidget(button);
    }
    rest_->hide();
    columns_->addStretch();
    columns_->addWidget(counts_);
    for (int fixed = 0; fixed < fixedButtons; ++fixed) makeButton();
    text_->setClearButtonEnabled(true);
    row->addWidget(text_, 1);
    row->addWidget(expression_);
    row->addWidget(matchesCase_);
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
        expression_->setText(tr("Expression"));
        expression_->setToolTip(tr("Take the text for a regular expression"));
        matchesCase_->setText(tr("Aa"));
        matchesCase_->setToolTip(tr("Match case"));
        matchesCase_->setAccessibleName(tr("Match case"));
        more_->setToolTip(tr("Filter by a further column (Ctrl+Alt+F)"));
        more_->setAccessibleName(more_->toolTip());
        showRest();
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
    for (QCheckBox* box : {expression_, matchesCase_, excludeText_})
        connect(box, &QCheckBox::toggled, this, &FilterBar::changed);
    connect(more_, &QToolButton::clicked, this, &FilterBar::offerColumns);
    connect(rest_, &QToolButton::clicked, this, [this] {
        kept_ = {};
        showRest();
        emit changed();
    });
    connect(all, &QToolButton::clicked, this, &FilterBar::reset);
    connect(close, &QToolButton::clicked, this, &FilterBar::closed);
}

FilterButton& FilterBar::makeButton()
{
    auto* button = new FilterButton(this);
    columns_->insertWidget(static_cast<int>(buttons_.size()), button);
    connect(button, &FilterButton::changed, this, &FilterBar::changed);
    buttons_.push_back(button);
    return *button;
}

FilterButton* FilterBar::buttonOf(int column) const
{
    const auto found = std::find_if(buttons_.begin(), buttons_.end(),
                                    [&](auto* button) { return button->column() == column; });
    return found == buttons_.end() ? nullptr : *found;
}

/// Offers the values of a column, those of levels in their order.
void FilterBar::fill(FilterButton& button, int column)
{
    auto values = valuesOf(*list_, column);
    if (column == LogColumns::of(*list_).level) {
        std::sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
            return QString::fromStdString(left.text).toInt() <
                   QString::fromStdString(right.text).toInt();
        });
    }
    button.offer(QString::fromStdString(list_->column(column).text), column, values, decoder_);
}

void FilterBar::offer(ListView& list, const TextDecoder& decoder)
{
    list_ = &list;
    decoder_ = decoder;
    const LogColumns columns = LogColumns::of(list);
    const std::array<int, fixedButtons> fixed = {columns.component, columns.source, columns.level};
    for (std::size_t index = 0; index < buttons_.size(); ++index) {
        const int column = index < fixed.size() ? fixed[index] : buttons_[index]->column();
        if (column <= list.columnCount()) fill(*buttons_[index], column);
    }
}

void FilterBar::addColumn(int column)
{
    if (list_ && offersColumn(column) && !buttonOf(column)) fill(makeButton(), column);
}

void FilterBar::offerColumns()
{
    if (!list_) return;
    show();
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int column = 1; column <= list_->columnCount(); ++column) {
        if (!offersColumn(column) || buttonOf(column)) continue;
        QString title = QString::fromStdString(list_->column(column).text);
        menu->addAction(title.replace(QLatin1Char('&'), QLatin1String("&&")), this, [this, column] {
            addColumn(column);
            FilterButton* button = buttonOf(column);
            button->setFocus(Qt::OtherFocusReason);
            // Once the bar has given it a place.
            QMetaObject::invokeMethod(
                button,
                [button] {
                    button->menu()->popup(button->mapToGlobal(QPoint(0, button->height())));
                },
                Qt::QueuedConnection);
        });
    }
    menu->popup(more_->mapToGlobal(QPoint(0, more_->height())));
}

void FilterBar::showTitles(ListView& list)
{
    for (auto* button : buttons_)
        if (button->column() > 0 && button->column() <= list.columnCount())
            button->setTitle(QString::fromStdString(list.column(button->column()).text));
}

LogFilter FilterBar::filter(const CodePage& codePage)
{
    LogFilter filter;
    for (const auto* button : buttons_) filter.columns.push_back(button->condition());
    const TextCondition text{text_->text(), expression_->isChecked(), matchesCase_->isChecked(),
                             excludeText_->isChecked()};
    text_->setToolTip({});
    try {
        filter.text = TextMatcher(codePage, text);
        filter.excludeText = text.excluded;
        for (const TextCondition& further : kept_.texts)
            filter.furtherTexts.push_back({TextMatcher(codePage, further), further.excluded});
    } catch (const RunTimeError& error) {
        text_->setToolTip(plainToolTip(QString::fromStdString(error.description())));
        emit said(QString::fromStdString(error.description()));
    }
    if (!kept_.macroTrace.isEmpty()) filter.macroTrace = kept_.macroLevels;
    return filter;
}

bool FilterBar::offersColumn(int column) const
{
    return column > 1;
}

void FilterBar::tick(int column, const std::string& value, bool exclude)
{
    addColumn(column);
    if (auto* button = buttonOf(column)) button->tick(value, exclude);
}

void FilterBar::reset()
{
    for (auto* button : buttons_) button->reset();
    kept_ = {};
    showRest();
    text_->clear(); // its own clear button has to hear of it
    for (QCheckBox* box : {expression_, matchesCase_, excludeText_}) {
        const QSignalBlocker quiet(box);
        box->setChecked(false);
    }
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
