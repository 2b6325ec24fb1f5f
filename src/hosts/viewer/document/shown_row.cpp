#include "hosts/viewer/document/shown_row.h"

#include "runtime/run_time_error.h"
#include "text/code_page.h"
#include "text/utf8.h"

#include <algorithm>

namespace viewer {

namespace {

using timeline::IndexRow;
using timeline::Record;
using timeline::Timeline;

constexpr char16_t firstControlSign = 0x2400; ///< of the signs for control characters
constexpr char16_t deleteSign = 0x2421;
constexpr char16_t lineEndSign = 0x21b5;
constexpr char16_t noCharacter = 0xfffd;

bool turnsDirection(char16_t character)
{
    return character == 0x061c || character == 0x200e || character == 0x200f ||
           (character >= 0x202a && character <= 0x202e) ||
           (character >= 0x2066 && character <= 0x2069);
}

/// What stands for a character; the character itself where it is harmless.
char16_t signOf(char16_t character)
{
    if (character == u'\t') return u' ';
    if (character == u'\n' || character == 0x2028 || character == 0x2029) return lineEndSign;
    if (character < u' ') return static_cast<char16_t>(firstControlSign + character);
    if (character == 0x7f) return deleteSign;
    if ((character >= 0x80 && character < 0xa0) || turnsDirection(character)) return noCharacter;
    return character;
}

} // namespace

Severity severityOf(const Record& record)
{
    // A line that could not be read has no component, and its level means nothing.
    if (!record.hasForm || record.component.empty()) return Severity::none;
    if (record.level == 0) return Severity::error;
    return record.level == 1 ? Severity::warning : Severity::none;
}

QString decoded(std::string_view bytes, const CodePage* codePage)
{
    if (codePage == nullptr)
        return QString::fromUtf8(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QString text(static_cast<qsizetype>(bytes.size()), Qt::Uninitialized);
    std::transform(bytes.begin(), bytes.end(), text.begin(),
                   [&](char byte) { return QChar(codePage->character(byte)); });
    return text;
}

QString harmless(QString text)
{
    const auto acts = [](QChar character) {
        return signOf(character.unicode()) != character.unicode();
    };
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    if (std::none_of(text.cbegin(), text.cend(), acts)) return text;
    for (QChar& character : text) character = QChar(signOf(character.unicode()));
    return text;
}

namespace {

/// The beginning of a text, with a sign where there is more. No more than that is decoded.
QString shortened(std::string_view bytes, const CodePage* codePage, qsizetype most, bool& cut)
{
    constexpr char16_t moreSign = 0x2026;
    const auto characters = static_cast<std::size_t>(most);
    const std::string_view beginning =
        codePage == nullptr ? firstCharacters(bytes, characters) : bytes.substr(0, characters);
    QString text = harmless(decoded(beginning, codePage));
    if (beginning.size() == bytes.size() && text.size() <= most) return text;
    cut = true;
    text.truncate(most - 1);
    if (!text.isEmpty() && text.back().isHighSurrogate()) text.chop(1);
    return text + QChar(moreSign);
}

} // namespace

ShownRow readRow(const Timeline& timeline, const IndexRow& row, Record& room, Texts texts)
{
    ShownRow shown;
    shown.index = row;
    shown.belongs = row.belongsToRowBefore();
    try {
        timeline.record(row, room);
    } catch (const RunTimeError& error) {
        shown.trace = harmless(QString::fromStdString(error.description()));
        return shown;
    }
    const auto text = [&](std::string_view bytes, qsizetype most = longestShownField) {
        if (texts == Texts::whole) return harmless(decoded(bytes, room.codePage));
        return shortened(bytes, room.codePage, most, shown.cut);
    };
    shown.hasForm = room.hasForm;
    shown.severity = severityOf(room);
    shown.process = harmless(decoded(room.process, nullptr));
    shown.file = harmless(decoded(room.file, nullptr));
    shown.trace = text(room.trace, longestShownTrace);
    if (!room.hasForm) return shown;
    shown.traceNumber = room.traceNumber;
    shown.level = room.level;
    shown.source = text(room.source);
    shown.component = text(room.component);
    shown.thread = text(room.thread);
    shown.port = text(room.port);
    shown.callId = text(room.callId);
    return shown;
}

} // namespace viewer
