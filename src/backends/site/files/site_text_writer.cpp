#include "backends/site/files/site_text_writer.h"

#include "runtime/text.h"
#include "system/file_bytes.h"
#include "system/system_error.h"

#include <cerrno>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 256U << 10;

} // namespace

SiteTextWriter::SiteTextWriter(FileDescriptor file) : file_(std::move(file))
{
    buffer_.reserve(bufferSize);
}

SiteTextWriter::~SiteTextWriter()
{
    if (file_.isOpen()) writeBytes(file_, buffer_);
}

void SiteTextWriter::requireOpen() const
{
    if (!file_.isOpen()) throw RunTimeError(runTimeErrors::objectVariableNotSet);
}

void SiteTextWriter::makeRoom(std::size_t length)
{
    requireOpen();
    if (buffer_.size() + length > bufferSize) flush();
}

void SiteTextWriter::write(std::string_view text)
{
    makeRoom(text.size());
    if (text.size() < bufferSize) {
        buffer_ += text;
    } else {
        writeAll(file_, text);
    }
}

void SiteTextWriter::writeLine(std::string_view text)
{
    makeRoom(text.size() + lineBreak.size());
    write(text);
    write(lineBreak);
}

void SiteTextWriter::flush()
{
    requireOpen();
    const std::size_t written = writeBytes(file_, buffer_);
    const int error = errno;
    const bool whole = written == buffer_.size();
    buffer_.erase(0, written);
    if (!whole) throw systemError(error, runTimeErrors::deviceIo);
}

void SiteTextWriter::close()
{
    if (!file_.isOpen()) return;
    flush();
    if (const int error = file_.close()) throw systemError(error, runTimeErrors::deviceIo);
}
