#include "hosts/desktop/filter_button.h"

#include "hosts/desktop/roomy_delegate.h"

#include <QCheckBox>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QVBoxLayout>
#include <QWidgetAction>

#include <algorithm>

FilterButton::FilterButton(QWidget* parent) : QToolButton(parent)
{
    setPopupMode(InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);

    auto* menu = new QMenu(this);
    auto* panel = new QWidget(menu);
    list_ = new QListWidget(panel);
    list_->setItemDelegate(new RoomyDelegate(list_));
    exclude_ = new QCheckBox(tr("&Hide the ticked ones"), panel);
    auto* clear = new QPushButton(tr("&Untick all"), panel);
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
}

void FilterButton::offer(const QString& title, int column, const std::vector<ColumnValue>& values,
                         const TextDecoder& decoder)
{
    filling_ = true;
    title_ = title;
    column_ = column;
    values_.clear();
    list_->clear();
    list_->setAccessibleName(title);
    for (const auto& value : values) {
        values_.push_back(value.text);
        const QString text = value.text.empty() ? tr("(none)") : decoder.text(value.text);
        auto* item =
            new QListWidgetItem(tr("%1   (%2)").arg(text, QLocale().toString(value.rows)), list_);
        item->setData(Qt::UserRole, text);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(Qt::Unchecked);
    }
    exclude_->setChecked(false);
    filling_ = false;
    updateText();
}

ColumnCondition FilterButton::condition() const
{
    ColumnCondition condition{column_, {}, exclude_->isChecked()};
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->checkState() == Qt::Checked)
            condition.values.push_back(values_[static_cast<std::size_t>(row)]);
    return condition;
}

void FilterButton::tick(const std::string& value, bool exclude)
{
    const auto found = std::find(values_.begin(), values_.end(), value);
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

void FilterButton::updateText()
{
    QStringList ticked;
    for (int row = 0; row < list_->count(); ++row)
        if (list_->item(row)->checkState() == Qt::Checked)
            ticked << list_->item(row)->data(Qt::UserRole).toString();
    QString shown = tr("all");
    if (ticked.size() == 1) shown = ticked.front();
    if (ticked.size() > 1) shown = tr("%1 and %2 more").arg(ticked.front()).arg(ticked.size() - 1);
    if (!ticked.empty() && exclude_->isChecked()) shown = tr("not %1").arg(shown);
    setText(tr("%1: %2 ").arg(title_, shown));
    setAccessibleName(tr("Filter by %1: %2").arg(title_, shown));
    setToolTip(tr("Show or hide rows by %1").arg(title_));
    QFont font = this->font();
    font.setBold(!ticked.empty());
    setFont(font);
}
