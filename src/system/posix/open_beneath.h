#pragma once

#include "system/file_descriptor.h"

#include <string>
#include <sys/types.h>

/// What becomes of links on the way to a file.
enum class Links {
    within, ///< followed as long as they stay in the folder; an absolute one leads out
    none,   ///< not followed
};

/// Opens what `path`, names parted by "/", leads to below an open folder; the empty path is the
/// folder itself. `flags` and `mode` are those of open(2), and so is `errno` when the result is not
/// open; `EXDEV` stands for a way out of the folder.
///
/// The way is walked and the file opened in one act, so that nobody can exchange a name in between.
FileDescriptor openBeneath(int folder, const std::string& path, int flags, mode_t mode = 0,
                           Links links = Links::within);

/// The two ways of `openBeneath`: the kernel's own, which an older one answers with `ENOSYS`, and a
/// walk from folder to folder.
FileDescriptor openBeneathByKernel(int folder, const std::string& path, int flags, mode_t mode,
                                   Links links);
FileDescriptor openBeneathByWalk(int folder, const std::string& path, int flags, mode_t mode,
                                 Links links);
