#include "timeline/sources/spooling.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/system_error.h"
#include "system/temporary_file.h"

#include <cerrno>

namespace timeline {

namespace {

constexpr std::uint64_t bytesBetweenLooks = 16U << 20;

FileDescriptor makeFile(std::uint64_t files, std::uint64_t most)
{
    if (files >= most)
        throw RunTimeError(runTimeErrors::outOfMemory, "more than " + std::to_string(most) +
                                                           " files would have to be unpacked");
    return makeTemporaryFile();
}

std::string megabytes(std::uint64_t bytes)
{
    return std::to_string(bytes >> 20) + " MB";
}

} // namespace

SpooledFile::SpooledFile(Spooling& spooling)
    : spooling_(spooling), file_(makeFile(spooling.files_, spooling.limits_.files))
{
    lookForRoom();
    ++spooling_.files_;
}

SpooledFile::~SpooledFile()
{
    if (!file_.isOpen()) return;
    spooling_.bytes_ -= size_;
    --spooling_.files_;
}

void SpooledFile::append(std::string_view bytes)
{
    if (bytes.size() > spooling_.limits_.bytes - spooling_.bytes_)
        throw RunTimeError(runTimeErrors::diskFull, "all that is unpacked at a time is " +
                                                        megabytes(spooling_.limits_.bytes) +
                                                        " at the most");
    if (size_ + bytes.size() - lookedAt_ > bytesBetweenLooks) lookForRoom();
    const std::size_t written = writeBytes(file_, bytes);
    size_ += written;
    spooling_.bytes_ += written;
    if (written < bytes.size()) throw systemError(errno, runTimeErrors::deviceIo);
}

FileDescriptor SpooledFile::take()
{
    return std::move(file_);
}

void SpooledFile::lookForRoom()
{
    lookedAt_ = size_;
    if (static_cast<std::uint64_t>(roomOf(file_).free) > spooling_.limits_.leftFree) return;
    throw RunTimeError(runTimeErrors::diskFull,
                       "the disk of the temporary files has no more than " +
                           megabytes(spooling_.limits_.leftFree) + " left");
}

} // namespace timeline
