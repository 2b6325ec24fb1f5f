#include "backends/jet/file_pages.h"

#include "backends/jet/errors.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace jet {

FilePages::FilePages(const std::string& path)
{
    // A pipe of that name would keep a reader waiting for its writer.
    file_ = open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (file_ < 0 && (errno == ENOENT || errno == ENOTDIR)) raiseFileNotFound(path);
    struct stat facts {};
    const bool readable = file_ >= 0 && fstat(file_, &facts) == 0 && S_ISREG(facts.st_mode);
    const auto size = static_cast<std::uint64_t>(facts.st_size);
    const bool fits = size <= std::uint64_t{formatFilePages} * pageSize;
    if (!readable || !fits) {
        if (file_ >= 0) ::close(file_);
        if (readable) raiseUnknownFormat("a size of " + std::to_string(size));
        raiseCannotOpen(path);
    }
    count_ = static_cast<std::uint32_t>(size / pageSize);
}

FilePages::~FilePages()
{
    ::close(file_);
}

const char* FilePages::look(std::uint32_t page) const
{
    const std::uint32_t number = page / pagesPerBlock;
    Block& block = places_[number] != 0 ? blocks_[places_[number] - 1u] : blockFor(number);
    block.used = ++looks_;
    return block.bytes.get() + std::size_t{page % pagesPerBlock} * pageSize;
}

const char* FilePages::lookAgain(std::uint32_t page) const
{
    const std::uint32_t number = page / pagesPerBlock;
    if (places_[number] != 0) read(blocks_[places_[number] - 1u]);
    return look(page);
}

/// The block in the place of the one that was not looked at for the longest time.
FilePages::Block& FilePages::blockFor(std::uint32_t number) const
{
    Block& block =
        *std::min_element(blocks_.begin(), blocks_.end(), [](const Block& one, const Block& other) {
            return one.used < other.used;
        });
    if (block.used != 0) places_[block.number] = 0;
    block.used = 0;
    block.number = number;
    read(block);
    places_[number] = static_cast<std::uint8_t>(&block - blocks_.data() + 1);
    return block;
}

void FilePages::read(Block& block) const
{
    constexpr std::size_t size = pagesPerBlock * pageSize;
    if (!block.bytes) block.bytes = std::make_unique<char[]>(size);
    const std::uint32_t first = block.number * pagesPerBlock;
    const std::size_t wanted = std::min<std::size_t>(pagesPerBlock, count_ - first) * pageSize;
    std::size_t done = 0;
    while (done < wanted) {
        const ssize_t got = pread(file_, block.bytes.get() + done, wanted - done,
                                  static_cast<off_t>(std::uint64_t{first} * pageSize + done));
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) throw RunTimeError(runTimeErrors::deviceIo);
        if (got == 0) raiseUnknownFormat("the file was cut while it was read");
        done += static_cast<std::size_t>(got);
    }
}

} // namespace jet
