#include "system/child_process.h"

#include "system/system_error.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/mman.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

/// What a new process is given besides its program: released with the object.
class SpawnPlan {
public:
    explicit SpawnPlan(const ChildProcessPlan& plan)
    {
        ::posix_spawn_file_actions_init(&actions_);
        ::posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        ::posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        if (plan.standardError >= 0)
            ::posix_spawn_file_actions_adddup2(&actions_, plan.standardError, STDERR_FILENO);
        else
            ::posix_spawn_file_actions_addopen(&actions_, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
        ::posix_spawn_file_actions_addchdir_np(&actions_, plan.folder.c_str());

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

std::vector<std::string> environmentWith(const std::map<std::string, std::string>& added)
{
    std::vector<std::string> variables;
    for (char** variable = environ; *variable != nullptr; ++variable) {
        const std::string_view text = *variable;
        if (added.count(std::string(text.substr(0, text.find('=')))) == 0)
            variables.emplace_back(text);
    }
    for (const auto& [name, value] : added) variables.push_back(name + "=" + value);
    return variables;
}

} // namespace

std::int32_t startChildProcess(const ChildProcessPlan& plan)
{
    if (::access(plan.program.c_str(), X_OK) != 0)
        throw systemError(errno, runTimeErrors::fileNotFound);
    std::vector<std::string> arguments = {plan.program};
    arguments.insert(arguments.end(), plan.arguments.begin(), plan.arguments.end());
    auto variables = environmentWith(plan.variables);
    const SpawnPlan spawn(plan);
    pid_t process = 0;
    const int error =
        ::posix_spawn(&process, plan.program.c_str(), spawn.actions(), spawn.attributes(),
                      pointersOf(arguments).data(), pointersOf(variables).data());
    if (error == EACCES || error == EPERM) throw systemError(error, runTimeErrors::fileNotFound);
    if (error != 0) throw RunTimeError(runTimeErrors::invalidCall);
    return process;
}

ChildProcessState lookAtChildProcess(std::int32_t process, bool waits, ChildProcessEnd& end)
{
    for (;;) {
        int status = 0;
        const pid_t ended = ::waitpid(process, &status, waits ? 0 : WNOHANG);
        if (ended == 0) return ChildProcessState::runs;
        if (ended < 0 && errno == EINTR) continue;
        if (ended < 0) return ChildProcessState::unknown;
        end = {};
        if (WIFSIGNALED(status))
            end.signal = WTERMSIG(status);
        else
            end.status = WEXITSTATUS(status);
        return ChildProcessState::ended;
    }
}

FileDescriptor makeMemoryFile()
{
    return FileDescriptor(::memfd_create("words", MFD_CLOEXEC));
}
