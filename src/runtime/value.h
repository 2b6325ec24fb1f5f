#pragma once

#include "runtime/dates.h"

#include <cstdint>
#include <string>
#include <variant>

/// No value was ever assigned.
struct Empty {
    friend bool operator==(Empty, Empty) { return true; }
};

/// A database's missing value.
struct Null {
    friend bool operator==(Null, Null) { return true; }
};

/// A GUID in its text form.
struct Guid {
    std::string text;
    friend bool operator==(const Guid&, const Guid&) = default;
};

/// A value as it travels between the tool and the server's database.
using Value = std::variant<Empty, Null, std::int32_t, double, Date, bool, std::string, Guid>;

/// The type codes of configuration values.
namespace valueType {
constexpr std::int32_t null = 1;
constexpr std::int32_t integer = 3;
constexpr std::int32_t floating = 4;
constexpr std::int32_t date = 7;
constexpr std::int32_t text = 8;
constexpr std::int32_t boolean = 11;
constexpr std::int32_t guid = 88;
} // namespace valueType

bool isEmpty(const Value& value);
bool isNull(const Value& value);

/// Conversions as an assignment to a variable of that type makes them: Empty gives 0, false or the
/// empty text; true is -1; any number but 0 is true; the texts "True" and "False" are booleans.
/// Raise 94 for Null, 13 for what is no such value, 6 for a number that does not fit.
std::int32_t valueAsInteger32(const Value& value);
std::int16_t valueAsInteger16(const Value& value);
bool valueAsBoolean(const Value& value);
std::string valueAsText(const Value& value);
