#include "timeline/lines/line_reader.h"

#include "system/file_bytes.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace timeline {

namespace {

constexpr std::size_t searchedAtATime = 8U << 10;

} // namespace

LineReader::LineReader(const FileDescriptor& file, std::uint64_t offset, std::size_t pieceBytes)
    : file_(&file), buffer_(pieceBytes), bufferOffset_(offset)
{}

/// Looks for line ends up to a place that was read.
void LineReader::findEnds(std::size_t to)
{
    if (to <= searched_) return;
    buffer_.findEnds(searched_, to);
    searched_ = to;
}

/// There are no line ends up to a place, and none is known behind it.
void LineReader::forgetEnds(std::size_t searched)
{
    buffer_.endCount = 0;
    nextEnd_ = 0;
    searched_ = searched;
}

void LineReader::goTo(std::uint64_t offset)
{
    if (offset < bufferOffset_ || offset > bufferOffset_ + end_) {
        bufferOffset_ = offset;
        start_ = end_ = 0;
        forgetEnds(0);
        return;
    }
    const auto start = static_cast<std::size_t>(offset - bufferOffset_);
    if (start == start_) return;
    start_ = start;
    findEnds(start_);
    const std::uint32_t* const ends = buffer_.ends.get();
    nextEnd_ =
        static_cast<std::size_t>(std::lower_bound(ends, ends + buffer_.endCount, start_) - ends);
}

KnownLines LineReader::linesFrom(const FileLine& line)
{
    if (line.cut || !line.ended) return {};
    findEnds(end_);
    const auto begin = static_cast<std::size_t>(line.offset - bufferOffset_);
    KnownLines lines;
    lines.begin = static_cast<std::uint32_t>(begin);
    lines.ends = buffer_.ends.get() + nextEnd_ - 1;
    lines.count = buffer_.endCount - nextEnd_ + 1;
    lines.bytes = {buffer_.bytes.get() + begin, lines.end(lines.count - 1) + 1};
    return lines;
}

/// Moves what is left to the front of the buffer, and doubles it when that is all of it.
void LineReader::makeRoom()
{
    const std::size_t left = end_ - start_;
    if (left == buffer_.capacity) {
        LineBuffer larger(buffer_.capacity * 2);
        std::memcpy(larger.bytes.get(), buffer_.bytes.get() + start_, left);
        buffer_ = std::move(larger);
    } else {
        std::memmove(buffer_.bytes.get(), buffer_.bytes.get() + start_, left);
    }
    bufferOffset_ += start_;
    start_ = 0;
    end_ = left;
    forgetEnds(left);
}

/// Reads more behind the beginning of a line. False at the end of the file.
bool LineReader::fill()
{
    if (end_ == buffer_.capacity) makeRoom();
    const std::size_t count =
        readAt(*file_, buffer_.bytes.get() + end_, buffer_.capacity - end_, bufferOffset_ + end_);
    end_ += count;
    return count > 0;
}

/// Hands out the first bytes of a line that the buffer is full of, and passes over the others.
bool LineReader::takeLongLine(FileLine& line)
{
    if (start_ > 0) makeRoom();
    char* const bytes = buffer_.bytes.get();
    line.text = {bytes, longestLine};
    line.cut = true;
    // The line's own bytes stay where they are: the others are read into the room behind them.
    char* const room = bytes + longestLine;
    const std::size_t roomSize = buffer_.capacity - longestLine;
    std::uint64_t at = bufferOffset_ + longestLine;
    std::size_t known = end_ - longestLine;
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
    forgetEnds(0);
    return true;
}

/// Hands out the line that ends at the next line end.
bool LineReader::takeLine(FileLine& line)
{
    const char* const from = buffer_.bytes.get() + start_;
    std::size_t length = buffer_.ends[nextEnd_] - start_;
    if (length > longestLine) return takeLongLine(line);
    ++nextEnd_;
    start_ += length + 1;
    if (length > 0 && from[length - 1] == '\r') --length;
    line.text = {from, length};
    line.ended = true;
    return true;
}

bool LineReader::next(FileLine& line)
{
    line.cut = false;
    line.ended = false;
    for (;;) {
        line.offset = bufferOffset_ + start_;
        if (nextEnd_ < buffer_.endCount) return takeLine(line);
        if (searched_ < end_) {
            findEnds(std::min(end_, searched_ + searchedAtATime));
            continue;
        }
        if (end_ - start_ > longestLine) return takeLongLine(line);
        if (fill()) continue;
        line.text = {buffer_.bytes.get() + start_, end_ - start_};
        start_ = end_;
        return !line.text.empty();
    }
}

} // namespace timeline
