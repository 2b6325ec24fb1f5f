#include "runtime/numbers.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

namespace {

/// A number's characters as `std::from_chars` takes them: digits, one point, an exponent.
struct NumberCharacters {
    bool negative = false;
    std::string mantissa;
    std::string exponent; ///< with its sign; empty for none
};

bool isDigit(char character)
{
    return character >= '0' && character <= '9';
}

bool isExponentLetter(char character)
{
    return character == 'E' || character == 'e' || character == 'D' || character == 'd';
}

/// Whether a number too large or too small for a double is too large.
bool isBeyondOne(const NumberCharacters& number)
{
    const std::size_t point = std::min(number.mantissa.find('.'), number.mantissa.size());
    const std::size_t first = number.mantissa.find_first_of("123456789");
    const double placesBeforePoint =
        static_cast<double>(point) - static_cast<double>(first) - (first < point ? 0 : -1);
    double exponent = 0;
    if (!number.exponent.empty()) {
        const bool below = number.exponent.front() == '-';
        for (const char digit : number.exponent) {
            if (isDigit(digit)) exponent = std::min(exponent * 10 + (digit - '0'), 1e18);
        }
        if (below) exponent = -exponent;
    }
    return placesBeforePoint + exponent > 0;
}

double valueOf(const NumberCharacters& number)
{
    std::string text = number.mantissa;
    if (!number.exponent.empty()) text.append("e").append(number.exponent);
    double value = 0;
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), value);
    if (parsed.ec == std::errc::result_out_of_range) {
        if (isBeyondOne(number)) throw RunTimeError(runTimeErrors::overflow);
        value = 0;
    }
    return number.negative ? -value : value;
}

/// A text's characters one by one.
class Characters {
public:
    explicit Characters(std::string_view text) : rest_(text) {}

    /// A zero byte at the end: like one within, it belongs to no number.
    char peek() const { return rest_.empty() ? '\0' : rest_.front(); }

    char take()
    {
        const char taken = rest_.front();
        rest_.remove_prefix(1);
        return taken;
    }

private:
    std::string_view rest_;
};

template <typename Number>
Number roundedTo(double value)
{
    using Limits = std::numeric_limits<Number>;
    const double rounded = std::nearbyint(value);
    if (!(rounded >= Limits::min() && rounded <= Limits::max())) {
        throw RunTimeError(runTimeErrors::overflow);
    }
    return static_cast<Number>(rounded);
}

/// The bits that hexadecimal digits spell, as a signed number. Raises 13, 6 past 32 bits.
double hexadecimal(std::string_view digits)
{
    std::uint32_t bits = 0;
    const char* const end = digits.data() + digits.size();
    const auto parsed = std::from_chars(digits.data(), end, bits, 16);
    if (parsed.ec == std::errc::invalid_argument || parsed.ptr != end) {
        throw RunTimeError(runTimeErrors::typeMismatch);
    }
    if (parsed.ec == std::errc::result_out_of_range) throw RunTimeError(runTimeErrors::overflow);
    return static_cast<std::int32_t>(bits);
}

} // namespace

std::int16_t toInteger16(double value)
{
    return roundedTo<std::int16_t>(value);
}

std::int32_t toInteger32(double value)
{
    return roundedTo<std::int32_t>(value);
}

std::int32_t toInteger32(std::string_view text)
{
    return toInteger32(toNumber(text));
}

double toNumber(std::string_view text)
{
    text = trim(text);
    if (beginsWith(text, "&H") || beginsWith(text, "&h")) return hexadecimal(text.substr(2));

    std::size_t next = 0;
    const auto peek = [&] { return next < text.size() ? text[next] : '\0'; };
    NumberCharacters number;
    if (peek() == '+' || peek() == '-') number.negative = text[next++] == '-';

    bool digits = false;
    bool point = false;
    for (;; ++next) {
        const char character = peek();
        if (isDigit(character)) {
            digits = true;
            number.mantissa += character;
        } else if (character == '.' && !point) {
            point = true;
            number.mantissa += character;
        } else if (character != ',' || point || !digits) {
            break;
        }
    }
    if (!digits) throw RunTimeError(runTimeErrors::typeMismatch);

    if (isExponentLetter(peek())) {
        ++next;
        if (peek() == '+' || peek() == '-') number.exponent += text[next++];
        if (!isDigit(peek())) throw RunTimeError(runTimeErrors::typeMismatch);
        while (isDigit(peek())) number.exponent += text[next++];
    }
    if (next != text.size()) throw RunTimeError(runTimeErrors::typeMismatch);
    return valueOf(number);
}

bool isNumeric(std::string_view text)
{
    try {
        toNumber(text);
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

double leadingNumber(std::string_view text)
{
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n"), text.size()));
    Characters characters(text);
    NumberCharacters number;
    if (characters.peek() == '+' || characters.peek() == '-') {
        number.negative = characters.take() == '-';
    }

    bool digits = false;
    bool point = false;
    while (isDigit(characters.peek()) || (characters.peek() == '.' && !point)) {
        const char character = characters.take();
        (character == '.' ? point : digits) = true;
        number.mantissa += character;
    }
    if (!digits) return 0;

    if (isExponentLetter(characters.peek())) {
        characters.take();
        if (characters.peek() == '+' || characters.peek() == '-') {
            number.exponent += characters.take();
        }
        while (isDigit(characters.peek())) number.exponent += characters.take();
        if (!isDigit(number.exponent.empty() ? '\0' : number.exponent.back())) {
            number.exponent.clear();
        }
    }
    return valueOf(number);
}
