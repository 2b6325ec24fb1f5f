#pragma once

#include "system/file_opening.h"

#include <cstdint>
#include <windows.h>

/// Who may do what with a new file or folder.
class NewSecurity {
public:
    /// What the folder above it hands down, but for `nothing`: its owner and the system alone.
    explicit NewSecurity(OthersMay others);
    ~NewSecurity();
    NewSecurity(const NewSecurity&) = delete;
    NewSecurity& operator=(const NewSecurity&) = delete;

    /// Null where the folder above decides.
    void* descriptor() const { return descriptor_; }

private:
    void* descriptor_ = nullptr;
};

/// A number for the owner of what is open with the right to read who owns it; 0 where nobody knows.
std::uint64_t ownerOf(HANDLE handle);

/// Whether that is the one who owns what the program makes, or as whom it runs.
bool isOurNumber(std::uint64_t owner);

/// Gives a file the rules of access of another one, as far as the system lets us.
void copyAccess(HANDLE from, HANDLE to);
