#include "hosts/common/filters/row_filter.h"

#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonValue>

#include <algorithm>

namespace {

using timeline::Column;
using timeline::ColumnChoice;
using timeline::ComponentLevels;

/// What is said of filters that make no sense.
class FilterTexts {
    Q_DECLARE_TR_FUNCTIONS(FilterTexts)
};

[[noreturn]] void refuse(const QString& what)
{
    throw RunTimeError(runTimeErrors::invalidCall, what.toStdString());
}

QString text(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// A member that has to be of a type where it is there at all.
QJsonValue member(const QJsonObject& json, const char* name, QJsonValue::Type type)
{
    const QJsonValue value = json.value(QLatin1String(name));
    if (!value.isUndefined() && value.type() != type)
        refuse(FilterTexts::tr("\"%1\" of a filter is of another kind").arg(QLatin1String(name)));
    return value;
}

QJsonObject toJson(const ColumnChoice& choice)
{
    QJsonArray values;
    for (const std::string& value : choice.values) values.append(text(value));
    return {{QStringLiteral("column"), text(std::string(nameOf(choice.column)))},
            {QStringLiteral("values"), values},
            {QStringLiteral("excluded"), choice.excluded}};
}

ColumnChoice columnOfJson(const QJsonObject& json)
{
    const QString name = member(json, "column", QJsonValue::String).toString();
    const auto column = timeline::columnOf(name.toStdString());
    if (!column) refuse(FilterTexts::tr("there is no column \"%1\" to filter by").arg(name));
    ColumnChoice choice{*column, {}, member(json, "excluded", QJsonValue::Bool).toBool()};
    for (const auto& value : member(json, "values", QJsonValue::Array).toArray())
        choice.values.push_back(value.toString().toStdString());
    return choice;
}

QJsonObject toJson(const TextCondition& condition)
{
    return {{QStringLiteral("text"), condition.text},
            {QStringLiteral("expression"), condition.expression},
            {QStringLiteral("matchesCase"), condition.matchesCase},
            {QStringLiteral("excluded"), condition.excluded}};
}

TextCondition textOfJson(const QJsonObject& json)
{
    return {member(json, "text", QJsonValue::String).toString(),
            member(json, "expression", QJsonValue::Bool).toBool(),
            member(json, "matchesCase", QJsonValue::Bool).toBool(),
            member(json, "excluded", QJsonValue::Bool).toBool()};
}

QJsonObject toJson(const ComponentLevels& component)
{
    QJsonArray levels;
    for (const std::int16_t level : component.levels) levels.append(level);
    return {{QStringLiteral("component"), text(component.component)},
            {QStringLiteral("levels"), levels}};
}

ComponentLevels levelsOfJson(const QJsonObject& json)
{
    ComponentLevels component;
    component.component = member(json, "component", QJsonValue::String).toString().toStdString();
    for (const auto& level : member(json, "levels", QJsonValue::Array).toArray())
        component.levels.push_back(static_cast<std::int16_t>(level.toInt()));
    return component;
}

template <typename Parts>
QJsonArray arrayOf(const Parts& parts)
{
    QJsonArray array;
    for (const auto& part : parts) array.append(toJson(part));
    return array;
}

/// Moments are written as text: a number of JSON is not exact enough for all of them.
std::optional<timeline::Moment> momentOfJson(const QJsonObject& json, const char* name)
{
    const QJsonValue value = member(json, name, QJsonValue::String);
    if (value.isUndefined()) return std::nullopt;
    bool understood = false;
    const qlonglong moment = value.toString().toLongLong(&understood);
    if (!understood)
        refuse(FilterTexts::tr("\"%1\" of a filter is no time").arg(QLatin1String(name)));
    return moment;
}

} // namespace

std::shared_ptr<const timeline::TextPattern> TextCondition::pattern() const
{
    using timeline::Letters;
    using timeline::TextPattern;
    const std::string fault = expression ? TextPattern::faultOf(text.toStdString()) : std::string();
    if (!fault.empty())
        refuse(FilterTexts::tr("\"%1\" is no regular expression: %2")
                   .arg(text, QString::fromStdString(fault)));
    return std::make_shared<const TextPattern>(
        expression ? TextPattern::Kind::expression : TextPattern::Kind::text, text.toStdString(),
        matchesCase ? Letters::asWritten : Letters::inAnyCase);
}

bool RowFilter::passesAll() const
{
    return columns.empty() && texts.empty() && !since && !until && macroTrace.isEmpty();
}

const ColumnChoice* RowFilter::of(Column column) const
{
    const auto found =
        std::find_if(columns.begin(), columns.end(),
                     [&](const ColumnChoice& choice) { return choice.column == column; });
    return found == columns.end() ? nullptr : &*found;
}

ColumnChoice* RowFilter::of(Column column)
{
    return const_cast<ColumnChoice*>(std::as_const(*this).of(column)); // NOLINT: it is ours
}

bool RowFilter::shows(Column column, const std::string& value) const
{
    const ColumnChoice* choice = of(column);
    if (choice == nullptr) return true;
    const bool named =
        std::find(choice->values.begin(), choice->values.end(), value) != choice->values.end();
    return named != choice->excluded;
}

void RowFilter::show(Column column, const std::string& value, bool shown)
{
    if (shows(column, value) == shown) return;
    ColumnChoice* choice = of(column);
    if (choice == nullptr) {
        columns.push_back({column, {value}, true});
        return;
    }
    if (choice->excluded == shown)
        std::erase(choice->values, value);
    else
        choice->values.push_back(value);
    if (choice->excluded && choice->values.empty()) clear(column);
}

void RowFilter::showOnly(Column column, const std::string& value)
{
    clear(column);
    columns.push_back({column, {value}, false});
}

void RowFilter::clear(Column column)
{
    std::erase_if(columns, [&](const ColumnChoice& choice) { return choice.column == column; });
}

timeline::Choice RowFilter::choice() const
{
    timeline::Choice choice;
    choice.since = since;
    choice.until = until;
    choice.columns = columns;
    for (const TextCondition& condition : texts)
        (condition.excluded ? choice.without : choice.patterns).push_back(condition.pattern());
    if (!macroTrace.isEmpty()) choice.macroTrace = macroLevels;
    const timeline::Filter tried(choice);
    return choice;
}

QJsonObject RowFilter::toJson() const
{
    QJsonObject json;
    if (!columns.empty()) json[QStringLiteral("columns")] = arrayOf(columns);
    if (!texts.empty()) json[QStringLiteral("texts")] = arrayOf(texts);
    if (since) json[QStringLiteral("since")] = QString::number(*since);
    if (until) json[QStringLiteral("until")] = QString::number(*until);
    if (!macroTrace.isEmpty()) {
        json[QStringLiteral("macroTrace")] = macroTrace;
        json[QStringLiteral("macroLevels")] = arrayOf(macroLevels);
    }
    return json;
}

RowFilter RowFilter::ofJson(const QJsonObject& json)
{
    RowFilter filter;
    for (const auto& column : member(json, "columns", QJsonValue::Array).toArray())
        filter.columns.push_back(columnOfJson(column.toObject()));
    for (const auto& condition : member(json, "texts", QJsonValue::Array).toArray())
        if (auto read = textOfJson(condition.toObject()); !read.text.isEmpty())
            filter.texts.push_back(std::move(read));
    filter.since = momentOfJson(json, "since");
    filter.until = momentOfJson(json, "until");
    filter.macroTrace = member(json, "macroTrace", QJsonValue::String).toString();
    for (const auto& component : member(json, "macroLevels", QJsonValue::Array).toArray())
        filter.macroLevels.push_back(levelsOfJson(component.toObject()));
    filter.choice();
    return filter;
}
