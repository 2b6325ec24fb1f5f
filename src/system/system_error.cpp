#include "system/system_error.h"

#include <cerrno>
#include <system_error>

namespace {

int runTimeErrorNumber(int error, int missing)
{
    using namespace runTimeErrors;
    switch (error) {
    case ENOENT:
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
    case EINVAL:
    case ENODEV:
    case ENXIO:
        return missing;
    case EEXIST:
        return fileAlreadyExists;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EBUSY:
    case ETXTBSY:
    case ENOTEMPTY:
        return permissionDenied;
    case ENOSPC:
#ifdef EDQUOT // Windows has no such number: a quota that is used up is a full disk there
    case EDQUOT:
#endif
    case EFBIG:
        return diskFull;
    case ENOMEM:
        return outOfMemory;
    default:
        return deviceIo;
    }
}

} // namespace

SystemError::SystemError(int error, int missing)
    : RunTimeError(runTimeErrorNumber(error, missing)), error_(error)
{}

std::string SystemError::systemMessage() const
{
    return std::generic_category().message(error_);
}

SystemError systemError(int error, int missing)
{
    return {error, missing};
}

RunTimeError toldWith(const std::string& what, const RunTimeError& error)
{
    const auto* failed = dynamic_cast<const SystemError*>(&error);
    return {error.number(), what + ": " + (failed ? failed->systemMessage() : error.description())};
}
