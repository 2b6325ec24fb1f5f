#include "hosts/cli/driving/trace_check.h"

#include "hosts/cli/terminal/message.h"
#include "hosts/cli/terminal/output.h"
#include "platform/database.h"
#include "traces/trace_bits.h"

#include <algorithm>

namespace cli {

namespace {

constexpr std::size_t toldAtMost = 5;

std::vector<FlagWords> wordsOf(OpenTool& tool, const std::string& failure)
try {
    return readFlagWords(tool.context().g_connection);
} catch (const RunTimeError& error) {
    throw CommandFailure(failure + ": " + error.description());
}

std::string told(const std::vector<std::string>& wrong)
{
    std::string text;
    for (std::size_t i = 0; i < wrong.size() && i < toldAtMost; ++i)
        text += (i > 0 ? "; " : "") + wrong[i];
    if (wrong.size() > toldAtMost)
        text += "; and " + std::to_string(wrong.size() - toldAtMost) + " more";
    return text;
}

} // namespace

TraceCheck::TraceCheck(OpenTool& tool) : tool_(tool)
{
    tool.requireDatabase();
    present_ = wordsOf(tool, "the flags can't be read: no trace can be changed");
}

TraceCheck::~TraceCheck()
{
    try {
        tool_.database().letCallsGo();
    } catch (const RunTimeError&) {
        // What keeps the command from its end is on its way to the person.
    }
}

void TraceCheck::expect(TraceExpectation expected)
{
    expected_ = std::move(expected);
    for (const std::string& part : expected_.impossible)
        printMessage("a macro trace asks for what this server does not have: " + part);
    eventsBefore_ = tool_.server().endOfEvents();
    tool_.registry().forget();
    listener_.emplace(tool_.context(), [this](const RunTimeError& error, std::string_view) {
        if (firstError_.empty()) firstError_ = error.description();
    });
    tool_.database().holdCalls();
}

void TraceCheck::expectLevel(const std::string& component, int level, bool on)
{
    levels_.push_back({component, level, on});
}

void TraceCheck::requireSuccess()
{
    try {
        tool_.database().letCallsGo();
    } catch (const RunTimeError& error) {
        if (firstError_.empty()) firstError_ = error.description();
    }
    std::vector<std::string> wrong;
    compareWords(wrong);
    compareRecords(wrong);
    compareEvents(wrong);
    const std::string untold = tool_.registry().refusalOf("Diagnostic Grid Time Set");
    if (wrong.empty() && untold.empty()) return;
    if (wrong.empty())
        throw CommandFailure("the traces were changed, but the server was not told: " + untold);
    const std::string& why = firstError_.empty() ? tool_.registry().refusal() : firstError_;
    throw CommandFailure("not every trace was changed: " + told(wrong) +
                         (why.empty() ? "" : ": " + why));
}

void TraceCheck::compareWords(std::vector<std::string>& wrong)
{
    std::map<std::string, FlagWords> words;
    for (auto& component : wordsOf(tool_, "the flags can't be read back"))
        words[component.name] = component;
    for (const auto& [name, word] : expected_.words) {
        const auto found = words.find(name);
        if (found == words.end())
            wrong.push_back("the component " + name + " has gone");
        else if (found->second.flags != word)
            wrong.push_back(name + " has the flags " + hexadecimal(found->second.flags) +
                            " instead of " + hexadecimal(word));
    }
    for (const auto& [component, level, on] : levels_) {
        const auto found = words.find(component);
        if (found == words.end()) continue;
        if (level >= 32) {
            wrong.push_back(component + " has no place for level " + std::to_string(level));
            continue;
        }
        const std::int32_t mask = mdlTraces::levelMask(tool_.context(), level);
        const bool isOn = (found->second.flags & mask) != 0;
        if (isOn != on && (on || (found->second.defaultFlags & mask) == 0))
            wrong.push_back("level " + std::to_string(level) + " of " + component + " is still " +
                            (on ? "off" : "on"));
    }
}

void TraceCheck::compareRecords(std::vector<std::string>& wrong)
{
    for (const auto& [names, on] : expected_.records)
        if (isRecordedAsOn(tool_.context(), names.first, names.second) != on)
            wrong.push_back("\"" + names.first + " - " + names.second + "\" is not recorded as " +
                            (on ? "on" : "off"));
}

/// Others may report events meanwhile: each of the operation's own is to be among the new ones.
void TraceCheck::compareEvents(std::vector<std::string>& wrong) const
{
    std::vector<ReportedEvent> events = tool_.server().eventsSince(eventsBefore_);
    for (const ReportedEvent& event : expected_.events) {
        const auto found = std::find(events.begin(), events.end(), event);
        if (found == events.end())
            wrong.push_back("the event of \"" + event.insert + "\" is not in the event log");
        else
            events.erase(found);
    }
}

} // namespace cli
