#include "runtime/text.h"

#include "runtime/run_time_error.h"

#include <algorithm>

namespace {

char lowered(char letter)
{
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

char raised(char letter)
{
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
}

} // namespace

std::string_view mid(std::string_view text, int start, int length)
{
    if (length < 0) throw RunTimeError(runTimeErrors::invalidCall);
    return mid(text, start).substr(0, static_cast<std::size_t>(length));
}

std::string_view mid(std::string_view text, int start)
{
    if (start < 1) throw RunTimeError(runTimeErrors::invalidCall);
    return text.substr(std::min(static_cast<std::size_t>(start) - 1, text.size()));
}

std::size_t positionOf(std::string_view text, std::string_view wanted, std::size_t start)
{
    if (start < 1) throw RunTimeError(runTimeErrors::invalidCall);
    if (start > text.size()) return 0;
    const std::size_t found = text.find(wanted, start - 1);
    return found == std::string_view::npos ? 0 : found + 1;
}

std::string replaceAll(std::string_view text, std::string_view wanted, std::string_view by)
{
    if (wanted.empty()) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t next = 0;;) {
        const std::size_t found = text.find(wanted, next);
        result.append(text.substr(next, found - next));
        if (found == std::string_view::npos) return result;
        result.append(by);
        next = found + wanted.size();
    }
}

std::vector<std::string> split(std::string_view text, char separator, int limit)
{
    std::vector<std::string> pieces;
    if (text.empty()) return pieces;
    for (;;) {
        const bool last = limit > 0 && pieces.size() + 1 == static_cast<std::size_t>(limit);
        const std::size_t end = last ? std::string_view::npos : text.find(separator);
        pieces.emplace_back(text.substr(0, end));
        if (end == std::string_view::npos) return pieces;
        text.remove_prefix(end + 1);
    }
}

std::string lowerCase(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    return result;
}

std::string upperCase(std::string_view text)
{
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), raised);
    return result;
}

bool equalIgnoringCase(std::string_view left, std::string_view right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](char one, char other) { return lowered(one) == lowered(other); });
}

bool beginsWith(std::string_view text, std::string_view prefix)
{
    return text.substr(0, prefix.size()) == prefix;
}

std::string_view trim(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    return trimEnd(text);
}

std::string_view trimEnd(std::string_view text)
{
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

std::string rightAlign(std::string_view text, std::size_t width)
{
    std::string result;
    if (text.size() < width) result.assign(width - text.size(), ' ');
    return result.append(text);
}
