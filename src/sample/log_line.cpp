#include "sample/log_line.h"

namespace sample {

namespace {

/// Longer ids do not fit the field of the formatter's head, which puts them before the trace.
constexpr std::size_t longestIdInHead = 31;

/// What is shorter does not reach the formatter.
constexpr std::size_t shortestLine = 20;

void appendTime(std::string& text, const LogLine& line)
{
    if (writesDates(line.process))
        appendDateTime(text, line.moment);
    else
        appendClock(text, line.moment);
}

void appendSourceAndNumber(std::string& text, const LogLine& line)
{
    text += factsOf(line.component).source;
    text += ',';
    appendNumber(text, line.traceNumber);
}

} // namespace

bool writesDates(Process process)
{
    return process == Process::directory;
}

void appendRawLine(std::string& text, const LogLine& line, bool extended)
{
    if (line.malformed) {
        text += line.trace;
        return;
    }
    appendTime(text, line);
    text += ',';
    appendSourceAndNumber(text, line);
    text += ',';
    if (extended) {
        appendNumber(text, line.thread);
        text += ',';
        if (line.port != 0) appendNumber(text, line.port);
        text += ',';
        text += line.callId;
        text += ',';
    }
    text += factsOf(line.component).name;
    text += ',';
    appendNumber(text, line.level);
    text += ',';
    text += line.trace;
}

void appendFormattedLine(std::string& text, const LogLine& line, bool extended)
{
    if (line.malformed) {
        if (line.trace.size() >= shortestLine) text += ' ';
        return;
    }
    appendTime(text, line);
    text += " (";
    appendSourceAndNumber(text, line);
    text += ',';
    text += factsOf(line.component).name;
    text += ',';
    appendNumber(text, line.level);
    text += ") ";
    if (extended && line.callId.size() > longestIdInHead) {
        text += line.callId;
        text += ": ";
    }
    text += line.trace;
    text += ' ';
}

void appendDataLine(std::string& text, const LogLine& line)
{
    appendDateTime(text, line.moment + toUniversal);
    text += ',';
    appendSourceAndNumber(text, line);
    text += ',';
    text += line.trace;
}

} // namespace sample
