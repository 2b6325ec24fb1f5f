#include "backends/common/text_file_reader.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"

#include <cstring>
#include <utility>

namespace {

constexpr std::size_t bufferSize = 256U << 10;
constexpr std::size_t longestLine = 64U << 20;
constexpr std::size_t longestText = 1U << 30;

} // namespace

TextFileReader::TextFileReader(FileDescriptor file) : file_(std::move(file)), capacity_(bufferSize)
{
    expectReadingThrough(file_);
    buffer_.reset(new char[capacity_]);
}

void TextFileReader::requireOpen() const
{
    if (!file_.isOpen()) throw RunTimeError(runTimeErrors::objectVariableNotSet);
}

/// Moves what is left to the front of the buffer, and doubles it when that is all of it.
void TextFileReader::makeRoom()
{
    const std::size_t left = end_ - start_;
    if (left == capacity_) {
        std::unique_ptr<char[]> larger(new char[capacity_ * 2]);
        std::memcpy(larger.get(), buffer_.get() + start_, left);
        buffer_ = std::move(larger);
        capacity_ *= 2;
    } else {
        std::memmove(buffer_.get(), buffer_.get() + start_, left);
    }
    start_ = 0;
    end_ = left;
}

/// Reads more behind what is there. False at the end of the file.
bool TextFileReader::fill()
{
    if (start_ == end_) start_ = end_ = 0;
    if (end_ == capacity_) makeRoom();
    const std::size_t count = readSome(file_, buffer_.get() + end_, capacity_ - end_);
    end_ += count;
    return count > 0;
}

bool TextFileReader::atEnd()
{
    requireOpen();
    return start_ == end_ && !fill();
}

std::string_view TextFileReader::takeLine(std::size_t length, std::size_t lineEnd)
{
    std::string_view line(buffer_.get() + start_, length);
    start_ += length + lineEnd;
    if (lineEnd > 0 && !line.empty() && line.back() == '\r') line.remove_suffix(1);
    return line;
}

std::string_view TextFileReader::readLine()
{
    requireOpen();
    for (std::size_t searched = 0;;) {
        const std::size_t known = end_ - start_;
        const char* from = buffer_.get() + start_;
        if (const void* found = std::memchr(from + searched, '\n', known - searched)) {
            const auto length = static_cast<std::size_t>(static_cast<const char*>(found) - from);
            const bool endsInBoth = length > 0 && from[length - 1] == '\r';
            if (length - (endsInBoth ? 1 : 0) > longestLine) passOverLine();
            return takeLine(length, 1);
        }
        searched = known;
        if (known > longestLine + 1) passOverLine();
        if (fill()) continue;
        if (known == 0) throw RunTimeError(runTimeErrors::inputPastEnd);
        if (known > longestLine) passOverLine();
        return takeLine(known, 0);
    }
}

void TextFileReader::passOverLine()
{
    for (;;) {
        const char* from = buffer_.get() + start_;
        if (const void* found = std::memchr(from, '\n', end_ - start_)) {
            start_ += static_cast<std::size_t>(static_cast<const char*>(found) - from) + 1;
            break;
        }
        start_ = end_;
        if (!fill()) break;
    }
    throw RunTimeError(runTimeErrors::outOfStringSpace);
}

std::string TextFileReader::readAll()
{
    requireOpen();
    std::string text;
    do {
        if (text.size() + (end_ - start_) > longestText)
            throw RunTimeError(runTimeErrors::outOfStringSpace);
        text.append(buffer_.get() + start_, end_ - start_);
        start_ = end_;
    } while (fill());
    if (text.empty()) throw RunTimeError(runTimeErrors::inputPastEnd);
    return text;
}

void TextFileReader::close()
{
    file_.close();
}
