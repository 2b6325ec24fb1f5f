#include "backends/site/site_processes.h"

#include "backends/site/command_line.h"
#include "drives/site_paths.h"
#include "runtime/run_time_error.h"
#include "system/child_process.h"
#include "system/environment.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/whole_file.h"
#include "text/utf8.h"

#include <algorithm>
#include <chrono>
#include <string_view>
#include <thread>
#include <utility>

namespace {

constexpr const char* drivesVariable = "ORVAN_SITE_DRIVES";
constexpr std::string_view cabinetMakerName = "cabmaker";

/// Whether the last name of a path is `name`, with or without the ending of a program.
bool isCalled(const std::string& path, std::string_view name)
{
    const auto last = foldCase(path.substr(path.find_last_of("\\/:") + 1));
    return last == foldCase(name) || last == foldCase(std::string(name) + ".exe");
}

bool isSameFile(const std::string& one, const std::string& other)
{
    const auto facts = factsOf(one);
    const auto others = factsOf(other);
    return facts && others && facts->identity == others->identity;
}

/// A copy of an older program may have the same length, so every byte counts.
bool hasSameBytes(const std::string& one, const std::string& other)
{
    constexpr int anyNumber = runTimeErrors::fileNotFound;
    try {
        return isSameFile(one, other) ||
               readMachineFile(one, anyNumber) == readMachineFile(other, anyNumber);
    } catch (const RunTimeError&) {
        return false;
    }
}

/// Where a name leads; empty for one that can't be one. The machine's own may be named by anybody:
/// what is started is an installed program or nothing, and a name is no more than compared with it.
std::string machineNameOf(const SitePaths& paths, const std::string& name)
{
    try {
        return paths.machinePath(name);
    } catch (const RunTimeError&) {
        return name.rfind('/', 0) == 0 ? name : std::string();
    }
}

constexpr const char* notOfThisMachine = "it is not a program of this machine's own";
constexpr const char* noCabinetMaker = "no cabinet maker is installed on this machine";

[[noreturn]] void refuse(const std::string& program)
{
    throw RunTimeError(runTimeErrors::permissionDenied,
                       program + " is not run: " + notOfThisMachine);
}

/// The last line of what a process wrote, without the name that it puts before it.
std::string lastWordsIn(const FileDescriptor& standardError, std::string_view name)
try {
    char buffer[4096];
    std::string text(buffer,
                     standardError.isOpen() ? readAt(standardError, buffer, sizeof buffer, 0) : 0);
    while (!text.empty() && (text.back() == '\n' || text.back() == '.')) text.pop_back();
    text.erase(0, text.rfind('\n') + 1);
    const std::string head = std::string(name) + ": ";
    return text.substr(text.compare(0, head.size(), head) == 0 ? head.size() : 0);
} catch (const RunTimeError&) {
    return {};
}

std::string failureOf(const ChildProcessEnd& end, const FileDescriptor& standardError)
{
    if (end.signal != 0) return "signal " + std::to_string(end.signal) + " ended it";
    if (end.status == 0) return {};
    const std::string said = lastWordsIn(standardError, cabinetMakerName);
    return said.empty() ? "it ended with status " + std::to_string(end.status) : said;
}

bool hasScreen()
{
    return environmentVariable("DISPLAY") || environmentVariable("WAYLAND_DISPLAY");
}

} // namespace

SiteProcesses::SiteProcesses(const SitePaths& paths, InstalledPrograms installed)
    : paths_(paths), installed_(std::move(installed))
{}

SiteProcesses::~SiteProcesses()
{
    ChildProcessEnd end;
    for (const auto& process : running_) lookAtChildProcess(process.first, false, end);
}

/// Where the file of a program's name lies on the machine; of a name without an ending, the file
/// with that of a program comes first.
std::optional<std::string> SiteProcesses::fileOf(const std::string& name) const
{
    const auto lastName = name.substr(name.find_last_of("\\/:") + 1);
    const bool hasEnding = lastName.find('.') != std::string::npos;
    for (const char* ending : {".exe", ""}) {
        if (*ending != '\0' && hasEnding) continue;
        auto program = machineNameOf(paths_, name + ending);
        if (isPlainFile(program)) return program;
    }
    return {};
}

