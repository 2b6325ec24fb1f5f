#include "timeline/lines/line_reader.h"

#include "system/file_bytes.h"

#include <cstring>

namespace timeline {

LineReader::LineReader(const FileDescriptor& file, std::uint64_t offset, std::size_t pieceBytes)
    : file_(&file), buffer_(new char[pieceBytes]), capacity_(pieceBytes), bufferOffset_(offset)
{}

void LineReader::goTo(std::uint64_t offset)
{
    if (offset >= bufferOffset_ && offset <= bufferOffset_ + end_) {
        start_ = static_cast<std::size_t>(offset - bufferOffset_);
        return;
    }
    bufferOffset_ = offset;
    start_ = end_ = 0;
}

std::string_view LineReader::linesFrom(const FileLine& line) const
{
    if (line.cut || !line.ended) return {};
    const std::string_view read(line.text.data(),
                                static_cast<std::size_t>(buffer_.get() + end_ - line.text.data()));
    return read.substr(0, read.rfind('\n') + 1);
}

/// Moves what is left to the front of the buffer, and doubles it when that is all of it.
void LineReader::makeRoom()
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
    bufferOffset_ += start_;
    start_ = 0;
    end_ = left;
}

/// Reads more behind what is there. False at the end of the file.
bool LineReader::fill()
{
    if (end_ == capacity_) makeRoom();
    const std::size_t count =
        readAt(*file_, buffer_.get() + end_, capacity_ - end_, bufferOffset_ + end_);
    end_ += count;
    return count > 0;
}

/// Hands out the first bytes of a line that the buffer is full of, and passes over the others.
bool LineReader::takeLongLine(FileLine& line)
{
    if (start_ > 0) makeRoom();
    line.text = {buffer_.get() + start_, longestLine};
    line.cut = true;
    // The line's own bytes stay where they are: the others are read into the room behind them.
    char* const room = buffer_.get() + start_ + longestLine;
    const std::size_t roomSize = capacity_ - start_ - longestLine;
    std::uint64_t at = bufferOffset_ + start_ + longestLine;
    std::size_t known = end_ - start_ - longestLine;
    for (;;) {
        if (const void* found = std::memchr(room, '\n', known)) {
            line.ended = true;
            at += static_cast<std::size_t>(static_cast<const char*>(found) - room) + 1;
            break;
        }
        at += known;
        known = readAt(*file_, room, roomSize, at);
        if (known == 0) break;
    }
    bufferOffset_ = at;
    start_ = end_ = 0;
    return true;
}

bool LineReader::next(FileLine& line)
{
    line.cut = false;
    line.ended = false;
    for (std::size_t searched = 0;;) {
        const char* const from = buffer_.get() + start_;
        const std::size_t known = end_ - start_;
        line.offset = bufferOffset_ + start_;
        if (const void* found = std::memchr(from + searched, '\n', known - searched)) {
            auto length = static_cast<std::size_t>(static_cast<const char*>(found) - from);
            if (length > longestLine) return takeLongLine(line);
            start_ += length + 1;
            if (length > 0 && from[length - 1] == '\r') --length;
            line.text = {from, length};
            line.ended = true;
            return true;
        }
        if (known > longestLine) return takeLongLine(line);
        searched = known;
        if (fill()) continue;
        line.text = {buffer_.get() + start_, known};
        start_ = end_;
        return known > 0;
    }
}

} // namespace timeline
