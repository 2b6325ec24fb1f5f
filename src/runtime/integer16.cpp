#include "runtime/integer16.h"

#include "runtime/run_time_error.h"

#include <limits>

namespace {

std::int16_t fitted(std::int64_t value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    if (value < Limits::min() || value > Limits::max()) {
        throw RunTimeError(runTimeErrors::overflow);
    }
    return static_cast<std::int16_t>(value);
}

} // namespace

Integer16::Integer16(int value) : value_(fitted(value)) {}

Integer16& Integer16::operator++()
{
    return *this += 1;
}

Integer16& Integer16::operator--()
{
    return *this -= 1;
}

Integer16& Integer16::operator+=(int amount)
{
    value_ = fitted(std::int64_t{value_} + amount);
    return *this;
}

Integer16& Integer16::operator-=(int amount)
{
    value_ = fitted(std::int64_t{value_} - amount);
    return *this;
}

Integer16 multiply16(Integer16 left, Integer16 right)
{
    return Integer16(left.value() * right.value());
}
