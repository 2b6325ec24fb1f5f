#pragma once

#include "platform/text_stream.h"
#include "system/file_descriptor.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

/// Reads an open file through one buffer, which only a long line enlarges. What another
/// program appends or cuts off meanwhile is read as it is found.
class TextFileReader final : public TextReader {
public:
    explicit TextFileReader(FileDescriptor file);

    bool atEnd() override;
    std::string_view readLine() override;
    std::string readAll() override;
    void close() override;

private:
    void requireOpen() const;
    bool fill();
    void makeRoom();
    std::string_view takeLine(std::size_t length, std::size_t lineEnd);
    [[noreturn]] void passOverLine();

    FileDescriptor file_;
    std::unique_ptr<char[]> buffer_;
    std::size_t capacity_;
    std::size_t start_ = 0; ///< of what was not handed out yet
    std::size_t end_ = 0;   ///< of what was read
};
