#include "hosts/viewer/session/session.h"

#include "runtime/run_time_error.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <utility>

namespace viewer {

namespace {

constexpr int sessionVersion = 1;
constexpr int leastWidth = 24;
constexpr int mostWidth = 4000;
const QString versionKey = QStringLiteral("version");
const QString filterKey = QStringLiteral("filter");
const QString columnsKey = QStringLiteral("columns");
const QString keptKey = QStringLiteral("kept");
const QString timesKey = QStringLiteral("times");
const QString markKey = QStringLiteral("mark");
const QString currentKey = QStringLiteral("current");
const QString topKey = QStringLiteral("top");

constexpr std::array<std::pair<TimeForm, const char*>, 3> timeForms = {
    {{TimeForm::clock, "clock"},
     {TimeForm::sinceRowBefore, "sinceRowBefore"},
     {TimeForm::sinceMark, "sinceMark"}}};

QJsonArray toJson(const std::vector<ColumnPlace>& columns)
{
    QJsonArray array;
    for (const ColumnPlace& place : columns)
        array.append(QJsonObject{
            {QStringLiteral("column"), QLatin1String(RowColumns::info(place.column).key)},
            {QStringLiteral("width"), place.width},
            {QStringLiteral("shown"), place.shown}});
    return array;
}

/// Every column once, some of them on show; else none.
std::vector<ColumnPlace> columnsOfJson(const QJsonArray& array)
{
    std::vector<ColumnPlace> columns;
    for (const auto& json : array) {
        const QString key = json[QStringLiteral("column")].toString();
        for (const RowColumnInfo& info : RowColumns::all())
            if (key == QLatin1String(info.key))
                columns.push_back(
                    {info.column,
                     std::clamp(json[QStringLiteral("width")].toInt(), leastWidth, mostWidth),
                     json[QStringLiteral("shown")].toBool()});
    }
    const auto shown = [](const ColumnPlace& place) { return place.shown; };
    for (const RowColumnInfo& info : RowColumns::all())
        if (std::count_if(columns.begin(), columns.end(), [&](const ColumnPlace& place) {
                return place.column == info.column;
            }) != 1)
            return {};
    if (std::none_of(columns.begin(), columns.end(), shown)) return {};
    return columns;
}

QJsonArray toJson(const std::vector<Highlights::Kept>& kept)
{
    QJsonArray array;
    for (const Highlights::Kept& one : kept)
        array.append(QJsonObject{{QStringLiteral("text"), one.text.text},
                                 {QStringLiteral("expression"), one.text.expression},
                                 {QStringLiteral("matchesCase"), one.text.matchesCase},
                                 {QStringLiteral("colour"), static_cast<int>(one.colour)}});
    return array;
}

std::vector<Highlights::Kept> keptOfJson(const QJsonArray& array)
{
    std::vector<Highlights::Kept> kept;
    for (const auto& json : array) {
        const int colour = json[QStringLiteral("colour")].toInt(-1);
        if (colour < 0 || kept.size() == Highlights::most) continue;
        kept.push_back(
            {{json[QStringLiteral("text")].toString(), json[QStringLiteral("expression")].toBool(),
              json[QStringLiteral("matchesCase")].toBool(), false},
             static_cast<std::size_t>(colour)});
    }
    return kept;
}

QJsonObject toJson(const RowPlace& place)
{
    QJsonObject json = place.row.toJson();
    json[QStringLiteral("path")] = place.file;
    return json;
}

/// What `read` gives; nothing where that raises.
template <typename Read>
auto partOf(const Read& read) -> std::optional<decltype(read())>
{
    try {
        return read();
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

std::optional<RowPlace> placeOfJson(const QJsonObject& json)
{
    const auto row = partOf([&] { return RowIdentity::ofJson(json); });
    if (!row) return std::nullopt;
    return RowPlace{json.value(QStringLiteral("path")).toString(), *row};
}

} // namespace

QByteArray toJson(const Session& session)
{
    QJsonObject json{{versionKey, sessionVersion},
                     {filterKey, session.filter.toJson()},
                     {columnsKey, toJson(session.columns)},
                     {keptKey, toJson(session.kept)}};
    for (const auto& [form, name] : timeForms)
        if (form == session.times) json[timesKey] = QLatin1String(name);
    if (session.mark) json[markKey] = QString::number(*session.mark);
    if (session.current) json[currentKey] = toJson(*session.current);
    if (session.top) json[topKey] = toJson(*session.top);
    return QJsonDocument(json).toJson();
}

Session sessionOfJson(const QByteArray& bytes)
{
    QJsonParseError error{};
    const QJsonObject json = QJsonDocument::fromJson(bytes, &error).object();
    Session session;
    if (json.value(versionKey).toInt() != sessionVersion) return session;
    if (auto filter = partOf([&] { return RowFilter::ofJson(json.value(filterKey).toObject()); }))
        session.filter = std::move(*filter);
    session.columns = columnsOfJson(json.value(columnsKey).toArray());
    session.kept = keptOfJson(json.value(keptKey).toArray());
    bool understood = false;
    const qlonglong mark = json.value(markKey).toString().toLongLong(&understood);
    if (understood) session.mark = mark;
    for (const auto& [form, name] : timeForms)
        if (json.value(timesKey).toString() == QLatin1String(name)) session.times = form;
    if (session.times == TimeForm::sinceMark && !session.mark) session.times = TimeForm::clock;
    session.current = placeOfJson(json.value(currentKey).toObject());
    session.top = placeOfJson(json.value(topKey).toObject());
    return session;
}

} // namespace viewer
