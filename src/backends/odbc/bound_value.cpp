#include "backends/odbc/bound_value.h"

#include "runtime/dates.h"

#include <algorithm>

namespace {

bool isText(SQLSMALLINT type)
{
    switch (type) {
    case SQL_CHAR:
    case SQL_VARCHAR:
    case SQL_LONGVARCHAR:
    case SQL_WCHAR:
    case SQL_WVARCHAR:
    case SQL_WLONGVARCHAR:
        return true;
    default:
        return false;
    }
}

bool isMoment(SQLSMALLINT type)
{
    return type == SQL_TYPE_DATE || type == SQL_TYPE_TIME || type == SQL_TYPE_TIMESTAMP;
}

SQL_TIMESTAMP_STRUCT momentOf(Date date)
{
    const DateParts parts = partsOf(date);
    SQL_TIMESTAMP_STRUCT moment{};
    moment.year = static_cast<SQLSMALLINT>(parts.year);
    moment.month = static_cast<SQLUSMALLINT>(parts.month);
    moment.day = static_cast<SQLUSMALLINT>(parts.day);
    moment.hour = static_cast<SQLUSMALLINT>(parts.hour);
    moment.minute = static_cast<SQLUSMALLINT>(parts.minute);
    moment.second = static_cast<SQLUSMALLINT>(parts.second);
    return moment;
}

/// Drivers take a GUID without its braces.
std::string withoutBraces(const std::string& guid)
{
    const bool braced = guid.size() > 2 && guid.front() == '{' && guid.back() == '}';
    return braced ? guid.substr(1, guid.size() - 2) : guid;
}

} // namespace

template <typename Held>
void BoundValue::hold(SQLSMALLINT valueType, SQLSMALLINT parameterType, Held& held)
{
    valueType_ = valueType;
    parameterType_ = parameterType;
    data_ = &held;
    bytes_ = sizeof held;
    indicator_ = sizeof held;
}

void BoundValue::holdText(const std::string& text)
{
    text_ = WideText(text);
    valueType_ = SQL_C_WCHAR;
    parameterType_ = SQL_WVARCHAR;
    size_ = std::max<SQLULEN>(text_.units(), 1);
    data_ = text_.data();
    bytes_ = text_.bytes();
    indicator_ = text_.bytes();
}

BoundValue::BoundValue(const Value& value, const std::optional<ParameterType>& type)
{
    if (const auto* number = std::get_if<std::int32_t>(&value)) {
        whole_ = *number;
        hold(SQL_C_SLONG, SQL_INTEGER, whole_);
    } else if (const auto* real = std::get_if<double>(&value)) {
        floating_ = *real;
        hold(SQL_C_DOUBLE, SQL_DOUBLE, floating_);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        bit_ = *flag ? 1 : 0;
        whole_ = bit_;
        if (type)
            hold(SQL_C_BIT, SQL_BIT, bit_);
        else
            hold(SQL_C_SLONG, SQL_INTEGER, whole_);
    } else if (const auto* date = std::get_if<Date>(&value)) {
        moment_ = momentOf(*date);
        if (type && isMoment(type->type))
            hold(SQL_C_TYPE_TIMESTAMP, SQL_TYPE_TIMESTAMP, moment_);
        else
            holdText(sortableDateTime(*date));
    } else if (!isNull(value) && !isEmpty(value)) {
        const std::string text = valueAsText(value);
        holdText(type && type->type == SQL_GUID ? withoutBraces(text) : text);
    }
    if (!type) return;
    // Whatever its declared size is, a text goes whole: what is too long the server refuses.
    const bool keepsSize = isText(type->type) && valueType_ == SQL_C_WCHAR;
    parameterType_ = type->type;
    if (!keepsSize) size_ = std::max<SQLULEN>(type->size, 1);
    digits_ = type->digits;
}
