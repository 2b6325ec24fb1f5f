#pragma once

#include "backends/portable/file_descriptor.h"
#include "platform/text_stream.h"

#include <string>
#include <string_view>

/// Writes a file of the machine through a buffer of 256 KiB. A failed write loses the text of that
/// call; what was buffered before it is tried again by the next one.
class SiteTextWriter final : public TextWriter {
public:
    enum class Mode { create, append };

    /// Raises 76 when the folder is missing, 70 for a read-only file and for a folder, to create
    /// also for a link and whatever else is no plain file, 61, 57.
    SiteTextWriter(const std::string& machinePath, Mode mode);
    ~SiteTextWriter() override;

    void write(std::string_view text) override;
    void writeLine(std::string_view text) override;
    void flush() override;
    void close() override;

private:
    void emptyPlainFile();
    void requireOpen() const;
    void makeRoom(std::size_t length);

    FileDescriptor file_;
    std::string buffer_;
};
