#pragma once

#include "system/file_opening.h"

#include <sys/types.h>

/// The mode that a new file is asked for.
mode_t newFileMode(OthersMay others);

/// The mode that a new folder is asked for.
mode_t newFolderMode(OthersMay others);

/// The mode of a new file as the user's settings leave it.
mode_t ordinaryFileMode();
