// A server that tests/windows/with_postgres.sh has started, and does things to by files.
#include "support/postgres_server.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>

namespace fs = std::filesystem;
using namespace std::chrono_literals;

namespace {

constexpr auto patience = 60s;
constexpr auto nap = 5ms;

/// The folder as the machine names it that Wine runs on.
std::string serversFolder()
{
    const char* folder = std::getenv("ORVAN_TEST_POSTGRES");
    if (!folder) throw std::runtime_error("tests/windows/with_postgres.sh starts the server");
    return folder;
}

/// Has something done; gives what the server says to it.
std::string asked(const std::string& wish, const std::string& more = "")
{
    static int number = 0;
    const fs::path folder = "Z:" + serversFolder();
    const std::string name = std::to_string(++number);
    {
        std::ofstream file(folder / "wish", std::ios::binary);
        file << wish << '\n' << more << '\n';
    }
    fs::rename(folder / "wish", folder / (name + ".ask"));
    const fs::path answer = folder / (name + ".done");
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!fs::exists(answer)) {
        if (std::chrono::steady_clock::now() > end)
            throw std::runtime_error("PostgreSQL's server does not answer");
        std::this_thread::sleep_for(nap);
    }
    std::ifstream file(answer, std::ios::binary);
    std::string status;
    std::getline(file, status);
    std::string said{std::istreambuf_iterator<char>(file), {}};
    while (!said.empty() && said.back() == '\n') said.pop_back();
    if (status != "0") throw std::runtime_error("psql: " + said);
    return said;
}

} // namespace

PostgresServer::PostgresServer() : folder_(serversFolder()) {}

PostgresServer::~PostgresServer() = default;

std::string PostgresServer::connectionString(const std::string& database,
                                             const std::string& user) const
{
    return "Driver=PostgreSQL Unicode;Servername=" + folder_ + ";Database=" + database +
           ";UID=" + user;
}

void PostgresServer::start()
{
    asked("start");
}

void PostgresServer::stop()
{
    asked("stop");
}

void PostgresServer::reset() const
{
    run("SET client_min_messages = warning; DROP SCHEMA public CASCADE; CREATE SCHEMA public");
}

std::string PostgresServer::run(const std::string& statements) const
{
    return asked("run", statements);
}

void PostgresServer::runFile(const std::string& file) const
{
    asked("file", file);
}
