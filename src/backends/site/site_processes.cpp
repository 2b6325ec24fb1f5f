#include "backends/site/site_processes.h"

#include "backends/site/command_line.h"
#include "backends/site/files/site_paths.h"
#include "system/system_error.h"
#include "system/whole_file.h"
#include "text/utf8.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr const char* drivesVariable = "ORVAN_SITE_DRIVES";
constexpr std::string_view cabinetMakerName = "cabmaker";

/// What a new process is given besides its program: released with the object.
class SpawnPlan {
public:
    /// `words` takes what the process writes to standard error; -1 for nobody.
    SpawnPlan(const std::string& folder, int words)
    {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        if (words >= 0)
            ::posix_spawn_file_actions_adddup2(&actions_, words, STDERR_FILENO);
        else
            ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addchdir_np(&actions_, folder.c_str());

        ::posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigset_t ordinary;
        ::sigemptyset(&none);
        ::sigemptyset(&ordinary);
        for (const int signal : {SIGINT, SIGTERM, SIGPIPE, SIGHUP, SIGQUIT})
            ::sigaddset(&ordinary, signal);
        ::posix_spawnattr_setsigmask(&attributes_, &none);
        ::posix_spawnattr_setsigdefault(&attributes_, &ordinary);
        ::posix_spawnattr_setpgroup(&attributes_, 0);
        ::posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF |
                                                     POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnPlan()
    {
        ::posix_spawn_file_actions_destroy(&actions_);
        ::posix_spawnattr_destroy(&attributes_);
    }
    SpawnPlan(const SpawnPlan&) = delete;
    SpawnPlan& operator=(const SpawnPlan&) = delete;

    const posix_spawn_file_actions_t* actions() const { return &actions_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

/// The pointers of texts, with a null one at the end.
std::vector<char*> pointersOf(std::vector<std::string>& texts)
{
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (auto& text : texts) pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> environmentWith(const std::string& siteFolder)
{
    const std::string start = std::string(drivesVariable) + "=";
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable)
        if (std::string_view(*variable).substr(0, start.size()) != start)
            variables.emplace_back(*variable);
    variables.push_back(start + siteFolder);
    return variables;
}

bool isPlainFile(const std::string& machinePath)
{
    struct stat facts {};
    return ::stat(machinePath.c_str(), &facts) == 0 && S_ISREG(facts.st_mode);
}

/// Whether the last name of a path is `name`, with or without the ending of a program.
bool isCalled(const std::string& path, std::string_view name)
{
    const auto last = foldCase(path.substr(path.find_last_of("\\/:") + 1));
    return last == foldCase(name) || last == foldCase(std::string(name) + ".exe");
}

bool isSameFile(const std::string& one, const std::string& other)
{
    struct stat facts {};
    struct stat others {};
    return ::stat(one.c_str(), &facts) == 0 && ::stat(other.c_str(), &others) == 0 &&
           facts.st_dev == others.st_dev && facts.st_ino == others.st_ino;
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

[[noreturn]] void refuse(const std::string& program)
{
    throw RunTimeError(runTimeErrors::permissionDenied,
                       program + " is not run: it is not a program of this machine's own");
}

/// The last line of what a process wrote, without the name that it puts before it.
std::string lastWordsIn(const FileDescriptor& words, std::string_view name)
{
    constexpr std::size_t enough = 4096;
    char buffer[enough];
    const ssize_t count = words.isOpen() ? ::pread(words.get(), buffer, enough, 0) : 0;
    std::string text(buffer, count > 0 ? static_cast<std::size_t>(count) : 0);
    while (!text.empty() && (text.back() == '\n' || text.back() == '.')) text.pop_back();
    text.erase(0, text.rfind('\n') + 1);
    const std::string head = std::string(name) + ": ";
    return text.substr(text.compare(0, head.size(), head) == 0 ? head.size() : 0);
}

std::string failureOf(int status, const FileDescriptor& words)
{
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) return {};
    if (WIFSIGNALED(status)) return "signal " + std::to_string(WTERMSIG(status)) + " ended it";
    const std::string said = lastWordsIn(words, cabinetMakerName);
    return said.empty() ? "it ended with status " + std::to_string(WEXITSTATUS(status)) : said;
}

bool hasScreen()
{
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
}

} // namespace

SiteProcesses::SiteProcesses(const SitePaths& paths, InstalledPrograms installed)
    : paths_(paths), installed_(std::move(installed))
{}

SiteProcesses::~SiteProcesses()
{
    for (const auto& process : running_) ::waitpid(process.first, nullptr, WNOHANG);
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

std::int32_t SiteProcesses::startCabinetMaker(const std::string& asked,
                                              const std::vector<std::string>& arguments)
{
    if (!isPlainFile(installed_.cabinetMaker))
        throw RunTimeError(runTimeErrors::fileNotFound,
                           "no cabinet maker is installed on this machine");
    Running running;
    running.words = FileDescriptor(::memfd_create("words", MFD_CLOEXEC));
    running.replaced = !hasSameBytes(asked, installed_.cabinetMaker);
    return spawn(installed_.cabinetMaker, arguments, std::move(running));
}

std::int32_t SiteProcesses::openFolder(const std::vector<std::string>& arguments)
{
    const std::string opener = "/usr/bin/xdg-open";
    if (!hasScreen() || !isPlainFile(opener)) throw RunTimeError(runTimeErrors::fileNotFound);
    const auto folder = paths_.machinePath(arguments.empty() ? "C:\\" : arguments.front());
    struct stat facts {};
    if (::stat(folder.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode))
        throw RunTimeError(runTimeErrors::pathNotFound); // a file would be opened by its program
    return spawn(opener, {folder}, {});
}

std::int32_t SiteProcesses::spawn(const std::string& program, std::vector<std::string> arguments,
                                  Running running)
{
    if (::access(program.c_str(), X_OK) != 0) throw systemError(errno, runTimeErrors::fileNotFound);
    arguments.insert(arguments.begin(), program);
    auto variables = environmentWith(paths_.siteFolder());
    const SpawnPlan plan(paths_.currentFolder(), running.words.get());
    pid_t process = 0;
    const int error = ::posix_spawn(&process, program.c_str(), plan.actions(), plan.attributes(),
                                    pointersOf(arguments).data(), pointersOf(variables).data());
    if (error == EACCES || error == EPERM) throw systemError(error, runTimeErrors::fileNotFound);
    if (error != 0) throw RunTimeError(runTimeErrors::invalidCall);
    running_[process] = std::move(running);
    return process;
}

bool SiteProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    using namespace std::chrono;
    const auto running = running_.find(processId);
    if (running == running_.end()) return false;
    const auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    auto pause = microseconds(200);
    for (;;) {
        int status = 0;
        const pid_t ended = ::waitpid(processId, &status, milliseconds < 0 ? 0 : WNOHANG);
        if (ended < 0 && errno == EINTR) continue;
        if (ended != 0) {
            if (ended > 0)
                lastReport_ = {failureOf(status, running->second.words), running->second.replaced};
            running_.erase(running);
            return ended > 0;
        }
        const auto left = duration_cast<microseconds>(end - steady_clock::now());
        if (left <= microseconds(0)) return true;
        std::this_thread::sleep_for(std::min(pause, left));
        pause = std::min(pause * 2, microseconds(20'000));
    }
}
