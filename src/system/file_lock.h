#pragma once

#include "system/file_descriptor.h"

/// Takes the lock of an open file for this program, until the file is closed, also by the programs
/// that it was passed on to. False while another program has it. Raises 57 where the file's system
/// keeps no locks.
bool tryLock(const FileDescriptor& file);

/// Locks every byte that an open file has or will have against other writers, until it is closed.
/// False where another program holds a lock on any of them; a file system without locks gives true.
///
/// This is the kind of lock that file servers carry from machine to machine.
bool tryLockBytes(const FileDescriptor& file);
