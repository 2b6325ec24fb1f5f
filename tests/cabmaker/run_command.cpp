#include "cabmaker/scratch_folder.h"

#include <cstdlib>
#include <sys/wait.h>

CommandResult runCommand(const std::filesystem::path& folder, const std::string& command)
{
    const ScratchFolder captured;
    const std::string line = "cd '" + folder.string() + "' && ( " + command + " ) >'" +
                             captured.at("out") + "' 2>'" + captured.at("err") + "' </dev/null";
    const int status = std::system(line.c_str());
    CommandResult result;
    result.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    result.output = captured.read("out");
    result.errors = captured.read("err");
    return result;
}
