#pragma once

#include "sample/moment.h"

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

namespace sample {

/// A file of the sample in the making.
class OutputFile {
public:
    /// Raises 57 with the path when the file cannot be made.
    explicit OutputFile(std::filesystem::path path);

    void write(std::string_view bytes);

    /// Closes the file and dates it. Raises 61 when not all of it reached the disk.
    void close(Moment modified);

private:
    std::filesystem::path path_;
    std::vector<char> buffer_;
    std::ofstream stream_;
};

/// Makes a file of these bytes, and the folders above it. Raises as `OutputFile`.
void writeFile(const std::filesystem::path& path, std::string_view bytes, Moment modified);

/// The bytes of a file that ships with the tool. Raises 53 with the path when it is missing.
std::string readFile(const std::filesystem::path& path);

/// Dates a file or a folder. Raises 57.
void setModified(const std::filesystem::path& path, Moment modified);

} // namespace sample
