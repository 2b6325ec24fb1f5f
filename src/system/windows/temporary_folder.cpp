#include "system/temporary_folder.h"

#include "system/windows/temporary_place.h"

std::string makeTemporaryFolder(const std::string& start)
{
    return makeTemporary(start, ERROR_ALREADY_EXISTS,
                         [](const std::wstring& path, SECURITY_ATTRIBUTES& own) {
                             return ::CreateDirectoryW(path.c_str(), &own) != 0;
                         });
}
