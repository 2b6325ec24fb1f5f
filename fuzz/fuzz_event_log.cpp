#include "require.h"

#include "backends/site/events/event_log_csv.h"
#include "text/utf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Cells = std::vector<std::string>;

/// The cells of one record, read as RFC 4180 has it and in no other way.
Cells cellsOf(std::string_view record)
{
    require(record.ends_with("\r\n"));
    record.remove_suffix(2);
    Cells cells(1);
    for (std::size_t at = 0; at < record.size();) {
        if (record[at] == '"') {
            require(cells.back().empty());
            for (++at;; ++at) {
                require(at < record.size());
                if (record[at] == '"' && record.substr(at, 2) != "\"\"") break;
                if (record[at] == '"') ++at;
                cells.back() += record[at];
            }
            require(++at == record.size() || record[at] == ',');
        }
        for (; at < record.size() && record[at] != ','; ++at) {
            require(record[at] != '"' && record[at] != '\r' && record[at] != '\n');
            cells.back() += record[at];
        }
        if (at == record.size()) break;
        cells.emplace_back();
        ++at;
    }
    return cells;
}

std::string jsonText(const std::string& text)
{
    std::string json = "\"";
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        std::array<char, 8> escaped{};
        if (byte < 0x20)
            std::snprintf(escaped.data(), escaped.size(), "\\u%04x", byte);
        else if (c == '"' || c == '\\')
            escaped = {'\\', c};
        else
            escaped = {c};
        json += escaped.data();
    }
    return json + '"';
}

void checkLine(std::string_view line)
{
    const std::string record = eventLogCsvLine(line);
    if (line.find_first_not_of(" \t\r") == std::string_view::npos) {
        require(record.empty());
        return;
    }
    require(isUtf8(record));
    const Cells cells = cellsOf(record);
    require(cells.size() == 6);
    const bool mayBeObject = line.find('{') != std::string_view::npos;
    if (!mayBeObject) require(cells == Cells{"", "", "", "", "", validUtf8(line)});
}

/// The texts of an event come out as they went in.
void checkEvent(const std::string& text)
{
    const std::size_t half = text.size() / 2;
    const std::string one = validUtf8(text.substr(0, half));
    const std::string two = validUtf8(text.substr(half));
    const std::string event = "{\"time\":" + jsonText(one) +
                              ",\"type\":2,\"source\":" + jsonText("S" + two) +
                              ",\"id\":7,\"computer\":" + jsonText(two) + ",\"inserts\":[" +
                              jsonText(one) + "," + jsonText(two) + "]}";
    require(cellsOf(eventLogCsvLine(event)) ==
            Cells{one, "Warning", "S" + two, "7", two, one + ", " + two});
}

} // namespace

/// Each line of an event log is one record of six cells, or none where it is blank.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string text(reinterpret_cast<const char*>(data), size);
    for (std::size_t start = 0; start <= text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        checkLine(std::string_view(text).substr(start, end - start));
        start = end + 1;
    }
    checkLine(text);
    checkEvent(text);
    return 0;
}
