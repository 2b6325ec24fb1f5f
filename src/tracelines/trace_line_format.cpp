#include "tracelines/trace_line_format.h"

#include <cstddef>
#include <cstring>

namespace {

constexpr std::size_t longestShownCallId = 31;
constexpr std::size_t timeOfDayLength = 12;
constexpr std::size_t dateTimeLength = 19;

bool isDigit(char c)
{
    return static_cast<unsigned char>(c - '0') < 10;
}

/// Whether text has digits at `d` and the shape's own characters elsewhere.
template <std::size_t size>
bool hasShape(const char* text, const char (&shape)[size])
{
    for (std::size_t i = 0; i + 1 < size; ++i)
        if (shape[i] == 'd' ? !isDigit(text[i]) : text[i] != shape[i]) return false;
    return true;
}

/// The length of the time that a line begins with; 0 when it begins with none.
std::size_t timeLength(std::string_view line)
{
    if (line.size() <= timeOfDayLength) return 0;
    if (line[2] == ':') return hasShape(line.data(), "dd:dd:dd:ddd") ? timeOfDayLength : 0;
    if (line.size() <= dateTimeLength) return 0;
    return hasShape(line.data(), "dddd-dd-dd dd:dd:dd") ? dateTimeLength : 0;
}

bool isWholeNumber(std::string_view text)
{
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    if (text.empty()) return false;
    for (const char c : text)
        if (!isDigit(c)) return false;
    return true;
}

/// Takes the field before the next `delimiter` off a line. False when there is none.
bool takeField(std::string_view& line, char delimiter, std::string_view& field)
{
    const void* found = std::memchr(line.data(), delimiter, line.size());
    if (found == nullptr) return false;
    const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - line.data());
    field = line.substr(0, length);
    line.remove_prefix(length + 1);
    return true;
}

/// Whether what follows the time is ` (source,traceNumber,component,traceLevel) trace`.
bool isFormatted(std::string_view rest)
{
    std::string_view source;
    std::string_view number;
    std::string_view component;
    std::string_view level;
    if (rest.substr(0, 2) != " (") return false;
    rest.remove_prefix(2);
    return takeField(rest, ',', source) && takeField(rest, ',', number) && isWholeNumber(number) &&
           takeField(rest, ',', component) && takeField(rest, ')', level) && isWholeNumber(level) &&
           (rest.empty() || rest.front() == ' ');
}

struct RawFields {
    std::string_view source;
    std::string_view number;
    std::string_view callId;
    std::string_view component;
    std::string_view level;
};

/// Takes the fields behind the time off a raw line and leaves the trace.
bool takeRawFields(std::string_view& rest, LogFields form, RawFields& fields)
{
    if (rest.empty() || rest.front() != ',') return false;
    rest.remove_prefix(1);
    if (!takeField(rest, ',', fields.source) || !takeField(rest, ',', fields.number)) return false;
    if (form == LogFields::extended) {
        std::string_view thread;
        std::string_view port;
        if (!takeField(rest, ',', thread) || !takeField(rest, ',', port) ||
            !takeField(rest, ',', fields.callId))
            return false;
    }
    return takeField(rest, ',', fields.component) && takeField(rest, ',', fields.level) &&
           isWholeNumber(fields.number) && isWholeNumber(fields.level);
}

/// Whether a text is one to `most` digits.
bool isPlainNumber(std::string_view text, std::size_t most)
{
    if (text.empty() || text.size() > most) return false;
    for (const char c : text)
        if (!isDigit(c)) return false;
    return true;
}

} // namespace

std::string_view timeOfSoundTraceLine(std::string_view rawLine, LogFields fields)
{
    constexpr std::size_t digitsOf32Bits = 9;
    constexpr std::size_t digitsOf16Bits = 4;
    if (rawLine.size() > longestTraceLine) return {};
    const std::size_t length = timeLength(rawLine);
    if (length == 0) return {};
    auto rest = rawLine.substr(length);
    RawFields raw;
    const bool sound = takeRawFields(rest, fields, raw) &&
                       isPlainNumber(raw.number, digitsOf32Bits) &&
                       isPlainNumber(raw.level, digitsOf16Bits);
    return sound ? rawLine.substr(0, length) : std::string_view();
}

bool appendFormattedTraceLine(std::string_view rawLine, LogFields fields, std::string& formatted)
{
    if (rawLine.size() > longestTraceLine) return false;
    const std::size_t length = timeLength(rawLine);
    if (length == 0) return false;
    const auto time = rawLine.substr(0, length);
    auto rest = rawLine.substr(length);
    if (isFormatted(rest)) {
        formatted.append(rawLine);
        return true;
    }
    RawFields raw;
    if (!takeRawFields(rest, fields, raw)) return false;
    formatted.append(time).append(" (").append(raw.source).append(1, ',').append(raw.number);
    formatted.append(1, ',').append(raw.component).append(1, ',').append(raw.level).append(") ");
    if (raw.callId.size() > longestShownCallId) formatted.append(raw.callId).append(": ");
    formatted.append(rest);
    return true;
}
