#include "hosts/viewer/marks/row_identity.h"

#include "hosts/viewer/document/shown_row.h"
#include "hosts/viewer/table/time_text.h"
#include "runtime/run_time_error.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QJsonValue>
#include <QRegularExpression>

namespace viewer {

namespace {

constexpr qsizetype hashDigits = 16;
constexpr qsizetype longestTrace = 160;

/// What is said of rows that notes are for.
class RowTexts {
    Q_DECLARE_TR_FUNCTIONS(RowTexts)
};

[[noreturn]] void refuseIdentity(const QString& what)
{
    throw RunTimeError(runTimeErrors::invalidCall, what.toStdString());
}

/// A time as `toJson` writes it, such as "2025-02-20T15:23:07.123".
timeline::Moment momentOf(const QString& text)
{
    static const QRegularExpression form(QStringLiteral(
        "^([0-9]{4})-([0-9]{2})-([0-9]{2})T([0-9]{2}):([0-9]{2}):([0-9]{2})\\.([0-9]{3})$"));
    const auto match = form.match(text);
    if (!match.hasMatch()) refuseIdentity(RowTexts::tr("the time of a row is no time"));
    const auto part = [&](int number) { return match.captured(number).toInt(); };
    if (part(2) < 1 || part(2) > 12 || part(3) < 1 || part(3) > 31)
        refuseIdentity(RowTexts::tr("the day of a row is no day"));
    constexpr timeline::Moment second = 1000;
    constexpr timeline::Moment minute = 60 * second;
    constexpr timeline::Moment hour = 60 * minute;
    return timeline::dayOf(part(1), part(2), part(3)) + part(4) * hour + part(5) * minute +
           part(6) * second + part(7);
}

} // namespace

bool RowIdentity::is(const RowIdentity& other) const
{
    return source == other.source && line == other.line && moment == other.moment &&
           hash == other.hash;
}

QJsonObject RowIdentity::toJson() const
{
    QJsonObject json{{QStringLiteral("file"), source},
                     {QStringLiteral("line"), static_cast<qint64>(line)},
                     {QStringLiteral("hash"), hash},
                     {QStringLiteral("trace"), trace}};
    if (moment != timeline::noMoment)
        json[QStringLiteral("time")] =
            clockText(moment).replace(QLatin1Char(' '), QLatin1Char('T'));
    return json;
}

RowIdentity RowIdentity::ofJson(const QJsonObject& json)
{
    static const QRegularExpression digits(QStringLiteral("^[0-9a-f]{16}$"));
    RowIdentity identity;
    const QJsonValue source = json.value(QStringLiteral("file"));
    if (!source.isString()) refuseIdentity(RowTexts::tr("a row has no file"));
    identity.source = source.toString();
    const qint64 line = json.value(QStringLiteral("line")).toInteger(-1);
    if (line < 0 || line > std::numeric_limits<std::uint32_t>::max())
        refuseIdentity(RowTexts::tr("a row has no line"));
    identity.line = static_cast<std::uint32_t>(line);
    identity.hash = json.value(QStringLiteral("hash")).toString();
    if (!digits.match(identity.hash).hasMatch()) refuseIdentity(RowTexts::tr("a row has no hash"));
    if (json.contains(QStringLiteral("time")))
        identity.moment = momentOf(json.value(QStringLiteral("time")).toString());
    identity.trace = json.value(QStringLiteral("trace")).toString().left(longestTrace);
    return identity;
}

RowIdentity identityOf(const QString& source, const timeline::IndexRow& row,
                       const timeline::Record& record)
{
    return {source, row.line, row.moment, textHash(record),
            harmless(decoded(record.trace, record.codePage)).left(longestTrace)};
}

QString textHash(const timeline::Record& record)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    const auto add = [&hash](std::string_view text) {
        hash.addData(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
    };
    if (!record.whole.empty()) {
        add(record.whole);
    } else {
        const std::string number = std::to_string(record.traceNumber);
        for (const std::string_view field :
             {record.timeStamp, record.source, std::string_view(number), record.component,
              record.trace}) {
            add(field);
            add("\n");
        }
        add(std::to_string(record.level));
    }
    return QString::fromLatin1(hash.result().toHex().left(hashDigits));
}

} // namespace viewer
