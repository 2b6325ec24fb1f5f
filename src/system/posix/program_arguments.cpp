#include "system/program_arguments.h"

std::vector<std::string> programArguments(int count, const char* const* arguments)
{
    return {arguments, arguments + count};
}
