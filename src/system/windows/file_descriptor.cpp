#include "system/file_descriptor.h"

#include <cerrno>
#include <io.h>

FileDescriptor::~FileDescriptor()
{
    close();
}

int FileDescriptor::close()
{
    if (descriptor_ < 0) return 0;
    return ::_close(std::exchange(descriptor_, -1)) != 0 ? errno : 0;
}

std::size_t openFilesAllowed()
{
    return 8192; // what the C library numbers
}
