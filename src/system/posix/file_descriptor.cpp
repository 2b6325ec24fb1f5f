#include "system/file_descriptor.h"

#include <cerrno>
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
