#pragma once

#include <string>
#include <string_view>

/// Reads a text file line by line. Lines are bytes as stored.
class TextReader {
public:
    virtual ~TextReader() = default;

    /// Whether nothing is left to read. Raises 91 after `close`.
    virtual bool atEnd() = 0;

    /// The next line without its line end (line feed, or carriage return and line feed); a last
    /// line needs none. The view holds until the next call. Raises 62 at the end, 57 when the
    /// device fails, and 14 (out of string space) for a line of more than 64 MiB, which is passed
    /// over.
    virtual std::string_view readLine() = 0;

    /// All from here to the end. Raises 62 when nothing is left, 57, 14 past 1 GiB.
    virtual std::string readAll() = 0;

    /// Lets the file go; a second call does nothing. Reading afterwards raises 91.
    virtual void close() = 0;
};

/// Writes a text file. A file that is not closed is closed with the object.
class TextWriter {
public:
    virtual ~TextWriter() = default;

    /// Bytes as they are. Raises 61 (disk full), 57; 91 after `close`.
    virtual void write(std::string_view text) = 0;

    /// The text and a carriage return and line feed. Raises as `write`.
    virtual void writeLine(std::string_view text) = 0;

    /// Hands what was written to the system, so that other programs see it. Raises as `write`.
    virtual void flush() = 0;

    /// Raises 61, 57; a second call does nothing.
    virtual void close() = 0;
};
