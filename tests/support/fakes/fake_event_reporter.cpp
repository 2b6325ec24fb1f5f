#include "support/fakes/fake_event_reporter.h"

#include "runtime/run_time_error.h"

#include <algorithm>

namespace {

constexpr std::size_t shortestTime = 12;
constexpr std::size_t longestUnrepeatedCallId = 31;

bool isDigit(char letter)
{
    return letter >= '0' && letter <= '9';
}

/// Whether a text has the shape of `mask`, in which "0" stands for a digit.
bool hasShape(std::string_view text, std::string_view mask)
{
    return std::equal(
        text.begin(), text.end(), mask.begin(), mask.end(),
        [](char letter, char place) { return place == '0' ? isDigit(letter) : letter == place; });
}

bool isTime(std::string_view text)
{
    return hasShape(text, "00:00:00:000") || hasShape(text, "0000-00-00 00:00:00");
}

bool isNumber(std::string_view text)
{
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    return !text.empty() && std::all_of(text.begin(), text.end(), isDigit);
}

/// The pieces before the first `count - 1` commas and all that follows; fewer where commas lack.
std::vector<std::string_view> pieces(std::string_view text, std::size_t count)
{
    std::vector<std::string_view> found;
    while (found.size() + 1 < count) {
        const std::size_t comma = text.find(',');
        if (comma == std::string_view::npos) break;
        found.push_back(text.substr(0, comma));
        text.remove_prefix(comma + 1);
    }
    found.push_back(text);
    return found;
}

bool isFormatted(std::string_view line)
{
    const std::size_t timeEnd = line.find(' ', shortestTime - 1);
    if (timeEnd == std::string_view::npos || !isTime(line.substr(0, timeEnd))) return false;
    std::string_view rest = line.substr(timeEnd + 1);
    if (rest.empty() || rest.front() != '(') return false;
    const std::size_t close = rest.find(')');
    if (close == std::string_view::npos) return false;
    const auto fields = pieces(rest.substr(1, close - 1), 5);
    return fields.size() == 4 && isNumber(fields[1]) && isNumber(fields[3]);
}

} // namespace

FakeEventReporter& FakeEventReporter::extended(bool fields)
{
    extended_ = fields;
    return *this;
}

FakeEventReporter& FakeEventReporter::missing()
{
    return failing(runTimeErrors::cannotCreateObject);
}

FakeEventReporter& FakeEventReporter::failing(int number)
{
    fault_ = number;
    return *this;
}

void FakeEventReporter::call(const char* name)
{
    calls_.emplace_back(name);
    if (fault_ != 0) throw RunTimeError(fault_);
}

void FakeEventReporter::startUp()
{
    call("startUp");
}

void FakeEventReporter::completeStartUp()
{
    call("completeStartUp");
}

std::int32_t FakeEventReporter::registerTool(const std::string& moduleName)
{
    call("registerTool");
    registeredName_ = moduleName;
    return toolHandle;
}

void FakeEventReporter::report(const std::string& source, std::int32_t handle, int type,
                               std::int32_t id, const std::vector<std::string>& inserts)
{
    call("report");
    reports_.push_back(Report{source, handle, type, id, inserts});
}

void FakeEventReporter::formatTraceLine(std::string_view rawLine, std::string& formatted)
{
    ++linesFormatted_;
    if (fault_ != 0) throw RunTimeError(fault_);
    if (rawLine.size() > traceLineLimit) throw RunTimeError(runTimeErrors::invalidCall);
    if (isFormatted(rawLine)) {
        formatted.append(rawLine);
        return;
    }
    const std::size_t fieldsBeforeTrace = extended_ ? 8 : 5;
    const auto fields = pieces(rawLine, fieldsBeforeTrace + 1);
    if (fields.size() <= fieldsBeforeTrace) throw RunTimeError(runTimeErrors::invalidCall);
    const std::string_view component = fields[fieldsBeforeTrace - 2];
    const std::string_view level = fields[fieldsBeforeTrace - 1];
    if (!isTime(fields[0]) || !isNumber(fields[2]) || !isNumber(level))
        throw RunTimeError(runTimeErrors::invalidCall);
    formatted.append(fields[0]).append(" (").append(fields[1]).append(",").append(fields[2]);
    formatted.append(",").append(component).append(",").append(level).append(") ");
    if (extended_ && fields[5].size() > longestUnrepeatedCallId)
        formatted.append(fields[5]).append(": ");
    formatted.append(fields.back());
}
