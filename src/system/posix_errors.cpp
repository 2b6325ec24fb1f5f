#include "system/posix_errors.h"

#include <cerrno>

int runTimeErrorNumber(int systemError, int missing)
{
    using namespace runTimeErrors;
    switch (systemError) {
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
    case EDQUOT:
    case EFBIG:
        return diskFull;
    case ENOMEM:
        return outOfMemory;
    default:
        return deviceIo;
    }
}

RunTimeError posixError(int systemError, int missing)
{
    return RunTimeError(runTimeErrorNumber(systemError, missing));
}
