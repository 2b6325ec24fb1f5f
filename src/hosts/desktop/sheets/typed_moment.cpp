#include "hosts/desktop/sheets/typed_moment.h"

#include <QRegularExpression>

namespace desktop {

namespace {

constexpr int earliestYear = 100; ///< the tool's dates begin with it
constexpr int yearDigits = 4;
constexpr int noon = 12;

/// As typed on any keyboard: without blanks around it, and digits and signs of the usual width.
QString plainText(const QString& text)
{
    return text.normalized(QString::NormalizationForm_KC).trimmed();
}

QChar separatorOf(const QString& format)
{
    for (const QChar letter : format)
        if (!letter.isLetter()) return letter;
    return {};
}

std::optional<QDate> validDate(int year, int month, int day)
{
    const QDate date(year, month, day);
    if (!date.isValid() || year < earliestYear) return std::nullopt;
    return date;
}

/// A half of the day, and the hour that its clock begins with.
struct Half {
    int starts;
    int firstHour;
};

/// Takes the half of the day away from a time's text; nothing where the text names none.
std::optional<Half> takeHalf(QString& text)
{
    static const QRegularExpression before(QStringLiteral("^(午前|午後)\\s*"));
    static const QRegularExpression behind(QStringLiteral("\\s*([ap])\\.?\\s?m\\.?$"));
    if (const auto found = before.match(text); found.hasMatch()) {
        text.remove(0, found.capturedLength());
        return Half{found.captured(1) == QStringLiteral("午前") ? 0 : noon, 0};
    }
    if (const auto found = behind.match(text); found.hasMatch()) {
        text.truncate(found.capturedStart());
        return Half{found.captured(1) == QLatin1String("a") ? 0 : noon, 1};
    }
    return std::nullopt;
}

} // namespace

std::optional<QDate> dateTyped(const QString& text, const QString& format)
{
    static const QRegularExpression parts(
        QStringLiteral("^(\\d+)\\s*([-/.年])\\s*(\\d+)\\s*([-/.月])\\s*(\\d+)\\s*日?$"));
    const auto found = parts.match(plainText(text));
    if (!found.hasMatch()) return std::nullopt;
    const QString first = found.captured(1);
    const QString last = found.captured(5);
    const int middle = found.captured(3).toInt();
    const QString separator = found.captured(2);
    const bool inWords = separator == QStringLiteral("年");
    if (inWords != (found.captured(4) == QStringLiteral("月"))) return std::nullopt;
    if (!inWords && separator != found.captured(4)) return std::nullopt;
    if (first.size() == yearDigits) return validDate(first.toInt(), middle, last.toInt());

    // Which of two small numbers is the month is the language's to say, by its own sign only.
    const bool own = separator == separatorOf(format) || separator == QLatin1String("-");
    if (!own || last.size() != yearDigits || format.startsWith(QLatin1Char('y')))
        return std::nullopt;
    const bool monthFirst = format.startsWith(QLatin1Char('M'));
    return validDate(last.toInt(), monthFirst ? first.toInt() : middle,
                     monthFirst ? middle : first.toInt());
}

std::optional<QTime> timeTyped(const QString& text)
{
    QString clock = plainText(text).toLower();
    const std::optional<Half> half = takeHalf(clock);
    static const QRegularExpression words(QStringLiteral("\\s*(uhr|h|時)\\s*|\\s*(min|分)\\s*"));
    static const QRegularExpression seconds(QStringLiteral("(\\d)\\s*(s|秒)$"));
    const QString before = clock;
    clock.replace(seconds, QStringLiteral("\\1")).replace(words, QStringLiteral(":"));
    const bool inWords = clock != before;
    if (inWords && clock.endsWith(QLatin1Char(':'))) clock.chop(1);

    static const QRegularExpression parts(
        QStringLiteral("^(\\d{1,2})(?::(\\d{1,2})(?::(\\d{1,2}))?)?$"));
    const auto found = parts.match(clock);
    if (!found.hasMatch()) return std::nullopt;
    // Of "15", "15:3" and "15:30:0" more is to come; "15h" and "5分" are whole.
    const bool hourAlone = found.capturedLength(2) <= 0;
    const bool oneDigit = found.capturedLength(2) == 1 || found.capturedLength(3) == 1;
    if (!inWords && (oneDigit || (hourAlone && !half))) return std::nullopt;
    int hour = found.captured(1).toInt();
    if (half) {
        if (hour < half->firstHour || hour > noon) return std::nullopt;
        hour = hour % noon + half->starts;
    }
    const QTime time(hour, found.captured(2).toInt(), found.captured(3).toInt());
    if (!time.isValid()) return std::nullopt;
    return time;
}

} // namespace desktop
