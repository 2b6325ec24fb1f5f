#include "backends/jet/outside_readers.h"

#include "backends/jet/pages/file_pages.h"
#include "support/places.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <array>
#include <cstdio>

namespace {

constexpr char valueEnd = '\x1F';
constexpr char rowEnd = '\x1E';
const std::string null = "\x01";

/// The command that tells a database's tables, or the rows of one, by an outside reader.
std::string dumpTables()
{
    return "node " + std::string(checkout::readers) + "/dump_table.mjs ";
}

std::vector<std::vector<std::string>> splitRows(const std::string& text)
{
    std::vector<std::vector<std::string>> rows;
    std::string value;
    std::vector<std::string> row;
    for (const char character : text) {
        if (character == valueEnd || character == rowEnd) {
            row.push_back(std::move(value));
            value.clear();
        } else {
            value.push_back(character);
        }
        if (character == rowEnd) {
            rows.push_back(std::move(row));
            row.clear();
        }
    }
    EXPECT_TRUE(value.empty() && row.empty()) << "an unfinished row: " << value;
    return rows;
}

/// By our own reader; a test of its own compares them with what the others find.
std::vector<std::string> columnsOf(const std::filesystem::path& path, const std::string& table)
{
    const jet::FilePages file(path.string());
    const jet::Reader reader(file.pages());
    std::vector<std::string> names;
    for (const auto& column : reader.find(table)->columns) names.push_back(column.name);
    return names;
}

std::vector<TextRow> namedRows(const std::vector<std::string>& columns, const std::string& text)
{
    std::vector<TextRow> rows;
    for (const auto& values : splitRows(text)) {
        TextRow& row = rows.emplace_back();
        if (values.size() < columns.size()) {
            ADD_FAILURE() << "a row of " << values.size() << " values";
            return rows;
        }
        for (std::size_t column = 0; column < columns.size(); ++column) {
            if (values[column] != null) row[columns[column]] = values[column];
        }
    }
    return rows;
}

std::string quoted(const std::filesystem::path& path)
{
    return "'" + path.string() + "'";
}

} // namespace

std::string outputOf(const std::string& command)
{
    std::FILE* pipe = popen(command.c_str(), "r");
    std::string output;
    std::array<char, 65'536> block;
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), pipe))
        output.append(block.data(), size);
    EXPECT_EQ(0, pclose(pipe)) << command << "\n(is it installed? ./test installs what is missing)";
    return output;
}

std::string firstDifference(const std::vector<TextRow>& expected, const std::vector<TextRow>& found)
{
    for (std::size_t row = 0; row < std::min(expected.size(), found.size()); ++row) {
        if (expected[row] != found[row])
            return "row " + std::to_string(row) + ": " +
                   testing::PrintToString(expected[row]).substr(0, 1500) + " was found as " +
                   testing::PrintToString(found[row]).substr(0, 1500);
    }
    if (expected.size() == found.size()) return {};
    return std::to_string(found.size()) + " rows, not " + std::to_string(expected.size());
}

std::vector<TextRow> withoutEmptyTexts(std::vector<TextRow> rows)
{
    for (auto& row : rows) {
        for (auto value = row.begin(); value != row.end();)
            value = value->second.empty() ? row.erase(value) : std::next(value);
    }
    return rows;
}

std::vector<TextRow> exportedRows(const std::filesystem::path& path, const std::string& table)
{
    return namedRows(columnsOf(path, table),
                     outputOf("mdb-export -H -Q -d $(printf '\\037') -R $(printf '\\036') "
                              "-0 $(printf '\\001') " +
                              quoted(path) + " " + table));
}

std::vector<TextRow> jsonRows(const std::filesystem::path& path, const std::string& table)
{
    std::vector<TextRow> rows;
    const std::string output = outputOf("mdb-json " + quoted(path) + " " + table);
    for (std::size_t at = 0; at < output.size();) {
        const std::size_t end = std::min(output.find('\n', at), output.size());
        const auto object =
            nlohmann::json::parse(output.substr(at, end - at), nullptr, /*exceptions=*/false);
        EXPECT_TRUE(object.is_object()) << output.substr(at, 200);
        TextRow& row = rows.emplace_back();
        for (const auto& [name, value] : object.items())
            row[name] = value.is_string() ? value.get<std::string>() : value.dump();
        at = end + 1;
    }
    return rows;
}

std::vector<std::vector<std::string>> nodeTables(const std::filesystem::path& path)
{
    auto tables = splitRows(outputOf(dumpTables() + quoted(path)));
    for (auto& names : tables) names.pop_back(); // what follows the last value's end
    return tables;
}

std::vector<TextRow> nodeRows(const std::filesystem::path& path, const std::string& table)
{
    return namedRows(columnsOf(path, table), outputOf(dumpTables() + quoted(path) + " " + table));
}
