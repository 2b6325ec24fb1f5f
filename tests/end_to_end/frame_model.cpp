#include "end_to_end/frame_model.h"

#include "text/code_page.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <functional>

namespace fs = std::filesystem;

namespace {

constexpr LocalSecond secondsADay = 86'400;
constexpr LocalSecond toUniversal = 8 * 3'600; ///< the sample's zone in February
constexpr std::size_t formatterLimit = 510;
constexpr int errorsAllowed = 10;

std::string utf8(const std::string& bytes)
{
    std::string text;
    windows1252().appendUtf8(text, bytes);
    return text;
}

std::vector<std::string> linesOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    std::vector<std::string> lines;
    for (std::string line; std::getline(stream, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        lines.push_back(line);
    }
    return lines;
}

/// Pieces between commas, at most `limit` of them: the last keeps its commas.
std::vector<std::string> commaPieces(const std::string& line, std::size_t limit)
{
    std::vector<std::string> pieces(1);
    for (const char character : line) {
        if (character == ',' && pieces.size() < limit)
            pieces.emplace_back();
        else
            pieces.back().push_back(character);
    }
    return pieces;
}

/// Whether a text has digits where a shape has zeros, and the shape's characters elsewhere.
bool hasShape(const std::string& text, const std::string& shape)
{
    return std::equal(text.begin(), text.end(), shape.begin(), shape.end(),
                      [](char found, char wanted) {
                          return wanted == '0' ? found >= '0' && found <= '9' : found == wanted;
                      });
}

bool isNumber(const std::string& text)
{
    const std::size_t digits = text.find_first_not_of("-+");
    return digits != std::string::npos && digits <= 1 &&
           text.find_first_not_of("0123456789", digits) == std::string::npos;
}

std::string slashedDate(LocalSecond moment)
{
    using namespace std::chrono;
    const year_month_day date{sys_days(days(moment / secondsADay))};
    return std::to_string(unsigned(date.month())) + "/" + std::to_string(unsigned(date.day())) +
           "/" + std::to_string(int(date.year()));
}

LocalSecond timeOfDay(const std::string& clock)
{
    int hour = 0;
    int minute = 0;
    int second = 0;
    std::sscanf(clock.c_str(), "%d:%d:%d", &hour, &minute, &second);
    return hour * 3'600 + minute * 60 + second;
}

/// What a log's name tells: diag_NAME_YYYYMMDD_HHMMSS.txt.
struct LogName {
    explicit LogName(const std::string& name)
    {
        const std::size_t stamp = name.rfind('_') - 8;
        const auto number = [&](std::size_t offset, std::size_t digits) {
            return std::stoi(name.substr(stamp + offset, digits));
        };
        process = name.substr(5, stamp - 6);
        opened = localSecond(number(0, 4), number(4, 2), number(6, 2), number(9, 2), number(11, 2));
    }
    std::string process;
    LocalSecond opened = 0; ///< without the seconds
};

/// The moments of a log's lines: a new day begins where the time of day goes back.
class Calendar {
public:
    explicit Calendar(LocalSecond opened) : last_(opened) {}

