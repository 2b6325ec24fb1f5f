#include "backends/portable/site_text_writer.h"

#include "backends/portable/posix_errors.h"
#include "runtime/text.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::size_t bufferSize = 256U << 10;

} // namespace

SiteTextWriter::SiteTextWriter(const std::string& machinePath, Mode mode)
{
    struct stat facts {};
    if (::stat(machinePath.c_str(), &facts) == 0 && (facts.st_mode & S_IWUSR) == 0)
        throw RunTimeError(runTimeErrors::permissionDenied);
    const int flags = mode == Mode::append ? O_APPEND : O_NOFOLLOW;
    file_ = FileDescriptor(
        ::open(machinePath.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC | O_NONBLOCK | flags, 0666));
    if (!file_.isOpen() && (errno == ELOOP || errno == ENXIO))
        throw RunTimeError(runTimeErrors::permissionDenied);
    if (!file_.isOpen()) throw posixError(errno, runTimeErrors::pathNotFound);
    if (mode == Mode::create) emptyPlainFile();
    buffer_.reserve(bufferSize);
}

SiteTextWriter::~SiteTextWriter()
{
    if (file_.isOpen()) writeBytes(file_.get(), buffer_);
}

void SiteTextWriter::emptyPlainFile()
{
    struct stat facts {};
    if (::fstat(file_.get(), &facts) != 0 || !S_ISREG(facts.st_mode))
        throw RunTimeError(runTimeErrors::permissionDenied);
    if (facts.st_size > 0 && ::ftruncate(file_.get(), 0) != 0)
        throw posixError(errno, runTimeErrors::deviceIo);
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
    } else if (writeBytes(file_.get(), text) < text.size()) {
        throw posixError(errno, runTimeErrors::deviceIo);
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
    const std::size_t written = writeBytes(file_.get(), buffer_);
    const int error = errno;
    const bool whole = written == buffer_.size();
    buffer_.erase(0, written);
    if (!whole) throw posixError(error, runTimeErrors::deviceIo);
}

void SiteTextWriter::close()
{
    if (!file_.isOpen()) return;
    flush();
    if (const int error = file_.close()) throw posixError(error, runTimeErrors::deviceIo);
}
