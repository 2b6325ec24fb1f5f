#pragma once

#include "system/root_folder.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

/// Removes from a folder what gathers that were killed have left of their packing; what can't be
/// removed stays. To be called when no gather is at work there. A name proves nothing: what goes is
/// this user's own and has the contents that only a gather gives it, and no other name.
/// `cabinetMaker` gives the bytes that `cabmaker.exe` must have; what it raises leaves that file.
/// The program goes only from beside a gather's database, and never from a folder of the tool's own
/// files.
void sweepGatherLeftovers(const RootFolder& folder,
                          const std::function<std::string()>& cabinetMaker);

/// The names of what `sweepGatherLeftovers` would remove. Changes nothing; none where the folder
/// can't be listed.
std::vector<std::string> gatherLeftovers(const RootFolder& folder,
                                         const std::function<std::string()>& cabinetMaker);

/// Whether a text is a gather's directive file, or its beginning as far as the cabinet's name. The
/// empty text is one that was killed before it was written.
bool isDirectiveFileOfAGather(std::string_view text);

/// Whether a name is that of a gather's cabinet: NAME_WPN_YYYYMMDD_HHMMSS.cab, with a number before
/// the point for the later ones of a set.
bool isCabinetOfAGather(std::string_view name);
