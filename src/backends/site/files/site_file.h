#pragma once

#include "system/root_folder.h"

#include <string>

/// Opens a file that a site is made of, below the site's folder, as `RootFolder::openFile` does.
/// What it raises names the file.
FileDescriptor openSiteFile(const RootFolder& site, const std::string& path,
                            const FileOpening& opening, int missing);
