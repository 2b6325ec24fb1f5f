#pragma once

#include <cstdint>

/// The tool's normal counter: 16 bits, signed.
///
/// A result outside -32,768 to 32,767 raises 6 (overflow) and leaves the counter as it was.
class Integer16 {
public:
    constexpr Integer16() = default;

    /// Raises 6 when `value` does not fit.
    Integer16(int value);

    constexpr int value() const noexcept { return value_; }
    constexpr operator int() const noexcept { return value_; }

    Integer16& operator++();
    Integer16& operator--();
    Integer16& operator+=(int amount);
    Integer16& operator-=(int amount);

private:
    std::int16_t value_ = 0;
};

/// The product as 16-bit arithmetic forms it. Raises 6 when it does not fit.
Integer16 multiply16(Integer16 left, Integer16 right);
