#pragma once

#include "system/file_facts.h"

#include <sys/stat.h>

/// What the system's own record tells.
FileFacts factsOf(const struct stat& record);
