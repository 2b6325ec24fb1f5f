#include "cabmaker/file_error.h"

#include <cerrno>
#include <system_error>

namespace cabmaker {

namespace {

int numberFor(int systemError)
{
    switch (systemError) {
    case ENOENT:
        return runTimeErrors::fileNotFound;
    case ENOTDIR:
        return runTimeErrors::pathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return runTimeErrors::permissionDenied;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return runTimeErrors::diskFull;
    case EEXIST:
    case EISDIR:
        return runTimeErrors::pathFileAccess;
    default:
        return runTimeErrors::deviceIo;
    }
}

} // namespace

RunTimeError fileError(const std::string& what, int systemError)
{
    return {numberFor(systemError), what + ": " + std::generic_category().message(systemError)};
}

} // namespace cabmaker
