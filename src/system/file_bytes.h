#pragma once

#include "system/file_descriptor.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

/// Reads some bytes from where a file stands. Gives how many: none at its end. Raises 57, 7.
std::size_t readSome(const FileDescriptor& file, char* into, std::size_t size);

/// Reads from the offset `at` of a file. Gives how many bytes: fewer than `size` at its end alone.
/// Raises 57, 7.
std::size_t readAt(const FileDescriptor& file, char* into, std::size_t size, std::uint64_t at);

/// Writes bytes, however many calls it takes. Gives how many of them were written: all of them, or
/// fewer with the system's error number in `errno`.
std::size_t writeBytes(const FileDescriptor& file, std::string_view bytes);

/// The same from the offset `at` on.
std::size_t writeBytesAt(const FileDescriptor& file, std::string_view bytes, std::uint64_t at);

/// Writes all bytes. Raises 61, 57.
void writeAll(const FileDescriptor& file, std::string_view bytes);

/// Cuts a file off, or adds zeros to it. False with the system's error number in `errno`.
bool resize(const FileDescriptor& file, std::uint64_t size);

/// The largest size, in bytes, that this program may give a file; writing past it would end the
/// program.
std::uint64_t largestFileAllowed();

/// Lets the next reading begin at the offset `at` of a file.
void goTo(const FileDescriptor& file, std::uint64_t at);

/// Tells the system that a file will be read from its beginning to its end.
void expectReadingThrough(const FileDescriptor& file);
