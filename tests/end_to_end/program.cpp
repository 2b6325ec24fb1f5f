#include "end_to_end/program.h"

#include "support/places.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::string temporaryName()
{
    char name[] = "/tmp/orvan_run_XXXXXX";
    const int file = mkstemp(name);
    if (file >= 0) close(file);
    return name;
}

std::string takeContent(const std::string& name)
{
    std::ifstream stream(name, std::ios::binary);
    std::string content{std::istreambuf_iterator<char>(stream), {}};
    std::remove(name.c_str());
    return content;
}

} // namespace

nlohmann::json Outcome::json() const
{
    const auto value = nlohmann::json::parse(out, nullptr, false);
    EXPECT_FALSE(value.is_discarded()) << "not JSON: " << out << "\n" << err;
    return value.is_discarded() ? nlohmann::json() : value;
}

Outcome runProgram(const std::vector<std::string>& words, const std::string& folder)
{
    const std::string out = temporaryName();
    const std::string err = temporaryName();
    const pid_t child = fork();
    if (child == 0) {
        if (!folder.empty() && chdir(folder.c_str()) != 0) _exit(126);
        dup2(open("/dev/null", O_RDONLY), STDIN_FILENO);
        dup2(open(out.c_str(), O_WRONLY), STDOUT_FILENO);
        dup2(open(err.c_str(), O_WRONLY), STDERR_FILENO);
        std::vector<char*> arguments;
        for (const auto& word : words) arguments.push_back(const_cast<char*>(word.c_str()));
        arguments.push_back(nullptr);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    int state = 0;
    waitpid(child, &state, 0);
    Outcome run;
    run.status = WIFEXITED(state) ? WEXITSTATUS(state) : 128 + WTERMSIG(state);
    run.out = takeContent(out);
    run.err = takeContent(err);
    return run;
}

Outcome orvandiag(std::vector<std::string> words, const std::string& folder)
{
    words.insert(words.begin(), built::orvandiag);
    return runProgram(words, folder);
}
