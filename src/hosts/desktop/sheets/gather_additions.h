#pragma once

#include "hosts/common/gather/gather_job.h"
#include "hosts/common/look/interface_language.h"

#include <string>

class FileSystem;
class RunTimeError;
class SheetPage;

namespace desktop {

class PageAddition;

/// What the window looks at for what it adds to the gather wizard.
struct GatherSurroundings {
    const FileSystem& files; ///< of the server
    std::string logFolder;   ///< of the server, as a path of the tool
    MachinePath machinePath;
};

/// What the window adds to a page of the gather wizard; null for pages that it adds nothing to.
/// `page` and the files outlive it.
PageAddition* gatherAddition(SheetPage& page, const GatherSurroundings& surroundings);

/// What a page of the gather wizard raised, where the window can tell more of it than the tool;
/// else null.
LiveSentence gatherExplanation(const SheetPage& page, const RunTimeError& error,
                               const MachinePath& machinePath);

} // namespace desktop
