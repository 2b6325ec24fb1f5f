#include "runtime/value.h"

#include "runtime/numbers.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace {

/// A value as a number. Raises 94, 13.
struct AsNumber {
    double operator()(Empty) const { return 0; }
    double operator()(Null) const { throw RunTimeError(runTimeErrors::invalidNull); }
    double operator()(std::int32_t number) const { return number; }
    double operator()(double number) const { return number; }
    double operator()(Date date) const { return date.days; }
    double operator()(bool flag) const { return flag ? -1 : 0; }
    double operator()(const std::string& text) const { return toNumber(text); }
    double operator()(const Guid&) const { throw RunTimeError(runTimeErrors::typeMismatch); }
};

struct AsText {
    std::string operator()(Empty) const { return {}; }
    std::string operator()(Null) const { throw RunTimeError(runTimeErrors::invalidNull); }
    std::string operator()(std::int32_t number) const { return numberText(std::int64_t{number}); }
    std::string operator()(double number) const { return numberText(number); }
    std::string operator()(Date date) const { return dateText(date); }
    std::string operator()(bool flag) const { return flag ? "True" : "False"; }
    std::string operator()(const std::string& text) const { return text; }
    std::string operator()(const Guid& guid) const { return guid.text; }
};

} // namespace

bool isEmpty(const Value& value)
{
    return std::holds_alternative<Empty>(value);
}

bool isNull(const Value& value)
{
    return std::holds_alternative<Null>(value);
}

std::int32_t valueAsInteger32(const Value& value)
{
    return toInteger32(std::visit(AsNumber{}, value));
}

std::int16_t valueAsInteger16(const Value& value)
{
    return toInteger16(std::visit(AsNumber{}, value));
}

bool valueAsBoolean(const Value& value)
{
    if (const auto* text = std::get_if<std::string>(&value)) {
        if (equalIgnoringCase(*text, "true")) return true;
        if (equalIgnoringCase(*text, "false")) return false;
    }
    return std::visit(AsNumber{}, value) != 0;
}

std::string valueAsText(const Value& value)
{
    return std::visit(AsText{}, value);
}
