#include "support/fakes/database/fake_database_query.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

#include <algorithm>
#include <regex>

namespace {

constexpr auto anyCase = std::regex::ECMAScript | std::regex::icase;

void requireColumn(const FakeDatabaseView& view, const std::string& name)
{
    for (const std::string& column : view.columns)
        if (equalIgnoringCase(column, name)) return;
    throw RunTimeError(databaseErrors::statementRefused, "Invalid column name '" + name + "'.");
}

Value cell(const FakeDatabaseRow& row, const std::string& column)
{
    const auto found = row.find(column);
    return found == row.end() ? Value(Null{}) : found->second;
}

/// What a value sorts by; Null comes first.
std::string sortKey(const Value& value)
{
    return isNull(value) ? std::string() : valueAsText(value);
}

/// A column that a query asks for, and its name in the result.
struct Selected {
    std::string column;
    std::string name;
};

std::vector<Selected> selectedColumns(const std::string& list)
{
    static const std::regex column(R"((\w+)(?:\s+as\s+(\w+))?)", anyCase);
    std::vector<Selected> columns;
    for (std::sregex_iterator each(list.begin(), list.end(), column), end; each != end; ++each)
        columns.push_back({(*each)[1], (*each)[2].matched ? (*each)[2] : (*each)[1]});
    return columns;
}

} // namespace

bool NameOrder::operator()(const std::string& left, const std::string& right) const
{
    return lowerCase(left) < lowerCase(right);
}

FakeQueryResult queryResult(const FakeDatabaseViews& views, const std::string& query)
{
    static const std::regex form(
        R"(select (.+) from (\w+)(?: where (\w+) = '((?:[^']|'')*)')?(?: order by (\w+))?)",
        anyCase);
    std::smatch parts;
    if (!std::regex_match(query, parts, form))
        throw RunTimeError(databaseErrors::statementRefused, "Incorrect syntax");
    const auto found = views.find(parts[2]);
    if (found == views.end())
        throw RunTimeError(databaseErrors::noSuchTable,
                           "Invalid object name '" + parts[2].str() + "'.");
    const FakeDatabaseView& view = found->second;

    std::vector<FakeDatabaseRow> rows = view.rows;
    if (parts[3].matched) {
        requireColumn(view, parts[3]);
        const Value wanted = replaceAll(parts[4].str(), "''", "'");
        std::erase_if(rows, [&](const auto& row) { return cell(row, parts[3]) != wanted; });
    }
    if (parts[5].matched) {
        requireColumn(view, parts[5]);
        std::stable_sort(rows.begin(), rows.end(), [&](const auto& left, const auto& right) {
            return sortKey(cell(left, parts[5])) < sortKey(cell(right, parts[5]));
        });
    }

    FakeQueryResult result;
    result.rows.resize(rows.size());
    for (const Selected& selected : selectedColumns(parts[1])) {
        requireColumn(view, selected.column);
        result.columns.push_back(selected.name);
        for (std::size_t place = 0; place < rows.size(); ++place)
            result.rows[place].push_back(cell(rows[place], selected.column));
    }
    return result;
}
