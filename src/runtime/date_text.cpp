#include "runtime/dates.h"

#include "runtime/calendar.h"

#include <array>
#include <cstddef>

namespace {

/// A short text in the making, on the stack.
class TextBuffer {
public:
    TextBuffer& text(std::string_view text)
    {
        for (const char character : text) put(character);
        return *this;
    }

    TextBuffer& put(char character)
    {
        characters_[size_++] = character;
        return *this;
    }

    /// The number with zeros in front up to `width` digits.
    TextBuffer& number(int value, int width = 1)
    {
        int unit = 1;
        for (int digits = 1; digits < width || unit <= value / 10; ++digits) unit *= 10;
        for (; unit > 0; unit /= 10) put(static_cast<char>('0' + value / unit % 10));
        return *this;
    }

    std::string_view view() const { return {characters_.data(), size_}; }
    std::string string() const { return std::string(view()); }

private:
    std::array<char, 64> characters_; // "Wednesday, September 30, 2005" is the longest part
    std::size_t size_ = 0;
};

bool isMidnight(const DateParts& parts)
{
    return parts.hour == 0 && parts.minute == 0 && parts.second == 0;
}

bool isZeroDay(const DateParts& parts)
{
    return parts.year == 1899 && parts.month == 12 && parts.day == 30;
}

int hourOfTwelve(const DateParts& parts)
{
    return (parts.hour + 11) % 12 + 1;
}

std::string_view halfOfDay(const DateParts& parts)
{
    return parts.hour < 12 ? " AM" : " PM";
}

void putShortDate(TextBuffer& buffer, const DateParts& parts)
{
    buffer.number(parts.month).put('/').number(parts.day).put('/').number(parts.year);
}

void putLongTime(TextBuffer& buffer, const DateParts& parts)
{
    buffer.number(hourOfTwelve(parts)).put(':').number(parts.minute, 2);
    buffer.put(':').number(parts.second, 2).text(halfOfDay(parts));
}

void putClockTime(TextBuffer& buffer, const DateParts& parts)
{
    buffer.number(parts.hour, 2).put(':').number(parts.minute, 2);
    buffer.put(':').number(parts.second, 2);
}

void putGeneralDate(TextBuffer& buffer, const DateParts& parts)
{
    const bool timeAlone = isZeroDay(parts);
    if (!timeAlone) putShortDate(buffer, parts);
    if (!timeAlone && isMidnight(parts)) return;
    if (!timeAlone) buffer.put(' ');
    putLongTime(buffer, parts);
}

} // namespace

std::string dateText(Date date)
{
    TextBuffer buffer;
    putGeneralDate(buffer, partsOf(date));
    return buffer.string();
}

void appendDateText(std::string& text, Date date)
{
    TextBuffer buffer;
    putGeneralDate(buffer, partsOf(date));
    text.append(buffer.view());
}

std::string shortDate(Date date)
{
    TextBuffer buffer;
    putShortDate(buffer, partsOf(date));
    return buffer.string();
}

std::string longDate(Date date)
{
    const DateParts parts = partsOf(date);
    TextBuffer buffer;
    buffer.text(calendar::dayNames[static_cast<std::size_t>(parts.dayOfWeek - 1)]).text(", ");
    buffer.text(calendar::monthNames[static_cast<std::size_t>(parts.month - 1)]).put(' ');
    buffer.number(parts.day).text(", ").number(parts.year);
    return buffer.string();
}

std::string longTime(Date date)
{
    TextBuffer buffer;
    putLongTime(buffer, partsOf(date));
    return buffer.string();
}

std::string mediumTime(Date date)
{
    const DateParts parts = partsOf(date);
    TextBuffer buffer;
    buffer.number(hourOfTwelve(parts), 2).put(':').number(parts.minute, 2).text(halfOfDay(parts));
    return buffer.string();
}

std::string shortTime(Date date)
{
    const DateParts parts = partsOf(date);
    TextBuffer buffer;
    buffer.number(parts.hour, 2).put(':').number(parts.minute, 2);
    return buffer.string();
}

std::string clockTime(Date date)
{
    TextBuffer buffer;
    putClockTime(buffer, partsOf(date));
    return buffer.string();
}

std::string fileStamp(Date date)
{
    const DateParts parts = partsOf(date);
    TextBuffer buffer;
    buffer.number(parts.year, 4).number(parts.month, 2).number(parts.day, 2).put('_');
    buffer.number(parts.hour, 2).number(parts.minute, 2).number(parts.second, 2);
    return buffer.string();
}

std::string sortableDateTime(Date date)
{
    const DateParts parts = partsOf(date);
    TextBuffer buffer;
    buffer.number(parts.year, 4).put('-').number(parts.month, 2).put('-').number(parts.day, 2);
    buffer.put(' ');
    putClockTime(buffer, parts);
    return buffer.string();
}
