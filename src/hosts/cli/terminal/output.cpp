#include "hosts/cli/terminal/output.h"

#include "hosts/cli/command.h"
#include "hosts/cli/terminal/message.h"
#include "hosts/common/shown_width.h"
#include "text/visible_text.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace cli {

namespace {

bool isPrintableAscii(char c)
{
    return c >= ' ' && c <= '~';
}

bool isEscaped(char c)
{
    return c == '"' || c == '\\';
}

} // namespace

void appendJsonText(std::string& json, std::string_view text)
{
    if (!std::all_of(text.begin(), text.end(), isPrintableAscii)) {
        json += Json(text).dump(-1, ' ', false, Json::error_handler_t::replace);
        return;
    }
    json += '"';
    for (const auto* rest = text.begin(); rest != text.end();) {
        const auto* const special = std::find_if(rest, text.end(), isEscaped);
        json.append(rest, special);
        if (special == text.end()) break;
        json.append("\\").append(1, *special);
        rest = special + 1;
    }
    json += '"';
}

void Output::value(const Json& json)
{
    line(json.dump(-1, ' ', false, Json::error_handler_t::replace));
}

void Output::text(std::string_view text)
{
    visible_.clear();
    appendVisible(visible_, text, LineEnds::kept);
    bytes(visible_);
}

void Output::bytes(std::string_view bytes)
{
    if (failed() || std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size()) return;
    failure_ = errno;
}

void Output::line(std::string_view content)
{
    text(visibleText(content) + "\n");
}

void Output::message(const std::string& text)
{
    printMessage(text);
}

void Output::finish()
{
    if (std::fflush(stdout) != 0 && !failed()) failure_ = errno;
    // A reader that has seen enough, such as head, is no failure.
    if (failed() && failure_ != EPIPE)
        throw CommandFailure(std::string("cannot write the result: ") + std::strerror(failure_));
}

Table::Table(std::vector<std::string> headers) : right_(headers.size(), false)
{
    rows_.push_back(std::move(headers));
}

void Table::row(std::vector<std::string> cells)
{
    cells.resize(right_.size());
    for (std::string& cell : cells) cell = visibleText(cell);
    rows_.push_back(std::move(cells));
}

void Table::alignRight(std::size_t column)
{
    right_[column] = true;
}

std::string Table::text() const
{
    if (rows_.size() == 1) return {};
    std::vector<std::size_t> widths(right_.size(), 0);
    for (const auto& row : rows_)
        for (std::size_t i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths[i], shownWidth(row[i]));
    std::string text;
    for (const auto& row : rows_) {
        std::string line;
        for (std::size_t i = 0; i < row.size(); ++i) {
            const std::string blanks(widths[i] - shownWidth(row[i]), ' ');
            if (i > 0) line += "  ";
            line += right_[i] ? blanks + row[i] : row[i] + blanks;
        }
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

std::string groupedNumber(long long number)
{
    std::string digits = std::to_string(number);
    const std::size_t first = number < 0 ? 1 : 0;
    for (std::size_t i = digits.size(); i > first + 3; i -= 3) digits.insert(i - 3, ",");
    return digits;
}

} // namespace cli
