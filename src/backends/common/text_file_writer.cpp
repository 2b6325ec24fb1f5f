#include "backends/common/text_file_writer.h"

#include "runtime/text.h"
#include "system/file_bytes.h"
#include "system/system_error.h"

#include <cerrno>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 256U << 10;

} // namespace

TextFileWriter::TextFileWriter(FileDescriptor file) : file_(std::move(file))
{
    buffer_.reserve(bufferSize);
}

TextFileWriter::~TextFileWriter()
{
    if (file_.isOpen()) writeBytes(file_, buffer_);
}

void TextFileWriter::requireOpen() const
{
    if (!file_.isOpen()) throw RunTimeError(runTimeErrors::objectVariableNotSet);
}

void TextFileWriter::makeRoom(std::size_t length)
{
    requireOpen();
    if (buffer_.size() + length > bufferSize) flush();
}

void TextFileWriter::write(std::string_view text)
{
    makeRoom(text.size());
    if (text.size() < bufferSize) {
        buffer_ += text;
    } else {
        writeAll(file_, text);
    }
}

void TextFileWriter::writeLine(std::string_view text)
{
    makeRoom(text.size() + lineBreak.size());
    write(text);
    write(lineBreak);
}

void TextFileWriter::flush()
{
    requireOpen();
    const std::size_t written = writeBytes(file_, buffer_);
    const int error = errno;
    const bool whole = written == buffer_.size();
    buffer_.erase(0, written);
    if (!whole) throw systemError(error, runTimeErrors::deviceIo);
}

void TextFileWriter::close()
{
    if (!file_.isOpen()) return;
    flush();
    if (const int error = file_.close()) throw systemError(error, runTimeErrors::deviceIo);
}
