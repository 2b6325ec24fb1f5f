#include "hosts/viewer/window/filter_bar.h"

#include "hosts/common/look/elided_label.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/viewer/table/row_column.h"
#include "hosts/viewer/table/time_text.h"
#include "runtime/run_time_error.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

#include <algorithm>
#include <vector>

namespace viewer {

namespace {

constexpr int typingPause = 200; ///< milliseconds

/// The conditions that the two fields show: the first of either kind, as long as one setting of the
/// boxes holds for both. Files may have more.
struct FieldTexts {
    QString with;
    QString without;
    std::vector<TextCondition> others;

    explicit FieldTexts(const std::vector<TextCondition>& texts)
    {
        for (const TextCondition& text : texts) {
            QString& field = text.excluded ? without : with;
            const TextCondition& first = texts.front();
            const bool fits = field.isEmpty() && text.expression == first.expression &&
                              text.matchesCase == first.matchesCase;
            if (fits)
                field = text.text;
            else
                others.push_back(text);
        }
    }
};

/// The column of the table that shows what is filtered by.
RowColumn columnOf(timeline::Column column)
{
    switch (column) {
    case timeline::Column::process:
        return RowColumn::process;
    case timeline::Column::source:
        return RowColumn::source;
    case timeline::Column::component:
        return RowColumn::component;
    case timeline::Column::level:
        return RowColumn::level;
    case timeline::Column::thread:
        return RowColumn::thread;
    case timeline::Column::port:
        return RowColumn::port;
    case timeline::Column::callId:
        return RowColumn::callId;
    case timeline::Column::traceNumber:
        break;
    }
    return RowColumn::number;
}

} // namespace

FilterBar::FilterBar(Document& document, QWidget* parent)
    : QWidget(parent), document_(document), with_(new QLineEdit(this)),
      without_(new QLineEdit(this)), expression_(new QCheckBox(this)),
      matchesCase_(new QCheckBox(this)), said_(new ElidedLabel(Qt::ElideRight, this)),
      all_(new QToolButton(this))
{
    auto* withLabel = new QLabel(this);
    auto* withoutLabel = new QLabel(this);
    withLabel->setTextFormat(Qt::PlainText);
    withoutLabel->setTextFormat(Qt::PlainText);
    withLabel->setBuddy(with_);
    withoutLabel->setBuddy(without_);
    for (QLineEdit* field : {with_, without_}) {
        field->setClearButtonEnabled(true);
        field->setMinimumWidth(fontMetrics().averageCharWidth() * 12);
        connect(field, &QLineEdit::textChanged, &wait_, qOverload<>(&QTimer::start));
        connect(field, &QLineEdit::returnPressed, this, &FilterBar::takeTexts);
    }
    all_->setAutoRaise(true);
    all_->setFocusPolicy(Qt::TabFocus);
    wait_.setSingleShot(true);
    wait_.setInterval(typingPause);
    connect(&wait_, &QTimer::timeout, this, &FilterBar::takeTexts);
    connect(expression_, &QCheckBox::toggled, this, &FilterBar::takeTexts);
    connect(matchesCase_, &QCheckBox::toggled, this, &FilterBar::takeTexts);
    connect(all_, &QToolButton::clicked, this, [this] { document_.setFilter({}); });
    connect(&document_, &Document::filterChanged, this, &FilterBar::showFilter);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(8, 6, 6, 6);
    row->addWidget(withLabel);
    row->addWidget(with_, 2);
    row->addWidget(withoutLabel);
    row->addWidget(without_, 2);
    row->addWidget(expression_);
    row->addWidget(matchesCase_);
    row->addWidget(said_, 3);
    row->addWidget(all_);
    showInLanguage(this, [=, this] {
        withLabel->setText(tr("Rows &with:"));
        withoutLabel->setText(tr("with&out:"));
        with_->setAccessibleName(tr("Text that rows have"));
        without_->setAccessibleName(tr("Text that rows do not have"));
        expression_->setText(tr("E&xpression"));
        expression_->setToolTip(tr("Take the texts for regular expressions"));
        matchesCase_->setText(tr("&Aa"));
        matchesCase_->setAccessibleName(tr("Match case"));
        matchesCase_->setToolTip(tr("Tell capital letters from small ones"));
        all_->setText(tr("Show all"));
        said_->setAccessibleName(tr("Filter"));
        showFilter();
    });
}

QString FilterBar::said() const
{
    return said_->text();
}

/// What the filter asks besides the texts in the fields.
QString FilterBar::summary() const
{
    const RowFilter& filter = document_.filter();
    QStringList parts;
    for (const timeline::ColumnChoice& choice : filter.columns) {
        QStringList values;
        for (const std::string& value : choice.values)
            values << harmless(QString::fromStdString(value));
        const QString column = RowColumns::title(columnOf(choice.column));
        parts << (choice.excluded ? tr("%1 is not %2") : tr("%1 is %2"))
                     .arg(column, values.isEmpty() ? tr("nothing") : values.join(tr(" or ")));
    }
    for (const TextCondition& condition : FieldTexts(filter.texts).others)
        parts << (condition.excluded ? tr("without \"%1\"") : tr("with \"%1\""))
                     .arg(harmless(condition.text));
    if (filter.since) parts << tr("from %1").arg(clockText(*filter.since));
    if (filter.until) parts << tr("to %1").arg(clockText(*filter.until));
    if (!filter.macroTrace.isEmpty()) parts << filter.macroTrace;
    return parts.join(QStringLiteral(", "));
}

void FilterBar::showFilter()
{
    showing_ = true;
    const RowFilter& filter = document_.filter();
    const FieldTexts texts(filter.texts);
    if (filter.passesAll()) refused_ = false;
    // What is just being typed is not typed over, nor what was refused.
    if (!wait_.isActive() && !refused_) {
        if (!filter.texts.empty()) {
            expression_->setChecked(filter.texts.front().expression);
            matchesCase_->setChecked(filter.texts.front().matchesCase);
        }
        if (with_->text() != texts.with) with_->setText(texts.with);
        if (without_->text() != texts.without) without_->setText(texts.without);
        wait_.stop();
    }
    said_->setText(summary());
    said_->setToolTip(plainToolTip(summary()));
    all_->setEnabled(!filter.passesAll());
    showing_ = false;
}

void FilterBar::takeTexts()
{
    if (showing_) return;
    wait_.stop();
    RowFilter filter = document_.filter();
    const std::vector<TextCondition> before = filter.texts;
    filter.texts = FieldTexts(before).others;
    const auto firstOthers = static_cast<std::ptrdiff_t>(filter.texts.size());
    for (const auto& [field, excluded] : {std::pair(with_, false), std::pair(without_, true)})
        if (!field->text().isEmpty())
            filter.texts.push_back(
                {field->text(), expression_->isChecked(), matchesCase_->isChecked(), excluded});
    // The first ones are those of the fields.
    std::rotate(filter.texts.begin(), filter.texts.begin() + firstOthers, filter.texts.end());
    refused_ = false;
    if (filter.texts == before) return;
    try {
        document_.setFilter(std::move(filter));
    } catch (const RunTimeError& error) {
        refused_ = true;
        said_->setText(harmless(QString::fromStdString(error.description())));
    }
}

void FilterBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter)
        return emit left();
    QWidget::keyPressEvent(event);
}

} // namespace viewer
