#include "runtime/out_of_memory.h"

#include <cstdio>
#include <cstdlib>
#include <new>

namespace {

const char* programName = "";

[[noreturn]] void end()
{
    // Unbuffered, standard error needs no memory.
    std::fputs(programName, stderr);
    std::fputs(": out of memory\n", stderr);
    std::_Exit(1);
}

} // namespace

void endWhenOutOfMemory(const char* name)
{
    programName = name;
    std::set_new_handler(end);
}

void noteOutOfMemory()
{
    if (const auto handler = std::get_new_handler()) handler();
}
