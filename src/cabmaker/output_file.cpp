#include "cabmaker/output_file.h"

#include <cerrno>
#include <cstdio>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

#include "cabmaker/file_error.h"

namespace cabmaker {

OutputFile::OutputFile(std::string path) : path_(std::move(path))
{
    const std::string stem = path_ + "." + std::to_string(getpid());
    for (int attempt = 0; descriptor_ < 0; ++attempt) {
        temporaryPath_ = stem + "-" + std::to_string(attempt) + ".tmp";
        descriptor_ = ::open(temporaryPath_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
        if (descriptor_ < 0 && errno != EEXIST) throw fileError("cannot write " + path_, errno);
    }
}

OutputFile::~OutputFile()
{
    if (descriptor_ >= 0) ::close(descriptor_);
    if (!published_) ::unlink(temporaryPath_.c_str());
}

void OutputFile::append(std::span<const std::uint8_t> bytes)
{
    write(size_, bytes);
    size_ += bytes.size();
}

void OutputFile::append(std::string_view text)
{
    append(std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

void OutputFile::overwrite(std::uint64_t offset, std::span<const std::uint8_t> bytes)
{
    write(offset, bytes);
}

void OutputFile::readBack(std::uint64_t offset, std::span<std::uint8_t> bytes) const
{
    while (!bytes.empty()) {
        const ssize_t count =
            ::pread(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (count < 0 && errno == EINTR) continue;
        if (count <= 0) throw fileError("cannot read " + path_, count < 0 ? errno : EIO);
        bytes = bytes.subspan(static_cast<std::size_t>(count));
        offset += static_cast<std::uint64_t>(count);
    }
}

void OutputFile::close()
{
    if (descriptor_ < 0) return;
    if (::close(std::exchange(descriptor_, -1)) != 0)
        throw fileError("cannot write " + path_, errno);
}

void OutputFile::publish()
{
    close();
    if (std::rename(temporaryPath_.c_str(), path_.c_str()) != 0)
        throw fileError("cannot write " + path_, errno);
    published_ = true;
}

void OutputFile::write(std::uint64_t offset, std::span<const std::uint8_t> bytes)
{
    while (!bytes.empty()) {
        const ssize_t written =
            ::pwrite(descriptor_, bytes.data(), bytes.size(), static_cast<off_t>(offset));
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) throw fileError("cannot write " + path_, errno);
        bytes = bytes.subspan(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
}

} // namespace cabmaker
