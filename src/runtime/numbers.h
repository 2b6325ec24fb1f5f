#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// The nearest whole number, halves to the even one. Raises 6 outside 16 bits.
std::int16_t toInteger16(double value);

/// The nearest whole number, halves to the even one. Raises 6 outside 32 bits.
std::int32_t toInteger32(double value);

/// A whole text as a 32-bit number, halves to the even one; blanks around it are allowed, as are a
/// sign, thousands commas, a decimal point, an exponent and &H hexadecimal digits.
/// Raises 13 when the text is not a number (the empty text is none), 6 outside 32 bits.
std::int32_t toInteger32(std::string_view text);

/// A whole text as a number, by the rules of `toInteger32`. Raises 13.
double toNumber(std::string_view text);

/// Whether `toNumber` would accept the text.
bool isNumeric(std::string_view text);

/// The number that a text begins with: the scan passes over leading blanks, tabs and line feeds,
/// takes sign, digits, one decimal point and an exponent, and stops at the first character that
/// cannot belong to a number; a blank is one. No leading number gives 0. Never raises but for 6,
/// past the range of a double.
double leadingNumber(std::string_view text);

/// A whole number as plain decimal text: "-5", "0", "1033".
std::string numberText(std::int64_t value);

/// A number as plain text: up to 15 significant digits, no trailing zeros, "0.5" for a half.
std::string numberText(double value);

/// A single-precision number as plain text: up to 7 significant digits.
std::string numberText(float value);

/// Number to text in the form that leaves a blank for the sign: " 100", "-5".
std::string numberTextWithLeadingBlank(std::int64_t value);

/// A number by the mask "###0.0#####": at least one digit on each side of the point, at most six
/// behind it.
std::string maskElapsedSeconds(double value);

/// A number by the mask "##0.#": at most one decimal, and a point even when none follows ("12.").
std::string maskOneDecimal(double value);

/// A number by the mask "###,###": no decimals, commas between groups of three; zero is "".
std::string maskThousands(double value);
