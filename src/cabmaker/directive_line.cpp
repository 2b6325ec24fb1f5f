#include "cabmaker/directive_line.h"

#include <algorithm>

#include "runtime/run_time_error.h"

namespace cabmaker {

namespace {

constexpr std::string_view blanks = " \t";

bool isQuote(char c)
{
    return c == '"' || c == '\'';
}

[[noreturn]] void refuse(const char* because)
{
    throw RunTimeError(runTimeErrors::invalidCall, because);
}

} // namespace

DirectiveLine::DirectiveLine(std::string_view line) : rest_(line)
{
    skipBlanks();
}

bool DirectiveLine::atEnd() const
{
    return rest_.empty() || rest_.front() == ';';
}

std::string DirectiveLine::word(std::string_view stops)
{
    if (!atEnd() && isQuote(next())) return quoted();
    const std::string ends = std::string(blanks) + ";" + std::string(stops);
    const std::size_t end = std::min(rest_.find_first_of(ends), rest_.size());
    std::string result(rest_.substr(0, end));
    rest_.remove_prefix(end);
    skipBlanks();
    return result;
}

std::string DirectiveLine::value()
{
    if (!atEnd() && isQuote(next())) {
        std::string result = quoted();
        if (!atEnd()) refuse("something follows the value in quotes");
        return result;
    }
    std::string_view text = rest_.substr(0, rest_.find(';'));
    text = text.substr(0, text.find_last_not_of(blanks) + 1);
    rest_ = {};
    return std::string(text);
}

bool DirectiveLine::take(char c)
{
    if (rest_.empty() || rest_.front() != c) return false;
    rest_.remove_prefix(1);
    skipBlanks();
    return true;
}

std::string DirectiveLine::quoted()
{
    const char quote = next();
    std::string result;
    for (std::size_t i = 1; i < rest_.size(); ++i) {
        if (rest_[i] != quote) {
            result += rest_[i];
        } else if (i + 1 < rest_.size() && rest_[i + 1] == quote) {
            result += quote;
            ++i;
        } else {
            rest_.remove_prefix(i + 1);
            if (!atEnd() && blanks.find(next()) == std::string_view::npos)
                refuse("something touches the closing quote");
            skipBlanks();
            return result;
        }
    }
    refuse("a quote is not closed");
}

void DirectiveLine::skipBlanks()
{
    rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size()));
}

} // namespace cabmaker
