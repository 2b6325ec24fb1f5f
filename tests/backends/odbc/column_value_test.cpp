#include "backends/odbc/column_value.h"

#include <gtest/gtest.h>

namespace {

TEST(ValueOfAVariant, IsAWholeNumberOfEachLengthAndSign)
{
    for (const SQLSMALLINT told :
         {SQL_C_TINYINT, SQL_C_UTINYINT, SQL_C_STINYINT, SQL_C_SHORT, SQL_C_SSHORT, SQL_C_USHORT,
          SQL_C_LONG, SQL_C_SLONG, SQL_C_ULONG, SQL_C_SBIGINT, SQL_C_UBIGINT})
        EXPECT_EQ(SQL_BIGINT, typeOfVariantValue(told)) << told;
}

TEST(ValueOfAVariant, IsAMomentInTheNumbersOfBothVersions)
{
    for (const SQLSMALLINT told : {SQL_C_DATE, SQL_C_TIME, SQL_C_TIMESTAMP, SQL_C_TYPE_TIMESTAMP})
        EXPECT_EQ(SQL_TYPE_TIMESTAMP, typeOfVariantValue(told)) << told;
}

TEST(ValueOfAVariant, KeepsTheTypesThatBothSidesNumberAlike)
{
    EXPECT_EQ(SQL_DOUBLE, typeOfVariantValue(SQL_C_DOUBLE));
    EXPECT_EQ(SQL_REAL, typeOfVariantValue(SQL_C_FLOAT));
    EXPECT_EQ(SQL_BIT, typeOfVariantValue(SQL_C_BIT));
    EXPECT_EQ(SQL_GUID, typeOfVariantValue(SQL_C_GUID));
    EXPECT_EQ(SQL_NUMERIC, typeOfVariantValue(SQL_C_NUMERIC));
    EXPECT_EQ(SQL_WVARCHAR, typeOfVariantValue(SQL_C_WCHAR));
    EXPECT_EQ(SQL_WVARCHAR, typeOfVariantValue(SQL_C_CHAR));
}

} // namespace