std::int32_t SiteProcesses::start(const std::string& commandLine, WindowStyle)
{
    lastReport_ = {};
    const auto zero = commandLine.find('\0');
    const auto line = parseCommandLine(std::string_view(commandLine).substr(0, zero));
    if (!line.readings.empty() && isCalled(line.readings.front().program, "explorer"))
        return openFolder(line.readings.front().arguments);
    for (const auto& reading : line.readings) {
        const auto asked = fileOf(reading.program);
        if (!asked) continue;
        if (isCalled(reading.program, cabinetMakerName))
            return startCabinetMaker(*asked, reading.arguments);
        if (isSameFile(*asked, installed_.viewer))
            return spawn(installed_.viewer, reading.arguments, {});
        refuse(reading.program);
    }
    throw RunTimeError(runTimeErrors::fileNotFound);
}

std::string SiteProcesses::obstacleTo(const std::string& program) const
{
    const auto asked = fileOf(program);
    if (!asked) return "it is not there";
    if (isCalled(program, cabinetMakerName))
        return isPlainFile(installed_.cabinetMaker) ? "" : noCabinetMaker;
    return isSameFile(*asked, installed_.viewer) ? "" : notOfThisMachine;
}

std::int32_t SiteProcesses::startCabinetMaker(const std::string& asked,
                                              const std::vector<std::string>& arguments)
{
    if (!isPlainFile(installed_.cabinetMaker))
        throw RunTimeError(runTimeErrors::fileNotFound, noCabinetMaker);
    Running running;
    running.standardError = makeMemoryFile();
    running.replaced = !hasSameBytes(asked, installed_.cabinetMaker);
    return spawn(installed_.cabinetMaker, arguments, std::move(running));
}

std::int32_t SiteProcesses::openFolder(const std::vector<std::string>& arguments)
{
    const std::string opener = "/usr/bin/xdg-open";
    if (!hasScreen())
        throw RunTimeError(runTimeErrors::fileNotFound, "there is no screen to show a folder on");
    if (!isPlainFile(opener))
        throw RunTimeError(runTimeErrors::fileNotFound,
                           "no program that shows folders is installed here (xdg-open)");
    const auto folder = paths_.machinePath(arguments.empty() ? "C:\\" : arguments.front());
    const auto facts = factsOf(folder);
    if (!facts || facts->kind != FileKind::folder)
        throw RunTimeError(runTimeErrors::pathNotFound); // a file would be opened by its program
    return spawn(opener, {folder}, {});
}

std::int32_t SiteProcesses::spawn(const std::string& program, std::vector<std::string> arguments,
                                  Running running)
{
    const std::int32_t process =
        startChildProcess({.program = program,
                           .arguments = std::move(arguments),
                           .folder = paths_.currentFolder(),
                           .variables = {{drivesVariable, paths_.siteFolder()}},
                           .standardError = running.standardError.get()});
    running_[process] = std::move(running);
    return process;
}

bool SiteProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    using namespace std::chrono;
    const auto running = running_.find(processId);
    if (running == running_.end()) return false;
    const auto deadline = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    auto pause = microseconds(200);
    for (;;) {
        ChildProcessEnd end;
        const auto state = lookAtChildProcess(processId, milliseconds < 0, end);
        if (state != ChildProcessState::runs) {
            const bool ended = state == ChildProcessState::ended;
            if (ended)
                lastReport_ = {failureOf(end, running->second.standardError),
                               running->second.replaced};
            running_.erase(running);
            return ended;
        }
        const auto left = duration_cast<microseconds>(deadline - steady_clock::now());
        if (left <= microseconds(0)) return true;
        std::this_thread::sleep_for(std::min(pause, left));
        pause = std::min(pause * 2, microseconds(20'000));
    }
}
