#include "backends/jet/pages/file_pages.h"

#include "backends/jet/errors.h"
#include "backends/jet/pages/database_file.h"
#include "platform/stored_bytes.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

class BytesOfFile final : public StoredBytes {
public:
    explicit BytesOfFile(FileDescriptor file) : file_(std::move(file)) {}

    std::uint64_t size() const override { return static_cast<std::uint64_t>(factsOf(file_).size); }
    std::size_t read(char* into, std::size_t size, std::uint64_t at) const override
    {
        return readAt(file_, into, size, at);
    }

private:
    FileDescriptor file_;
};

} // namespace

FilePages::FilePages(const std::string& path)
    : FilePages(std::make_shared<BytesOfFile>(openDatabaseFile(path, forReading)))
{}

FilePages::FilePages(std::shared_ptr<const StoredBytes> bytes, std::size_t blocks)
    : file_(std::move(bytes)), keptBlocks_(std::clamp(blocks, fewestBlocks, mostBlocks))
{
    const std::uint64_t size = file_->size();
    if (size > std::uint64_t{formatFilePages} * pageSize)
        raiseUnknownFormat("a size of " + std::to_string(size));
    count_ = static_cast<std::uint32_t>(size / pageSize);
}

const char* FilePages::look(std::uint32_t page) const
{
    const std::uint32_t number = page / pagesPerBlock;
    Block& block = blockOf_[number] != 0 ? blocks_[blockOf_[number] - 1u] : blockFor(number);
    block.used = ++looks_;
    return block.bytes.get() + std::size_t{page % pagesPerBlock} * pageSize;
}

const char* FilePages::lookAgain(std::uint32_t page) const
{
    const std::uint32_t number = page / pagesPerBlock;
    if (blockOf_[number] != 0) read(blocks_[blockOf_[number] - 1u]);
    return look(page);
}

/// The block in the place of the one that was not looked at for the longest time.
FilePages::Block& FilePages::blockFor(std::uint32_t number) const
{
    const auto end = blocks_.begin() + static_cast<std::ptrdiff_t>(keptBlocks_);
    Block& block =
        *std::min_element(blocks_.begin(), end, [](const Block& one, const Block& other) {
            return one.used < other.used;
        });
    if (block.used != 0) blockOf_[block.number] = 0;
    block.used = 0;
    block.number = number;
    read(block);
    blockOf_[number] = static_cast<std::uint8_t>(&block - blocks_.data() + 1);
    return block;
}

void FilePages::read(Block& block) const
{
    constexpr std::size_t size = pagesPerBlock * pageSize;
    if (!block.bytes) block.bytes = std::make_unique<char[]>(size);
    const std::uint32_t first = block.number * pagesPerBlock;
    const std::size_t wanted = std::min<std::size_t>(pagesPerBlock, count_ - first) * pageSize;
    if (file_->read(block.bytes.get(), wanted, std::uint64_t{first} * pageSize) < wanted)
        raiseUnknownFormat("the file was cut while it was read");
}

} // namespace jet
