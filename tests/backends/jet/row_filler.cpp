#include "backends/jet/row_filler.h"

#include <gtest/gtest.h>

namespace {

std::size_t traceLength(std::size_t number)
{
    if (number % 97 == 96) return 9000 + number % 1000;
    if (number % 11 == 10) return 1500;
    return 1 + number * 7 % 120;
}

} // namespace

TextRow numberedRow(std::size_t number)
{
    TextRow row = {
        {"Date", "10/8/2005 15:23:07:120"},
        {"Process", "RoCsMgr"},
        {"TraceNumber", std::to_string(static_cast<int>(number) - 100)},
        {"Component", "Zo\xC3\xAB " + std::to_string(number)},
        {"TraceLevel", std::to_string(number % 32)},
        {"Trace", std::string(traceLength(number), static_cast<char>('a' + number % 26))},
        {"Highlight", "0"},
        {"qrvIndex", "\xD0\x96_" + std::to_string(number)},
    };
    if (number % 3 == 0) row["Port"] = "";
    if (number % 5 == 0) row["CallId"] = std::string(255, 'x');
    return row;
}

void addNumberedRow(TraceRecordset& traces, std::size_t number)
{
    traces.addNew();
    for (const auto& [name, text] : numberedRow(number)) traces.field(name).setUtf8(text);
    traces.update();
}

std::size_t countNumberedRows(const std::filesystem::path& path)
{
    const auto rows = rowsOf(path, "tblTraces");
    for (std::size_t number = 0; number < rows.size(); ++number) {
        if (rows[number] == numberedRow(number)) continue;
        ADD_FAILURE() << "row " << number << " of " << rows.size() << " is another";
        break;
    }
    return rows.size();
}
