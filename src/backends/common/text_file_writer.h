#pragma once

#include "platform/text_stream.h"
#include "system/file_descriptor.h"

#include <string>
#include <string_view>

/// Writes an open file through a buffer of 256 KiB. A failed write loses the text of that
/// call; what was buffered before it is tried again by the next one.
class TextFileWriter final : public TextWriter {
public:
    explicit TextFileWriter(FileDescriptor file);
    ~TextFileWriter() override;

    void write(std::string_view text) override;
    void writeLine(std::string_view text) override;
    void flush() override;
    void close() override;

private:
    void requireOpen() const;
    void makeRoom(std::size_t length);

    FileDescriptor file_;
    std::string buffer_;
};
