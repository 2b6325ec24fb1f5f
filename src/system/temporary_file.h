#pragma once

#include "system/file_descriptor.h"
#include "system/root_folder.h"

/// Makes a file for what is too large for the memory, where the machine has its temporary files: to
/// be read and written. It has no name that another program could find it by, and is gone once
/// nobody has it open. Raises 76, 70, 61, 57.
FileDescriptor makeTemporaryFile();

/// The room on the file system of an open file. Raises 57.
FileSystemRoom roomOf(const FileDescriptor& file);
