#include "system/program_arguments.h"

#include "system/windows/windows_calls.h"

#include <memory>
#include <new>
#include <shellapi.h>

/// What `main` is given is in the code page of the machine, which has not every character.
std::vector<std::string> programArguments(int, const char* const*)
{
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> arguments(
        ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
    if (!arguments) throw std::bad_alloc();
    std::vector<std::string> texts;
    for (int index = 0; index < count; ++index) texts.push_back(utf8Of(arguments.get()[index]));
    return texts;
}
