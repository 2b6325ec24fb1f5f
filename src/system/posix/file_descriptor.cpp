#include "system/file_descriptor.h"

#include <cerrno>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

FileDescriptor::~FileDescriptor()
{
    close();
}

int FileDescriptor::close()
{
    if (descriptor_ < 0) return 0;
    const int result = ::close(std::exchange(descriptor_, -1));
    return result != 0 && errno != EINTR ? errno : 0;
}

std::size_t openFilesAllowed()
{
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY)
        return std::numeric_limits<std::size_t>::max();
    return limit.rlim_cur;
}
