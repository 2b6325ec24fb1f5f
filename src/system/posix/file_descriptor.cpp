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

std::size_t writeBytes(int descriptor, std::string_view bytes)
{
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(descriptor, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) break;
        written += static_cast<std::size_t>(count);
    }
    return written;
}
