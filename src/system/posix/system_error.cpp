#include "system/system_error.h"

#include <cerrno>

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
    case EDQUOT:
    case EFBIG:
        return diskFull;
    case ENOMEM:
        return outOfMemory;
    default:
        return deviceIo;
    }
}

RunTimeError systemError(int error, int missing)
{
    return RunTimeError(runTimeErrorNumber(error, missing));
}
