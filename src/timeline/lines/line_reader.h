#pragma once

#include "system/file_descriptor.h"
#include "timeline/lines/line_buffer.h"

#include <cstdint>
#include <string_view>

namespace timeline {

/// A line of a file, without its line end.
struct FileLine {
    std::string_view text;    ///< holds until the next call
    std::uint64_t offset = 0; ///< of its first byte in the file
    bool ended = false;       ///< whether a line end stands behind it, not the end of the file
    bool cut = false; ///< whether it is longer than `longestLine`, and that much of it is here
};

/// Reads the lines of a file in large pieces, from any place on.
///
/// The file may grow or be cut meanwhile: a line is what was there when its piece was read.
class LineReader {
public:
    /// Of a longer line this many bytes are kept, so that no file fills the memory.
    static constexpr std::size_t longestLine = 4U << 20;

    /// What is read at a time, in bytes, when all lines are.
    static constexpr std::size_t largePiece = 512U << 10;

    /// What is read at a time for a line here and there.
    static constexpr std::size_t smallPiece = 32U << 10;

    /// `file` is open when the reader is used.
    explicit LineReader(const FileDescriptor& file, std::uint64_t offset = 0,
                        std::size_t pieceBytes = largePiece);

    /// The next line; false at the end of the file. A line ends in a line feed, with or without a
    /// carriage return. Raises 57, 7.
    bool next(FileLine& line);

    /// The whole lines that were read by now, from the one on that `next` gave last; nothing where
    /// that one has no end or was cut. Holds until the next call.
    KnownLines linesFrom(const FileLine& line);

    /// Where the next line begins.
    std::uint64_t offset() const { return bufferOffset_ + start_; }

    /// Goes to another place, where a line begins.
    void goTo(std::uint64_t offset);

private:
    bool takeLine(FileLine& line);
    bool fill();
    void makeRoom();
    void findEnds(std::size_t to);
    void forgetEnds(std::size_t searched);
    bool takeLongLine(FileLine& line);

    const FileDescriptor* file_;
    LineBuffer buffer_;
    std::uint64_t bufferOffset_ = 0; ///< where in the file the buffer begins
    std::size_t start_ = 0;          ///< of what was not handed out
    std::size_t end_ = 0;            ///< of what was read
    std::size_t searched_ = 0;       ///< up to where line ends were looked for
    std::size_t nextEnd_ = 0;        ///< the number of the next line end
};

} // namespace timeline
