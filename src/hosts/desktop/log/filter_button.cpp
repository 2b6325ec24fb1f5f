#include "hosts/desktop/log/filter_button.h"

#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/roomy_delegate.h"

#include <QCheckBox>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QStyleOptionToolButton>
#include <QStylePainter>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <algorithm>

namespace desktop {

namespace {

constexpr int sideMargin = 9;
constexpr int arrowSide = 9;
constexpr int arrowRoom = 14;

/// The value that a row of the list stands for, as a person reads it.
QString shownValue(const QListWidgetItem& item)
{
    const QString value = item.data(Qt::UserRole).toString();
    return value.isEmpty() ? FilterButton::tr("(none)") : value;
}

} // namespace

FilterButton::FilterButton(QWidget* parent) : QToolButton(parent)
{
    setPopupMode(InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);

    auto* menu = new QMenu(this);
    auto* panel = new QWidget(menu);
    list_ = new QListWidget(panel);
    list_->setItemDelegate(new RoomyDelegate(list_));
    exclude_ = new QCheckBox(panel);
    auto* clear = new QPushButton(panel);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(list_);
    column->addWidget(exclude_);
    column->addWidget(clear);
    auto* action = new QWidgetAction(menu);
    action->setDefaultWidget(panel);
    menu->addAction(action);
    setMenu(menu);

    connect(menu, &QMenu::aboutToShow, list_, [this] { list_->setFocus(); });
    connect(list_, &QListWidget::itemChanged, this, [this] {
        if (filling_) return;
        updateText();
        emit changed();
    });
    connect(exclude_, &QCheckBox::toggled, this, [this] {
        if (filling_) return;
        updateText();
        emit changed();
    });
    connect(clear, &QPushButton::clicked, this, [this] {
        reset();
        emit changed();
    });
    showInLanguage(this, [this, clear] {
        exclude_->setText(tr("&Hide the ticked ones"));
        clear->setText(tr("&Untick all"));
        showValues();
        updateText();
    });
}

void FilterButton::offer(const QString& title, int column, const std::vector<ColumnValue>& values,
                         const TextDecoder& decoder)
{
    const ColumnCondition kept = column == column_ ? condition() : ColumnCondition{};
    const auto isKept = [&](const ColumnValue& value) {
        return std::find(kept.values.begin(), kept.values.end(), value.text) != kept.values.end();
    };
    filling_ = true;
    column_ = column;
    values_ = values;
    for (const auto& text : kept.values) {
        const auto same = [&](const ColumnValue& value) { return value.text == text; };
        if (std::none_of(values.begin(), values.end(), same)) values_.push_back({text, 0});
    }
    list_->clear();
    for (const auto& value : values_) {
        auto* item = new QListWidgetItem(list_);
        item->setData(Qt::UserRole, decoder.text(value.text));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(isKept(value) ? Qt::Checked : Qt::Unchecked);
    }
    exclude_->setChecked(kept.exclude);
    filling_ = false;
    showValues();
    setTitle(title);
}

void FilterButton::setTitle(const QString& title)
{
    title_ = title;
    list_->setAccessibleName(title);
    updateText();
}

void FilterButton::showValues()
{
    filling_ = true;
    for (int row = 0; row < list_->count(); ++row) {
        QListWidgetItem* item = list_->item(row);
        item->setText(QStringLiteral("%1   (%2)")
                          .arg(shownValue(*item),
                               QLocale().toString(values_[static_cast<std::size_t>(row)].rows)));
    }
    filling_ = false;
}

ColumnCondition FilterButton::condition() const
{
    ColumnCondition condition{column_, {}, exclude_->isChecked()};
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->checkState() == Qt::Checked)
            condition.values.push_back(values_[static_cast<std::size_t>(row)].text);
    return condition;
}

void FilterButton::tick(const std::string& value, bool exclude)
{
    const auto found = std::find_if(values_.begin(), values_.end(),
                                    [&](const auto& offered) { return offered.text == value; });
    if (found == values_.end()) return;
    const bool turns = exclude != exclude_->isChecked();
    if (turns) reset();
    filling_ = true;
    exclude_->setChecked(exclude);
    list_->item(static_cast<int>(found - values_.begin()))->setCheckState(Qt::Checked);
    filling_ = false;
    updateText();
    emit changed();
}

void FilterButton::reset()
{
    filling_ = true;
    for (int row = 0; row < list_->count(); ++row) list_->item(row)->setCheckState(Qt::Unchecked);
    exclude_->setChecked(false);
    filling_ = false;
    updateText();
}

QSize FilterButton::sizeHint() const
{
    const QSize letters = fontMetrics().size(Qt::TextSingleLine, text());
    return {letters.width() + 2 * sideMargin + arrowRoom, QToolButton::sizeHint().height() + 4};
}

/// The text at the left and the arrow beside it: styles put it into a corner.
void FilterButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawPrimitive(QStyle::PE_PanelButtonTool, option);
    const QRect room = rect().adjusted(sideMargin, 0, -sideMargin, 0);
    painter.drawItemText(room, Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), text(),
                         QPalette::ButtonText);
    option.rect = QRect(room.right() - arrowSide + 1, room.center().y() - arrowSide / 2 + 1,
                        arrowSide, arrowSide);
    painter.drawPrimitive(QStyle::PE_IndicatorArrowDown, option);
}

void FilterButton::updateText()
{
    QStringList ticked;
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->checkState() == Qt::Checked) ticked << shownValue(*list_->item(row));
    QString shown = tr("all");
    if (ticked.size() == 1) shown = ticked.front();
    if (ticked.size() > 1)
        shown = tr("%1 and %2 more").arg(ticked.front()).arg(QLocale().toString(ticked.size() - 1));
    if (!ticked.empty() && exclude_->isChecked()) shown = tr("not %1").arg(shown);
    setText(tr("%1: %2 ").arg(title_, shown));
    setAccessibleName(tr("Filter by %1: %2").arg(title_, shown));
    setToolTip(plainToolTip(tr("Show or hide rows by %1").arg(title_)));
    QFont font = this->font();
    font.setBold(!ticked.empty());
    setFont(font);
}

} // namespace desktop
