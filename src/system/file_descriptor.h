#pragma once

#include <cstddef>
#include <utility>

/// Owner of an open file, by the small number that the C library gives it.
class FileDescriptor {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
    ~FileDescriptor();

    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1))
    {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    bool isOpen() const { return descriptor_ >= 0; }
    int get() const { return descriptor_; }

    /// Gives the file out of hand; whoever takes it closes it.
    int release() { return std::exchange(descriptor_, -1); }

    /// Closes the file now, and gives the system's error number or 0.
    int close();

private:
    int descriptor_ = -1;
};

/// How many files this program may have open at a time, those that it was started with included.
std::size_t openFilesAllowed();
