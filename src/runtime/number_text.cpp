#include "runtime/numbers.h"

#include "runtime/run_time_error.h"

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int doublePrecision = 15;
constexpr int floatPrecision = 7;

/// A number by its decimal digits: 0.digits times ten to the power `point`. Zero has no digits, and
/// no other number begins or ends with a zero.
struct Decimal {
    bool negative = false;
    std::string digits;
    int point = 0;
};

void dropTrailingZeros(std::string& digits)
{
    digits.erase(digits.find_last_not_of('0') + 1);
}

Decimal decimalOf(double value, int precision)
{
    if (!std::isfinite(value)) throw RunTimeError(runTimeErrors::overflow);
    Decimal decimal;
    if (value == 0) return decimal;

    std::array<char, 40> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), std::fabs(value),
                                   std::chars_format::scientific, precision - 1)
                         .ptr;
    const char* next = text.data();
    for (; *next != 'e'; ++next) {
        if (*next != '.') decimal.digits += *next;
    }
    next += next[1] == '+' ? 2 : 1;
    int exponent = 0;
    std::from_chars(next, end, exponent);

    dropTrailingZeros(decimal.digits);
    decimal.negative = value < 0;
    decimal.point = exponent + 1;
    return decimal;
}

/// Rounds to `places` behind the point, halves away from zero.
void roundTo(Decimal& decimal, int places)
{
    const int kept = decimal.point + places;
    const int count = static_cast<int>(decimal.digits.size());
    if (kept >= count) return;
    if (kept < 0) {
        decimal = Decimal{};
        return;
    }
    const bool up = decimal.digits[static_cast<std::size_t>(kept)] >= '5';
    decimal.digits.resize(static_cast<std::size_t>(kept));
    if (up) {
        while (!decimal.digits.empty() && decimal.digits.back() == '9') decimal.digits.pop_back();
        if (decimal.digits.empty()) {
            decimal.digits = "1";
            ++decimal.point;
        } else {
            ++decimal.digits.back();
        }
    }
    dropTrailingZeros(decimal.digits);
    if (decimal.digits.empty()) decimal = Decimal{};
}

/// The digits before the point; none for a number below one.
std::string wholePart(const Decimal& decimal)
{
    if (decimal.point <= 0) return {};
    std::string whole = decimal.digits.substr(0, static_cast<std::size_t>(decimal.point));
    whole.resize(static_cast<std::size_t>(decimal.point), '0');
    return whole;
}

/// The digits behind the point, without zeros at the end.
std::string fraction(const Decimal& decimal)
{
    if (decimal.digits.empty()) return {};
    if (decimal.point <= 0) {
        return std::string(static_cast<std::size_t>(-decimal.point), '0') + decimal.digits;
    }
    if (static_cast<std::size_t>(decimal.point) >= decimal.digits.size()) return {};
    return decimal.digits.substr(static_cast<std::size_t>(decimal.point));
}

/// "1.5E+20", "2E-07".
std::string scientificText(const Decimal& decimal)
{
    const int exponent = decimal.point - 1;
    std::string text = decimal.negative ? "-" : "";
    text += decimal.digits.front();
    if (decimal.digits.size() > 1) text.append(".").append(decimal.digits, 1);
    text += exponent < 0 ? "E-" : "E+";
    if (std::abs(exponent) < 10) text += '0';
    return text += numberText(std::int64_t{std::abs(exponent)});
}

/// Fixed as long as the point stands among `precision` digits, else with an exponent.
std::string plainText(double value, int precision)
{
    const Decimal decimal = decimalOf(value, precision);
    if (decimal.digits.empty()) return "0";
    const int places = static_cast<int>(decimal.digits.size()) - decimal.point;
    if (decimal.point > precision || places > precision) return scientificText(decimal);
    std::string text = decimal.negative ? "-" : "";
    const std::string whole = wholePart(decimal);
    text += whole.empty() ? "0" : whole;
    if (places > 0) text.append(".").append(fraction(decimal));
    return text;
}

/// At least one digit before the point, a point, and `least` to `most` digits behind it.
std::string pointMask(double value, std::size_t least, int most)
{
    Decimal decimal = decimalOf(value, doublePrecision);
    roundTo(decimal, most);
    std::string whole = wholePart(decimal);
    if (whole.empty()) whole = "0";
    std::string behind = fraction(decimal);
    if (behind.size() < least) behind.resize(least, '0');
    std::string text = decimal.negative ? "-" : "";
    return text.append(whole).append(".").append(behind);
}

} // namespace

std::string numberText(std::int64_t value)
{
    std::array<char, 24> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
    return std::string(text.data(), end);
}

std::string numberText(double value)
{
    return plainText(value, doublePrecision);
}

std::string numberText(float value)
{
    return plainText(static_cast<double>(value), floatPrecision);
}

std::string numberTextWithLeadingBlank(std::int64_t value)
{
    return value < 0 ? numberText(value) : " " + numberText(value);
}

std::string maskElapsedSeconds(double value)
{
    return pointMask(value, 1, 6);
}

std::string maskOneDecimal(double value)
{
    return pointMask(value, 0, 1);
}

std::string maskThousands(double value)
{
    Decimal decimal = decimalOf(value, doublePrecision);
    roundTo(decimal, 0);
    const std::string whole = wholePart(decimal);
    std::string text = decimal.negative ? "-" : "";
    for (std::size_t index = 0; index < whole.size(); ++index) {
        if (index > 0 && (whole.size() - index) % 3 == 0) text += ',';
        text += whole[index];
    }
    return text;
}