    LocalSecond momentAt(LocalSecond time)
    {
        last_ = last_ / secondsADay * secondsADay + (time < last_ % secondsADay ? secondsADay : 0) +
                time;
        return last_;
    }

private:
    LocalSecond last_;
};

/// The time of a stamp as a row shows it; the empty text for a stamp that is none.
std::string shownTime(const std::string& stamp)
{
    if (hasShape(stamp, "00:00:00:000")) return stamp;
    if (hasShape(stamp, "0000-00-00 00:00:00")) return stamp.substr(11) + ":000";
    return {};
}

struct Line {
    std::string time; ///< as the row shows it; empty for a malformed line
    TextRow row;
};

/// A diagnostic line as its row, but for date and process. A malformed one leaves little of it.
Line diagnosticLine(const std::string& raw, bool extended)
{
    Line line;
    line.row = {{"Source", " "}, {"TraceNumber", "0"}, {"Component", ""}, {"TraceLevel", "0"},
                {"Port", ""},    {"Trace", " "},       {"CallId", ""},    {"Highlight", "0"}};
    const auto all = commaPieces(raw, 7);
    if (extended && all.size() > 4) line.row["Port"] = utf8(all[4]);
    if (extended && all.size() > 5) line.row["CallId"] = utf8(all[5]);

    const std::size_t extra = extended ? 3 : 0;
    const auto pieces = commaPieces(raw.substr(0, formatterLimit), 6 + extra);
    if (raw.size() < 20 || pieces.size() < 6 + extra || shownTime(pieces[0]).empty() ||
        !isNumber(pieces[2]) || !isNumber(pieces[4 + extra]))
        return line;
    std::string trace = pieces[5 + extra] + " ";
    if (raw.size() > formatterLimit) trace += raw.substr(formatterLimit);
    if (extended && pieces[5].size() > 31) trace.insert(0, pieces[5] + ": ");
    line.time = shownTime(pieces[0]);
    line.row["Source"] = utf8(pieces[1]);
    line.row["TraceNumber"] = std::to_string(std::stol(pieces[2]));
    line.row["Component"] = utf8(pieces[3 + extra]);
    line.row["TraceLevel"] = std::to_string(std::stol(pieces[4 + extra]));
    line.row["Trace"] = utf8(trace);
    return line;
}

/// A line of a data file as its row; its stamp is universal time.
Line dataLine(const std::string& raw)
{
    Line line;
    const auto pieces = commaPieces(raw, 4);
    const LocalSecond universal = timeOfDay(pieces.at(0).substr(11));
    const LocalSecond local = (universal + secondsADay - toUniversal) % secondsADay;
    char shown[32];
    std::snprintf(shown, sizeof shown, "%02d:%02d:%02d:000", static_cast<int>(local / 3'600),
                  static_cast<int>(local / 60 % 60), static_cast<int>(local % 60));
    line.time = shown;
    line.row = {{"Source", utf8(pieces.at(1))}, {"TraceNumber", pieces.at(2)},
                {"Component", "Data File"},     {"TraceLevel", "-99"},
                {"Trace", utf8(pieces.at(3))},  {"Highlight", "0"}};
    return line;
}

/// Adds the rows of one log.
void addLog(std::vector<TextRow>& rows, const fs::path& log, LocalSecond start, LocalSecond end,
            const std::function<Line(const std::string&)>& take)
{
    const LogName name(log.filename().string());
    Calendar calendar(name.opened);
    LocalSecond time = 0;
    int errors = 0;
    bool begun = false;
    for (const auto& raw : linesOf(log)) {
        Line line = take(raw);
        if (line.time.empty() && ++errors > errorsAllowed) return;
        if (!line.time.empty()) time = timeOfDay(line.time);
        const LocalSecond moment = calendar.momentAt(time);
        const bool inside = moment >= start && moment <= end;
        if (begun && !inside) return;
        begun = begun || inside;
        if (!inside) continue;
        TextRow& row = rows.emplace_back(std::move(line.row));
        row["Date"] = slashedDate(moment) + " " + line.time;
        row["Process"] = name.process;
        row["qrvIndex"] =
            row["Component"] + "_" + name.process + "_" + row["TraceLevel"] + "_" + row["Source"];
    }
}

std::vector<fs::path> logsOf(const fs::path& folder, const std::string& start)
{
    std::vector<fs::path> logs;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.rfind(start, 0) == 0 && name.find("fmtd") == std::string::npos)
            logs.push_back(entry.path());
    }
    std::sort(logs.begin(), logs.end());
    return logs;
}

} // namespace

LocalSecond localSecond(int year, int month, int dayOfMonth, int hour, int minute)
{
    const std::chrono::sys_days date = std::chrono::year(year) / month / dayOfMonth;
    return date.time_since_epoch().count() * secondsADay + hour * 3'600 + minute * 60;
}

std::vector<TextRow> expectedRows(const fs::path& logFolder, LocalSecond start, LocalSecond end,
                                  bool extended)
{
    std::vector<TextRow> rows;
    for (const auto& log : logsOf(logFolder, "diag_"))
        addLog(rows, log, start, end,
               [&](const std::string& raw) { return diagnosticLine(raw, extended); });
    for (const auto& log : logsOf(logFolder, "data_")) addLog(rows, log, start, end, dataLine);
    return rows;
}
