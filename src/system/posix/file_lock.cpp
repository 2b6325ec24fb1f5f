#include "system/file_lock.h"

#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>

bool tryLock(const FileDescriptor& file)
{
    while (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return false;
        if (errno != EINTR) throw systemError(errno, runTimeErrors::deviceIo);
    }
    return true;
}

bool tryLockBytes(const FileDescriptor& file)
{
    struct flock all {};
    all.l_type = F_WRLCK;
    all.l_whence = SEEK_SET;
    return ::fcntl(file.get(), F_OFD_SETLK, &all) == 0 || (errno != EAGAIN && errno != EACCES);
}
