#include "system/temporary_file.h"

#include "system/posix/temporary_place.h"
#include "system/system_error.h"

#include <cerrno>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/statvfs.h>
#include <unistd.h>

namespace {

/// For file systems that make no files without a name: takes the name away at once.
FileDescriptor makeAndUnname(const std::filesystem::path& folder)
{
    std::string name = (folder / "orvan-XXXXXX").string();
    FileDescriptor file(::mkostemp(name.data(), O_CLOEXEC));
    if (!file.isOpen()) throw systemError(errno, runTimeErrors::pathNotFound);
    ::unlink(name.c_str());
    return file;
}

} // namespace

FileDescriptor makeTemporaryFile()
{
    const std::filesystem::path folder = temporaryPlace();
#ifdef O_TMPFILE
    FileDescriptor file(::open(folder.c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (file.isOpen()) return file;
#endif
    return makeAndUnname(folder);
}

FileSystemRoom roomOf(const FileDescriptor& file)
{
    struct statvfs record {};
    if (::fstatvfs(file.get(), &record) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    const auto blockSize = static_cast<std::int64_t>(record.f_frsize);
    return {static_cast<std::int64_t>(record.f_bavail) * blockSize,
            static_cast<std::int64_t>(record.f_blocks) * blockSize};
}
