#pragma once

#include "backends/odbc/odbc_api.h"
#include "runtime/value.h"

#include <string>

/// Reads a value of a statement's row, by its position from 1 and its column's type: whole numbers
/// (as floating ones where 32 bits are too few), floating and decimal numbers, bits as booleans,
/// dates, GUIDs as "{…}", the rest as text. Gives the result of the call that failed, if any did.
SQLRETURN readColumn(SQLHSTMT statement, SQLUSMALLINT position, SQLSMALLINT type, Value& value);

/// The type of a column whose values are like one of a variant, whose driver tells its type as that
/// of the program's side (`SQL_C_…`), such as SQL_BIGINT for each kind of whole number.
SQLSMALLINT typeOfVariantValue(SQLSMALLINT valueType);

/// A GUID's text within braces.
std::string bracedGuid(const std::string& text);
