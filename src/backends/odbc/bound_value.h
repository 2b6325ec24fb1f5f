#pragma once

#include "backends/odbc/odbc_api.h"
#include "backends/odbc/wide_text.h"
#include "runtime/value.h"

#include <optional>
#include <string>

/// What a server says of a parameter; the conversion to it is the driver's and the server's.
struct ParameterType {
    SQLSMALLINT type; ///< of ODBC's numbers
    SQLULEN size;     ///< in characters or digits
    SQLSMALLINT digits;
};

/// A value on its way to a "?" of a statement. It stays where it is, as the statement holds its
/// address.
class BoundValue {
public:
    /// Without `type`, the parameter takes the value as it is: a date as "2005-10-08 15:23:07", a
    /// boolean as 1 or 0.
    BoundValue(const Value& value, const std::optional<ParameterType>& type);
    BoundValue(const BoundValue&) = delete;
    BoundValue& operator=(const BoundValue&) = delete;

    SQLSMALLINT valueType() const { return valueType_; }
    SQLSMALLINT parameterType() const { return parameterType_; }
    SQLULEN columnSize() const { return size_; }
    SQLSMALLINT decimalDigits() const { return digits_; }
    SQLPOINTER data() { return data_; }
    SQLLEN bytes() const { return bytes_; }
    SQLLEN* indicator() { return &indicator_; }

private:
    void holdText(const std::string& text);
    template <typename Held>
    void hold(SQLSMALLINT valueType, SQLSMALLINT parameterType, Held& held);

    SQLINTEGER whole_ = 0;
    SQLDOUBLE floating_ = 0;
    SQLCHAR bit_ = 0;
    SQL_TIMESTAMP_STRUCT moment_{};
    WideText text_{""};

    SQLSMALLINT valueType_ = SQL_C_WCHAR;
    SQLSMALLINT parameterType_ = SQL_WVARCHAR;
    SQLULEN size_ = 1;
    SQLSMALLINT digits_ = 0;
    SQLPOINTER data_ = nullptr;
    SQLLEN bytes_ = 0;
    SQLLEN indicator_ = SQL_NULL_DATA;
};
