#pragma once

#include "platform/database.h"

#include <map>
#include <string>
#include <vector>

/// The order of names that differ in case alone: none.
struct NameOrder {
    bool operator()(const std::string& left, const std::string& right) const;
};

/// A row's values by column name.
using FakeDatabaseRow = std::map<std::string, Value, NameOrder>;

/// A view of a fake database. A row without a value for a column has Null there.
struct FakeDatabaseView {
    std::vector<std::string> columns;
    std::vector<FakeDatabaseRow> rows;
};

using FakeDatabaseViews = std::map<std::string, FakeDatabaseView, NameOrder>;

/// What a query gives: its columns under the names that it gives them, and each row's values in
/// their order.
struct FakeQueryResult {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;
};

/// Runs a query of the form `SELECT a, b As c FROM view [WHERE column = 'text'] [ORDER BY column]`.
/// Raises -2147217900 for any other and for a column that is not there, -2147217865 for a view that
/// is not there.
FakeQueryResult queryResult(const FakeDatabaseViews& views, const std::string& query);
