#include "backends/portable/site_processes.h"

#include "backends/portable/command_line.h"
#include "backends/portable/posix_errors.h"
#include "backends/portable/site_paths.h"
#include "backends/portable/utf8.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <utility>

namespace {

constexpr const char* drivesVariable = "ORVAN_SITE_DRIVES";

/// What a new process is given besides its program: released with the object.
class SpawnPlan {
public:
    explicit SpawnPlan(const std::string& folder)
    {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
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

bool isExplorer(const std::string& program)
{
    const auto name = foldCase(program.substr(program.find_last_of("\\/") + 1));
    return name == "EXPLORER" || name == "EXPLORER.EXE";
}

bool hasScreen()
{
    return std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
}

} // namespace

SiteProcesses::SiteProcesses(const SitePaths& paths) : paths_(paths) {}

SiteProcesses::~SiteProcesses()
{
    for (const pid_t process : started_) ::waitpid(process, nullptr, WNOHANG);
}

/// Where a program lies on the machine.
std::optional<std::string> SiteProcesses::programOf(const std::string& name) const
{
    const auto lastName = name.substr(name.find_last_of("\\/:") + 1);
    const bool hasEnding = lastName.find('.') != std::string::npos;
    for (const char* ending : {"", ".exe"}) {
        if (*ending != '\0' && hasEnding) break;
        try {
            auto program = paths_.machinePath(name + ending);
            if (isPlainFile(program)) return program;
        } catch (const RunTimeError&) {
            continue; // a name that can't be one finds nothing
        }
    }
    return {};
}

std::int32_t SiteProcesses::start(const std::string& commandLine, WindowStyle)
{
    const auto zero = commandLine.find('\0');
    const auto line = parseCommandLine(std::string_view(commandLine).substr(0, zero));
    for (const auto& reading : line.readings)
        if (const auto program = programOf(reading.program))
            return spawn(*program, reading.arguments);
    if (!line.readings.empty() && isExplorer(line.readings.front().program) && hasScreen())
        return openFolder(line.readings.front().arguments);
    throw RunTimeError(runTimeErrors::fileNotFound);
}

std::int32_t SiteProcesses::openFolder(const std::vector<std::string>& arguments)
{
    const std::string opener = "/usr/bin/xdg-open";
    if (!isPlainFile(opener)) throw RunTimeError(runTimeErrors::fileNotFound);
    return spawn(opener, {paths_.machinePath(arguments.empty() ? "C:\\" : arguments.front())});
}

std::int32_t SiteProcesses::spawn(const std::string& program, std::vector<std::string> arguments)
{
    if (::access(program.c_str(), X_OK) != 0) throw posixError(errno, runTimeErrors::fileNotFound);
    arguments.insert(arguments.begin(), program);
    auto variables = environmentWith(paths_.siteFolder());
    const SpawnPlan plan(paths_.currentFolder());
    pid_t process = 0;
    const int error = ::posix_spawn(&process, program.c_str(), plan.actions(), plan.attributes(),
                                    pointersOf(arguments).data(), pointersOf(variables).data());
    if (error == EACCES || error == EPERM) throw posixError(error, runTimeErrors::fileNotFound);
    if (error != 0) throw RunTimeError(runTimeErrors::invalidCall);
    started_.insert(process);
    return process;
}

bool SiteProcesses::wait(std::int32_t processId, std::int32_t milliseconds)
{
    using namespace std::chrono;
    if (started_.count(processId) == 0) return false;
    const auto end = steady_clock::now() + std::chrono::milliseconds(milliseconds);
    auto pause = microseconds(200);
    for (;;) {
        const pid_t ended = ::waitpid(processId, nullptr, milliseconds < 0 ? 0 : WNOHANG);
        if (ended < 0 && errno == EINTR) continue;
        if (ended != 0) {
            started_.erase(processId);
            return ended > 0;
        }
        const auto left = duration_cast<microseconds>(end - steady_clock::now());
        if (left <= microseconds(0)) return true;
        std::this_thread::sleep_for(std::min(pause, left));
        pause = std::min(pause * 2, microseconds(20'000));
    }
}
