#include "console/list_view.h"
#include "hosts/common/look/plain_tool_tip.h"
#include "hosts/desktop/log/filter_bar.h"
#include "hosts/desktop/log/filter_button.h"
#include "hosts/desktop/log/log_columns.h"
#include "runtime/text.h"

#include <QCheckBox>
#include <QLineEdit>
#include <QLocale>
#include <QToolButton>

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace desktop {

namespace {

using timeline::Column;

/// The columns that a log and saved filters both have; 0 for one that this log lacks.
std::array<std::pair<Column, int>, 7> sharedColumns(const LogColumns& columns)
{
    return {{{Column::source, columns.source},
             {Column::component, columns.component},
             {Column::level, columns.level},
             {Column::thread, columns.thread},
             {Column::port, columns.port},
             {Column::callId, columns.callId},
             {Column::traceNumber, columns.traceNumber}}};
}

int columnOf(Column column, const LogColumns& columns)
{
    for (const auto& [shared, own] : sharedColumns(columns))
        if (shared == column) return own;
    return 0;
}

/// The values of a choice as a log has them: ranges of numbers one by one, and texts in the letters
/// of the log where it has them.
std::vector<std::string> valuesOfChoice(const timeline::ColumnChoice& choice, ListView& list,
                                        int column, const CodePage& codePage)
{
    constexpr int mostOfRange = 1000;
    const auto known = valuesOf(list, column);
    std::vector<std::string> values;
    for (const std::string& chosen : choice.values) {
        const char* const end = chosen.data() + chosen.size();
        int first = 0;
        int last = 0;
        const auto low = std::from_chars(chosen.data(), end, first);
        const bool range = low.ec == std::errc() && low.ptr != end && *low.ptr == '-' &&
                           std::from_chars(low.ptr + 1, end, last).ptr == end;
        if (range && last - first < mostOfRange) {
            for (int number = first; number <= last; ++number)
                values.push_back(std::to_string(number));
            continue;
        }
        const std::string bytes = codePage.bytesOf(chosen);
        const auto same = [&](const ColumnValue& value) {
            return equalIgnoringCase(value.text, bytes);
        };
        const auto found = std::find_if(known.begin(), known.end(), same);
        values.push_back(found == known.end() ? bytes : found->text);
    }
    return values;
}

} // namespace

RowFilter FilterBar::asked() const
{
    RowFilter filter = kept_;
    const LogColumns columns = list_ ? LogColumns::of(*list_) : LogColumns();
    for (const auto& [shared, own] : sharedColumns(columns)) {
        const FilterButton* button = own > 0 ? buttonOf(own) : nullptr;
        const ColumnCondition condition = button ? button->condition() : ColumnCondition{};
        if (condition.values.empty()) continue;
        timeline::ColumnChoice choice{shared, {}, condition.exclude};
        for (const std::string& value : condition.values)
            choice.values.push_back(decoder_.text(value).toStdString());
        filter.columns.push_back(std::move(choice));
    }
    if (!text_->text().isEmpty())
        filter.texts.insert(filter.texts.begin(),
                            {text_->text(), expression_->isChecked(), matchesCase_->isChecked(),
                             excludeText_->isChecked()});
    return filter;
}

void FilterBar::take(const RowFilter& filter)
{
    reset();
    kept_ = filter;
    kept_.columns.clear();
    for (const timeline::ColumnChoice& choice : filter.columns) {
        const int column = list_ ? columnOf(choice.column, LogColumns::of(*list_)) : 0;
        if (column > 0) addColumn(column);
        if (FilterButton* button = column > 0 ? buttonOf(column) : nullptr)
            button->setCondition({column,
                                  valuesOfChoice(choice, *list_, column, decoder_.codePage()),
                                  choice.excluded},
                                 decoder_);
        else
            kept_.columns.push_back(choice);
    }
    if (!kept_.texts.empty()) {
        const TextCondition first = kept_.texts.front();
        kept_.texts.erase(kept_.texts.begin());
        const std::pair<QCheckBox*, bool> boxes[] = {{expression_, first.expression},
                                                     {matchesCase_, first.matchesCase},
                                                     {excludeText_, first.excluded}};
        for (const auto& [box, checked] : boxes) {
            const QSignalBlocker quiet(box);
            box->setChecked(checked);
        }
        text_->setText(first.text);
    }
    showRest();
    show();
    typing_.stop();
    emit changed();
}

bool FilterBar::holdsWhole(const RowFilter& filter)
{
    const auto elsewhere = [](const timeline::ColumnChoice& choice) {
        return choice.column == Column::process || (choice.values.empty() && !choice.excluded);
    };
    return !filter.since && !filter.until &&
           std::none_of(filter.columns.begin(), filter.columns.end(), elsewhere);
}

bool FilterBar::asksForMore() const
{
    const LogColumns columns = list_ ? LogColumns::of(*list_) : LogColumns();
    return std::any_of(buttons_.begin(), buttons_.end(), [&](const FilterButton* button) {
        const bool own = button->column() == columns.timeStamp || button->column() == columns.trace;
        return own && !button->condition().values.empty();
    });
}

void FilterBar::showRest()
{
    const auto further =
        static_cast<int>(kept_.texts.size()) + (kept_.macroTrace.isEmpty() ? 0 : 1);
    rest_->setVisible(further > 0);
    rest_->setText(tr("and %1 more").arg(QLocale().toString(further)));
    QStringList told;
    for (const TextCondition& text : kept_.texts)
        told << (text.excluded ? tr("not %1").arg(text.text) : text.text);
    if (!kept_.macroTrace.isEmpty()) told << kept_.macroTrace;
    rest_->setToolTip(plainToolTip(tr("Let go: %1").arg(told.join(QStringLiteral(", ")))));
    rest_->setAccessibleName(rest_->toolTip());
}

} // namespace desktop
