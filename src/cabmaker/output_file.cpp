#include "cabmaker/output_file.h"

#include <cerrno>
#include <utility>

#include "system/system_error.h"

namespace cabmaker {

namespace {

template <typename Act>
auto writing(const std::string& path, Act&& act)
{
    try {
        return act();
    } catch (const RunTimeError& error) {
        throw toldWith("cannot write " + path, error);
    }
}

std::string_view textOf(std::span<const std::uint8_t> bytes)
{
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

} // namespace

OutputFile::OutputFile(std::string path)
    : path_(std::move(path)), file_(writing(path_, [this] {
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
try {
    if (readAt(file_.file(), reinterpret_cast<char*>(bytes.data()), bytes.size(), offset) <
        bytes.size())
        throw systemError(EIO, runTimeErrors::deviceIo);
} catch (const RunTimeError& error) {
    throw toldWith("cannot read " + path_, error);
}

void OutputFile::close()
{
    writing(path_, [this] { file_.close(); });
}

void OutputFile::publish()
{
    writing(path_, [this] { file_.commit(false); });
}

void OutputFile::write(std::uint64_t offset, std::span<const std::uint8_t> bytes)
{
    writing(path_, [&] {
        if (writeBytesAt(file_.file(), textOf(bytes), offset) < bytes.size())
            throw systemError(errno, runTimeErrors::deviceIo);
    });
}

} // namespace cabmaker
