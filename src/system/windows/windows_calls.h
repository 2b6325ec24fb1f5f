#pragma once

#include "system/file_descriptor.h"

#include <string>
#include <string_view>
#include <utility>
#include <windows.h>

/// Owner of one of the system's handles.
class OwnedHandle {
public:
    OwnedHandle() = default;
    explicit OwnedHandle(HANDLE handle) : handle_(handle) {}
    ~OwnedHandle();

    OwnedHandle(OwnedHandle&& other) noexcept
        : handle_(std::exchange(other.handle_, INVALID_HANDLE_VALUE))
    {}
    OwnedHandle& operator=(OwnedHandle&& other) noexcept
    {
        std::swap(handle_, other.handle_);
        return *this;
    }

    bool isOpen() const { return handle_ != INVALID_HANDLE_VALUE && handle_ != nullptr; }
    HANDLE get() const { return handle_; }

    /// Gives the handle out of hand; whoever takes it closes it.
    HANDLE release() { return std::exchange(handle_, INVALID_HANDLE_VALUE); }

private:
    HANDLE handle_ = INVALID_HANDLE_VALUE;
};

/// UTF-8 to the system's UTF-16, and back.
std::wstring wideOf(std::string_view text);
std::string utf8Of(std::wstring_view text);

/// A path of the machine as the system takes it however long it is: whole, with "\" between its
/// names, behind "\\?\".
std::wstring machinePathOf(const std::string& path);

/// Where an open file or folder lies, with "/" between the names and none at the end; the empty
/// text where the system does not tell.
std::string pathOfHandle(HANDLE handle);

/// The number in `errno` that says the same as one of the system's.
int errnoOf(DWORD error);

/// Puts the system's latest error into `errno`, and gives it.
int noteError();

/// The handle behind a descriptor, and a descriptor for a handle: not open, with `errno`, where
/// there are no more of them.
HANDLE handleOf(const FileDescriptor& file);
FileDescriptor descriptorOf(OwnedHandle handle);
