#include "backends/odbc/column_value.h"

#include "backends/odbc/wide_text.h"
#include "platform/database.h"
#include "runtime/dates.h"
#include "runtime/run_time_error.h"

#include <array>
#include <cstdint>
#include <limits>
#include <optional>

namespace {

/// A value of the directory is a name, a path or a number; a server can send what it likes.
constexpr std::size_t mostCharacters = 16'000'000;

/// A column whose values each bring their type, and where a driver tells it. The numbers are those
/// of the server's drivers, which no header of ODBC has.
constexpr SQLSMALLINT variantType = -150;
constexpr SQLUSMALLINT variantValueType = 1216;

Value wholeNumber(SQLBIGINT number)
{
    if (number >= std::numeric_limits<std::int32_t>::min() &&
        number <= std::numeric_limits<std::int32_t>::max())
        return static_cast<std::int32_t>(number);
    return static_cast<double>(number);
}

/// Null for a moment that the tool's calendar lacks.
Value moment(const SQL_TIMESTAMP_STRUCT& parts)
{
    try {
        return dateOf(parts.year, parts.month, parts.day, parts.hour, parts.minute, parts.second);
    } catch (const RunTimeError&) {
        return Null{};
    }
}

template <typename Read>
SQLRETURN readAs(SQLHSTMT statement, SQLUSMALLINT position, SQLSMALLINT valueType, Read& read,
                 bool& isNull)
{
    SQLLEN indicator = 0;
    const SQLRETURN result =
        SQLGetData(statement, position, valueType, &read, sizeof read, &indicator);
    isNull = indicator == SQL_NULL_DATA;
    return result;
}

SQLRETURN readText(SQLHSTMT statement, SQLUSMALLINT position, std::string& text, bool& isNull)
{
    std::array<SQLWCHAR, 1024> piece{};
    std::u16string whole;
    SQLRETURN result = SQL_SUCCESS;
    isNull = false;
    for (;;) {
        SQLLEN indicator = 0;
        result =
            SQLGetData(statement, position, SQL_C_WCHAR, piece.data(), sizeof piece, &indicator);
        if (!SQL_SUCCEEDED(result)) break;
        if (indicator == SQL_NULL_DATA) {
            isNull = true;
            return result;
        }
        const bool more =
            indicator == SQL_NO_TOTAL || indicator >= static_cast<SQLLEN>(sizeof piece);
        const std::size_t units =
            more ? piece.size() - 1 : static_cast<std::size_t>(indicator) / sizeof(SQLWCHAR);
        for (std::size_t i = 0; i < units; ++i) whole += static_cast<char16_t>(piece[i]);
        if (whole.size() > mostCharacters)
            throw RunTimeError(databaseErrors::statementRefused,
                               "The query gives a text of more than 16,000,000 characters.");
        if (!more) break;
    }
    text = utf8OfWide(reinterpret_cast<const SQLWCHAR*>(whole.data()), whole.size());
    return result == SQL_NO_DATA ? SQL_SUCCESS : result;
}

/// The type of the value at hand in a column of variants; that of text where no driver tells,
/// nothing for Null.
std::optional<SQLSMALLINT> typeOfVariant(SQLHSTMT statement, SQLUSMALLINT position)
{
    SQLLEN indicator = 0;
    char none = 0;
    SQLLEN type = SQL_C_WCHAR;
    // The value has to be begun before its type is known. Null is told once, and then is no data.
    SQLGetData(statement, position, SQL_C_BINARY, &none, 0, &indicator);
    if (indicator == SQL_NULL_DATA) return std::nullopt;
    SQLColAttributeW(statement, position, variantValueType, nullptr, 0, nullptr, &type);
    return typeOfVariantValue(static_cast<SQLSMALLINT>(type));
}

} // namespace

std::string bracedGuid(const std::string& text)
{
    return text.empty() || text.front() == '{' ? text : "{" + text + "}";
}

SQLSMALLINT typeOfVariantValue(SQLSMALLINT valueType)
{
    switch (valueType) {
    case SQL_C_TINYINT:
    case SQL_C_STINYINT:
    case SQL_C_UTINYINT:
    case SQL_C_SHORT:
    case SQL_C_SSHORT:
    case SQL_C_USHORT:
    case SQL_C_LONG:
    case SQL_C_SLONG:
    case SQL_C_ULONG:
    case SQL_C_SBIGINT:
    case SQL_C_UBIGINT:
        return SQL_BIGINT;
    case SQL_C_DATE:
    case SQL_C_TIME:
    case SQL_C_TIMESTAMP:
        return SQL_TYPE_TIMESTAMP;
    case SQL_C_CHAR:
    case SQL_C_WCHAR:
        return SQL_WVARCHAR;
    default:
        return valueType; // the others have one number as both
    }
}

SQLRETURN readColumn(SQLHSTMT statement, SQLUSMALLINT position, SQLSMALLINT type, Value& value)
{
    if (type == variantType) {
        const auto typeOfValue = typeOfVariant(statement, position);
        if (!typeOfValue) {
            value = Null{};
            return SQL_SUCCESS;
        }
        type = *typeOfValue;
    }
    SQLRETURN result = SQL_SUCCESS;
    bool isNull = false;
    const auto read = [&](SQLSMALLINT valueType, auto held, const auto& asValue) {
        result = readAs(statement, position, valueType, held, isNull);
        if (SQL_SUCCEEDED(result)) value = isNull ? Value(Null{}) : asValue(held);
    };
    switch (type) {
    case SQL_TINYINT:
    case SQL_SMALLINT:
    case SQL_INTEGER:
    case SQL_BIGINT:
        read(SQL_C_SBIGINT, SQLBIGINT{}, wholeNumber);
        return result;
    case SQL_REAL:
    case SQL_FLOAT:
    case SQL_DOUBLE:
    case SQL_DECIMAL:
    case SQL_NUMERIC:
        read(SQL_C_DOUBLE, SQLDOUBLE{}, [](SQLDOUBLE number) { return Value(number); });
        return result;
    case SQL_BIT:
        read(SQL_C_BIT, SQLCHAR{}, [](SQLCHAR bit) { return Value(bit != 0); });
        return result;
    case SQL_TYPE_DATE:
    case SQL_TYPE_TIME:
    case SQL_TYPE_TIMESTAMP:
        read(SQL_C_TYPE_TIMESTAMP, SQL_TIMESTAMP_STRUCT{}, moment);
        return result;
    default:
        break;
    }
    std::string text;
    result = readText(statement, position, text, isNull);
    if (!SQL_SUCCEEDED(result)) return result;
    if (isNull)
        value = Null{};
    else
        value = type == SQL_GUID ? bracedGuid(text) : text;
    return result;
}
