#include "cabmaker/output_file.h"

#include <cerrno>
#include <utility>

#include "cabmaker/told_failure.h"
#include "system/system_error.h"

namespace cabmaker {

namespace {

constexpr const char* cannotRead = "cannot read";
constexpr const char* cannotWrite = "cannot write";

std::string_view textOf(std::span<const std::uint8_t> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), file_(tellingFailure(cannotWrite, path_, [this] {
          return ReplacementFile(RootFolder("/", RootFolder::Bounds::machine), path_);
      }))
{}

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
    tellingFailure(cannotRead, path_, [&] {
        if (readAt(file_.file(), reinterpret_cast<char*>(bytes.data()), bytes.size(), offset) <
            bytes.size())
            throw systemError(EIO, runTimeErrors::deviceIo);
    });
}

void OutputFile::close()
{
    tellingFailure(cannotWrite, path_, [this] { file_.close(); });
}

void OutputFile::publish()
{
    tellingFailure(cannotWrite, path_, [this] { file_.commit(false); });
}

void OutputFile::write(std::uint64_t offset, std::span<const std::uint8_t> bytes)
{
    tellingFailure(cannotWrite, path_, [&] {
        if (writeBytesAt(file_.file(), textOf(bytes), offset) < bytes.size())
            throw systemError(errno, runTimeErrors::deviceIo);
    });
}

} // namespace cabmaker
