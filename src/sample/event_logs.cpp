#include "sample/event_logs.h"

#include "sample/occurrence.h"
#include "sample/output_file.h"

#include <algorithm>
#include <array>
#include <span>
#include <string>
#include <vector>

namespace sample {

namespace {

/// A kind of event; `text` has names in braces as the texts of traces do.
struct EventKind {
    std::string_view type;
    std::string_view source;
    int id;
    int weight;
    std::string_view text;
};

constexpr auto applicationEvents = std::to_array<EventKind>({
    {"Information", "KoCSMgr", 1001, 2, "The call server takes calls on 24 ports."},
    {"Information", "KoCSMgr", 1010, 20, "{small} calls were handled in the past hour."},
    {"Warning", "KoCSMgr", 1204, 6, "Extension {ext} failed to log on 3 times by telephone."},
    {"Information", "KoDirSync", 1301, 18, "The directory cycle {sequence} changed {few} objects."},
    {"Warning", "KoDirSync", 1310, 4, "A directory query took {large} ms."},
    {"Information", "KoMsgStore", 1401, 14, "{server} has {few} sessions open."},
    {"Warning", "KoMsgStore", 1406, 8, "The mailbox of extension {ext} is {percent} % full."},
    {"Error", "KoMsgStore", 1420, 2, "{server} could not be reached; messages are kept here."},
    {"Information", "KoNotify", 2101, 10, "The lamps of {small} extensions were compared."},
    {"Warning", "KoNotify", 2107, 7, "The lamp of extension {ext} could not be set."},
    {"Error", "KoNotify", 2112, 2, "The paging service {pager} did not answer 4 times."},
    {"Information", "KoTelephony", 2201, 6, "The link to PBX-A is up."},
    {"Warning", "KoTelephony", 2202, 6,
     "The link to PBX-A is down; calls come without their data."},
    {"Information", "MSSQL$KELMAORVAN", 18264, 3, "Database OrvanDirDb was backed up."},
    {"Information", "SecurityHost", 1704, 5, "Security policy was applied successfully."},
});

constexpr auto systemEvents = std::to_array<EventKind>({
    {"Information", "Service Control Manager", 7036, 30,
     "The Kelma Orvan Tools service entered "
     "the running state."},
    {"Information", "Service Control Manager", 7035, 10,
     "A start control was sent to the Kelma "
     "Orvan Tools service."},
    {"Information", "EventLog", 6009, 1, "The event log service is version 5.00."},
    {"Warning", "W32Time", 36, 4, "The time has not been synchronised for {large} seconds."},
    {"Warning", "Disk", 51, 2, "An error was detected on device Harddisk{few} during paging."},
    {"Error", "NetBT", 4321, 2, "The name VOICE-GROUP could not be registered."},
    {"Information", "Print", 10, 6, "Document {small} was printed on FRONTDESK."},
});

constexpr auto securityEvents = std::to_array<EventKind>({
    {"Success Audit", "Security", 528, 30, "Logon of ORVAN\\orvanservice, type 5."},
    {"Success Audit", "Security", 538, 24, "Logoff of ORVAN\\orvanservice, type 3."},
    {"Success Audit", "Security", 576, 12, "Privileges were assigned to ORVAN\\mweber."},
    {"Failure Audit", "Security", 529, 3, "Logon of ORVAN\\helpdesk failed: wrong password."},
});

const EventKind& drawKind(std::span<const EventKind> kinds, Random& random)
{
    int total = 0;
    for (const auto& kind : kinds) total += kind.weight;
    auto drawn = static_cast<int>(random.below(static_cast<std::uint32_t>(total)));
    return *std::find_if(kinds.begin(), kinds.end(), [&](const EventKind& kind) {
        drawn -= kind.weight;
        return drawn < 0;
    });
}

/// A text between quotes as JSON has it; the texts here are plain ASCII without control characters.
void appendQuoted(std::string& line, std::string_view text)
{
    line += '"';
    for (const char character : text) {
        if (character == '"' || character == '\\') line += '\\';
        line += character;
    }
    line += '"';
}

void appendEvent(std::string& lines, Moment moment, const EventKind& kind,
                 std::string_view computer, Random& random, History& history)
{
    std::string insert;
    appendText(insert, kind.text, drawOccurrence(random, 0, history), random);
    lines += R"({"time":")";
    appendDateTime(lines, moment);
    lines += R"(","type":)";
    appendQuoted(lines, kind.type);
    lines += R"(,"source":)";
    appendQuoted(lines, kind.source);
    lines += R"(,"id":)";
    appendNumber(lines, kind.id);
    lines += R"(,"computer":)";
    appendQuoted(lines, computer);
    lines += R"(,"inserts":[)";
    appendQuoted(lines, insert);
    lines += "]}\n";
}

void writeEventLog(const std::filesystem::path& path, std::span<const EventKind> kinds, int count,
                   std::string_view computer, Random& random)
{
    std::vector<Moment> moments;
    for (int index = 0; index < count; ++index)
        moments.push_back(coverageStart +
                          random.between(0, (coverageEnd - coverageStart) / second) * second);
    std::sort(moments.begin(), moments.end());

    std::string lines;
    History history;
    for (const Moment moment : moments)
        appendEvent(lines, moment, drawKind(kinds, random), computer, random, history);
    writeFile(path, lines, moments.back());
}

} // namespace

void writeEventLogs(const std::filesystem::path& folder, std::string_view computer, Random& random)
{
    writeEventLog(folder / "Application.jsonl", applicationEvents, 340, computer, random);
    writeEventLog(folder / "System.jsonl", systemEvents, 220, computer, random);
    writeEventLog(folder / "Security.jsonl", securityEvents, 280, computer, random);
}

} // namespace sample
