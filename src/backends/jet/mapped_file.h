#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace jet {

/// A file's bytes, for a Reader: memory that the system fills as it is looked at.
///
/// What a writer adds to the pages that were there shows; a file that grows is to be opened again.
class MappedFile {
public:
    /// Raises 3024 for a missing file, 3051 for one that can't be read.
    explicit MappedFile(const std::string& path);
    ~MappedFile();
    MappedFile(const MappedFile&) = delete;
    MappedFile& operator=(const MappedFile&) = delete;

    std::string_view bytes() const { return {base_, size_}; }

private:
    const char* base_ = nullptr;
    std::size_t size_ = 0;
};

} // namespace jet
