#include "backends/jet/mapped_file.h"

#include "backends/jet/errors.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jet {

MappedFile::MappedFile(const std::string& path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 && (errno == ENOENT || errno == ENOTDIR)) raiseFileNotFound(path);
    struct stat facts {};
    if (file < 0 || fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode)) {
        if (file >= 0) ::close(file);
        raiseCannotOpen(path);
    }
    size_ = static_cast<std::size_t>(facts.st_size);
    void* mapped = size_ == 0 ? nullptr : mmap(nullptr, size_, PROT_READ, MAP_SHARED, file, 0);
    ::close(file);
    if (mapped == MAP_FAILED) raiseCannotOpen(path);
    base_ = static_cast<const char*>(mapped);
}

MappedFile::~MappedFile()
{
    if (base_ != nullptr) munmap(const_cast<char*>(base_), size_);
}

} // namespace jet
