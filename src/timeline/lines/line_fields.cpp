#include "timeline/lines/line_fields.h"

#include "timeline/lines/byte_words.h"
#include "tracelines/trace_line_format.h"

#include <charconv>
#include <limits>

namespace timeline {

namespace {

constexpr std::size_t shortestLine = 20; ///< shorter ones never reach the formatter
constexpr std::size_t clockWidth = 12;   ///< of "15:23:07:123"
constexpr std::size_t datedWidth = 19;   ///< of "2025-02-20 15:23:07"

bool isDigit(char character)
{
    return static_cast<unsigned char>(character - '0') < 10;
}

/// Whether a text has digits where the shape has a `d`, and the shape's own characters elsewhere.
template <std::size_t Size>
bool hasShape(const char* text, const char (&shape)[Size])
{
    bool fits = true;
    for (std::size_t at = 0; at + 1 < Size; ++at)
        fits &= shape[at] == 'd' ? isDigit(text[at]) : text[at] == shape[at];
    return fits;
}

/// The length of the time that a line of 20 bytes or more begins with; 0 for none.
std::size_t timeLength(const char* line)
{
    if (line[2] != ':') return hasShape(line, "dddd-dd-dd dd:dd:dd") ? datedWidth : 0;
    const bool clock = bytes::clockDigits(line) != bytes::noClock && line[8] == ':' &&
                       isDigit(line[9]) && isDigit(line[10]) && isDigit(line[11]);
    return clock ? clockWidth : 0;
}

/// Reads a whole number with blanks around it and perhaps a sign; one that the type has no room for
/// is 0. False for what is no number.
template <typename Number>
bool readNumber(std::string_view text, Number& number)
{
    constexpr std::size_t surelyFitting = std::numeric_limits<Number>::digits10;
    Number plain = 0;
    std::size_t digits = 0;
    if (text.size() <= surelyFitting)
        for (; digits < text.size() && isDigit(text[digits]); ++digits)
            plain = static_cast<Number>(plain * 10 + (text[digits] - '0'));
    if (digits > 0 && digits == text.size()) {
        number = plain;
        return true;
    }
    while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
    const bool plus = !text.empty() && text.front() == '+';
    if (plus) text.remove_prefix(1);
    if (text.empty() || (plus && text.front() == '-')) return false;
    number = 0;
    const char* const end = text.data() + text.size();
    const auto [stopped, error] = std::from_chars(text.data(), end, number);
    if (error == std::errc::invalid_argument || stopped != end) return false;
    if (error == std::errc::result_out_of_range) number = 0;
    return true;
}

/// Walks over the fields of the first 510 bytes of a line.
class Fields {
public:
    Fields(const char* from, const char* end) : at_(from), end_(end) {}

    /// Takes the field before the next `delimiter`. False when there is none.
    bool take(char delimiter, std::string_view& field)
    {
        const char* const stop = bytes::find(at_, end_, delimiter);
        if (stop == end_) return false;
        field = {at_, static_cast<std::size_t>(stop - at_)};
        at_ = stop + 1;
        return true;
    }

    /// Takes a character; false, without taking it, for another one.
    bool take(char character)
    {
        if (at_ == end_ || *at_ != character) return false;
        ++at_;
        return true;
    }

    bool atEnd() const { return at_ == end_; }
    const char* at() const { return at_; }

private:
    const char* at_;
    const char* end_;
};

/// What follows the time of a formatted line: ` (source,traceNumber,component,level) trace`.
bool cutFormatted(Fields& rest, LineFields& fields)
{
    std::string_view number;
    std::string_view level;
    const bool cut = rest.take(' ') && rest.take('(') && rest.take(',', fields.source) &&
                     rest.take(',', number) && readNumber(number, fields.traceNumber) &&
                     rest.take(',', fields.component) && rest.take(')', level) &&
                     readNumber(level, fields.level);
    return cut && (rest.atEnd() || rest.take(' '));
}

/// What follows the time of a raw line.
bool cutRaw(Fields& rest, LineForm form, LineFields& fields)
{
    std::string_view number;
    std::string_view level;
    if (!rest.take(',') || !rest.take(',', fields.source) || !rest.take(',', number)) return false;
    if (form == LineForm::extended &&
        !(rest.take(',', fields.thread) && rest.take(',', fields.port) &&
          rest.take(',', fields.callId)))
        return false;
    return rest.take(',', fields.component) && rest.take(',', level) &&
           readNumber(number, fields.traceNumber) && readNumber(level, fields.level);
}

/// A line of a data file, whose trace keeps its commas.
bool cutData(std::string_view line, LineFields& fields)
{
    std::string_view number;
    Fields rest(line.data(), line.data() + line.size());
    if (!rest.take(',', fields.timeStamp) || !rest.take(',', fields.source) ||
        !rest.take(',', number) || !readNumber(number, fields.traceNumber))
        return false;
    constexpr std::int16_t dataFileLevel = -99;
    fields.component = "Data File";
    fields.level = dataFileLevel;
    fields.trace = {rest.at(), line.size() - static_cast<std::size_t>(rest.at() - line.data())};
    return true;
}

} // namespace

bool cutLine(std::string_view line, LineForm form, LineFields& fields)
{
    fields.thread = fields.port = fields.callId = {};
    if (form == LineForm::data) return cutData(line, fields);
    if (line.size() < shortestLine) return false;
    const char* const begin = line.data();
    const std::size_t width = timeLength(begin);
    const std::size_t headLength = std::min(line.size(), longestTraceLine);
    if (width == 0 || headLength == width) return false;
    fields.timeStamp = {begin, width};
    Fields rest(begin + width, begin + headLength);
    const bool cut = begin[width] == ',' ? cutRaw(rest, form, fields) : cutFormatted(rest, fields);
    fields.trace = {rest.at(), line.size() - static_cast<std::size_t>(rest.at() - begin)};
    return cut;
}

void appendToolTrace(std::string& text, std::string_view line, const LineFields& fields)
{
    const std::string_view trace = fields.trace;
    const auto start = static_cast<std::size_t>(trace.data() - line.data());
    const std::size_t gap =
        line.size() > longestTraceLine ? longestTraceLine - start : trace.size();
    text.append(trace.substr(0, gap));
    const bool gapIsTheBlankOfTheHead = gap == 0 && line[start - 1] == ')';
    if (!gapIsTheBlankOfTheHead) text += ' ';
    text.append(trace.substr(gap));
}

} // namespace timeline
