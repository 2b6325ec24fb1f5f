#include "support/postgres_server.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <thread>

#include <fcntl.h>
#include <pwd.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr const char* serversAccount = "postgres";
constexpr auto patience = 60s;
constexpr auto nap = 20ms;

/// The folder with the programs of the newest version that is installed.
std::string newestPrograms()
{
    std::error_code none;
    std::vector<std::pair<int, std::string>> versions;
    for (const auto& version : fs::directory_iterator("/usr/lib/postgresql", none))
        if (fs::exists(version.path() / "bin" / "initdb", none))
            versions.emplace_back(std::atoi(version.path().filename().c_str()),
                                  version.path() / "bin");
    if (versions.empty())
        throw std::runtime_error("PostgreSQL is not installed; scripts/setup.sh names the packages "
                                 "of the tests, and ./test installs them");
    return std::max_element(versions.begin(), versions.end())->second;
}

/// Starts a program, which ends with this one, its output in a pipe or else in a file.
int started(const std::vector<std::string>& words, int output, bool endsWithUs)
{
    std::vector<char*> arguments;
    for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
    arguments.push_back(nullptr);
    const int child = ::fork();
    if (child != 0) return child;
    if (endsWithUs) ::prctl(PR_SET_PDEATHSIG, SIGQUIT);
    const int empty = ::open("/dev/null", O_RDONLY);
    ::dup2(empty, 0);
    ::dup2(output, 1);
    ::dup2(output, 2);
    ::execvp(arguments[0], arguments.data());
    ::_exit(127);
}

int waitFor(int child)
{
    int status = 0;
    while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128;
}

/// What a program writes. Throws std::runtime_error with that when it fails.
std::string outputOf(const std::vector<std::string>& words)
{
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    const int child = started(words, ends[1], true);
    ::close(ends[1]);
    std::string output;
    std::array<char, 4096> bytes{};
    for (ssize_t count = 0; (count = ::read(ends[0], bytes.data(), bytes.size())) > 0;)
        output.append(bytes.data(), static_cast<std::size_t>(count));
    ::close(ends[0]);
    while (!output.empty() && output.back() == '\n') output.pop_back();
    if (waitFor(child) != 0) throw std::runtime_error(words.front() + ": " + output);
    return output;
}

} // namespace

PostgresServer::PostgresServer() : programs_(newestPrograms())
{
    std::string pattern = (fs::temp_directory_path() / "orvan-pg-XXXXXX").string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    folder_ = pattern;
    if (::geteuid() == 0) {
        const passwd* account = ::getpwnam(serversAccount);
        if (!account || ::chown(folder_.c_str(), account->pw_uid, account->pw_gid) != 0)
            throw std::runtime_error("PostgreSQL refuses root, and there is no account postgres");
    }
    try {
        outputOf(asServer({programs_ + "/initdb", "-D", folder_ + "/data", "-A", "trust", "-U",
                           serversAccount, "--no-locale", "-E", "UTF8", "-N"}));
        start();
    } catch (...) {
        fs::remove_all(folder_);
        throw;
    }
}

PostgresServer::~PostgresServer()
{
    stop();
    std::error_code none;
    fs::remove_all(folder_, none);
}

/// The words that run a program by the account that the server is run by.
std::vector<std::string> PostgresServer::asServer(std::vector<std::string> words) const
{
    if (::geteuid() != 0) return words;
    const std::string account = serversAccount;
    // The account may not search the folder that the test is in.
    std::vector<std::string> all = {"env",
                                    "-C",
                                    folder_,
                                    "setpriv",
                                    "--reuid=" + account,
                                    "--regid=" + account,
                                    "--init-groups",
                                    "--pdeathsig",
                                    "QUIT"};
    all.insert(all.end(), words.begin(), words.end());
    return all;
}

std::string PostgresServer::connectionString(const std::string& database,
                                             const std::string& user) const
{
    return "Driver=PostgreSQL Unicode;Servername=" + folder_ + ";Database=" + database +
           ";UID=" + user;
}

bool PostgresServer::answers() const
try {
    run("SELECT 1");
    return true;
} catch (const std::runtime_error&) {
    return false;
}

void PostgresServer::start()
{
    const int log =
        ::open((folder_ + "/log").c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    process_ = started(asServer({programs_ + "/postgres", "-D", folder_ + "/data", "-k", folder_,
                                 "-c", "listen_addresses=", "-F"}),
                       log, true);
    ::close(log);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!answers()) {
        int status = 0;
        const bool ended = ::waitpid(process_, &status, WNOHANG) == process_;
        if (ended) process_ = -1;
        if (ended || std::chrono::steady_clock::now() > end)
            throw std::runtime_error("PostgreSQL does not start in " + folder_);
        std::this_thread::sleep_for(nap);
    }
}

void PostgresServer::stop()
{
    if (process_ < 0) return;
    ::kill(process_, SIGQUIT);
    waitFor(process_);
    process_ = -1;
}

void PostgresServer::reset() const
{
    run("SET client_min_messages = warning; DROP SCHEMA public CASCADE; CREATE SCHEMA public");
}

std::string PostgresServer::run(const std::string& statements) const
{
    return outputOf({programs_ + "/psql", "-X", "-q", "-t", "-A", "-v", "ON_ERROR_STOP=1", "-h",
                     folder_, "-U", serversAccount, "-d", "postgres", "-c", statements});
}

void PostgresServer::runFile(const std::string& file) const
{
    outputOf({programs_ + "/psql", "-X", "-q", "-v", "ON_ERROR_STOP=1", "-h", folder_, "-U",
              serversAccount, "-d", "postgres", "-f", file});
}
