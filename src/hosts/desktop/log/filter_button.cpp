#include "hosts/desktop/log/filter_button.h"

#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/common/look/roomy_delegate.h"

#include <QCheckBox>
#include <QLineEdit>
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

constexpr int mostListed = 500;             ///< values
constexpr std::size_t manyValues = 12;      ///< that a person may want to look among
constexpr int indexRole = Qt::UserRole + 1; ///< of a row of the list: which value it stands for

} // namespace

FilterButton::FilterButton(QWidget* parent) : QToolButton(parent)
{
    setPopupMode(InstantPopup);
    setToolButtonStyle(Qt::ToolButtonTextOnly);
    setFocusPolicy(Qt::StrongFocus);

    auto* menu = new QMenu(this);
    auto* panel = new QWidget(menu);
    search_ = new QLineEdit(panel);
    search_->setClearButtonEnabled(true);
    list_ = new QListWidget(panel);
    list_->setItemDelegate(new RoomyDelegate(list_));
    exclude_ = new QCheckBox(panel);
    auto* clear = new QPushButton(panel);
    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(8, 8, 8, 8);
    column->addWidget(search_);
    column->addWidget(list_);
    column->addWidget(exclude_);
    column->addWidget(clear);
    auto* action = new QWidgetAction(menu);
    action->setDefaultWidget(panel);
    menu->addAction(action);
    setMenu(menu);

    connect(menu, &QMenu::aboutToShow, list_, [this] {
        search_->clear();
        search_->setVisible(values_.size() > manyValues);
        list_->setFocus();
    });
    connect(search_, &QLineEdit::textChanged, this, &FilterButton::listValues);
    connect(list_, &QListWidget::itemChanged, this,
            [this](const QListWidgetItem* item) { takeTick(*item); });
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
        search_->setPlaceholderText(tr("Values with this text"));
        search_->setAccessibleName(tr("Look among the values"));
        listValues();
        updateText();
    });
}

void FilterButton::offer(const QString& title, int column, const std::vector<ColumnValue>& values,
                         const TextDecoder& decoder)
{
    const ColumnCondition kept =
        column == column_ ? condition() : ColumnCondition{column, {}, false};
    column_ = column;
    values_.clear();
    for (const ColumnValue& value : values)
        values_.push_back({value, decoder.text(value.text), false});
    setCondition(kept, decoder);
    setTitle(title);
}

void FilterButton::setCondition(const ColumnCondition& condition, const TextDecoder& decoder)
{
    for (Offered& offered : values_) offered.ticked = false;
    for (const std::string& wanted : condition.values) {
        const auto found =
            std::find_if(values_.begin(), values_.end(),
                         [&](const Offered& offered) { return offered.value.text == wanted; });
        if (found != values_.end())
            found->ticked = true;
        else
            values_.push_back({{wanted, 0}, decoder.text(wanted), true});
    }
    filling_ = true;
    exclude_->setChecked(condition.exclude);
    filling_ = false;
    listValues();
    updateText();
}

void FilterButton::setTitle(const QString& title)
{
    title_ = title;
    list_->setAccessibleName(title);
    updateText();
}

/// Those that are ticked, and the first of the others, as far as they have the text that is typed.
void FilterButton::listValues()
{
    filling_ = true;
    list_->clear();
    const QString wanted = search_->text();
    int more = 0;
    for (std::size_t index = 0; index < values_.size(); ++index) {
        const Offered& offered = values_[index];
        if (!offered.text.contains(wanted, Qt::CaseInsensitive)) continue;
        if (list_->count() >= mostListed && !offered.ticked) {
            ++more;
            continue;
        }
        const QString shown = offered.text.isEmpty() ? tr("(none)") : offered.text;
        auto* item = new QListWidgetItem(list_);
        item->setText(
            QStringLiteral("%1   (%2)").arg(shown, QLocale().toString(offered.value.rows)));
        item->setData(Qt::UserRole, offered.text);
        item->setData(indexRole, static_cast<qulonglong>(index));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(offered.ticked ? Qt::Checked : Qt::Unchecked);
    }
    if (more > 0) {
        auto* rest = new QListWidgetItem(
            tr("%1 more: type to look among them").arg(QLocale().toString(more)), list_);
        rest->setFlags(Qt::NoItemFlags);
    }
    filling_ = false;
}

void FilterButton::takeTick(const QListWidgetItem& item)
{
    if (filling_) return;
    values_[item.data(indexRole).toULongLong()].ticked = item.checkState() == Qt::Checked;
    updateText();
    emit changed();
}

ColumnCondition FilterButton::condition() const
{
    ColumnCondition condition{column_, {}, exclude_->isChecked()};
    for (const Offered& offered : values_)
        if (offered.ticked) condition.values.push_back(offered.value.text);
    return condition;
}

void FilterButton::tick(const std::string& value, bool exclude)
{
    const auto found = std::find_if(values_.begin(), values_.end(), [&](const Offered& offered) {
        return offered.value.text == value;
    });
    if (found == values_.end()) return;
    const bool turns = exclude != exclude_->isChecked();
    if (turns) reset();
    filling_ = true;
    exclude_->setChecked(exclude);
    filling_ = false;
    found->ticked = true;
    listValues();
    updateText();
    emit changed();
}

void FilterButton::reset()
{
    for (Offered& offered : values_) offered.ticked = false;
    filling_ = true;
    exclude_->setChecked(false);
    filling_ = false;
    listValues();
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
    for (const Offered& offered : values_)
        if (offered.ticked) ticked << (offered.text.isEmpty() ? tr("(none)") : offered.text);
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
