#pragma once

#include "hosts/common/gather/gather_job.h"
#include "hosts/common/look/interface_language.h"

class RunTimeError;
class SheetPage;

namespace desktop {

class PageAddition;

/// What the window adds to a page of the gather wizard; null for pages that it adds nothing to.
/// `page` outlives it.
PageAddition* gatherAddition(SheetPage& page, const MachinePath& machinePath);

/// What a page of the gather wizard raised, where the window can tell more of it than the tool;
/// else null.
LiveSentence gatherExplanation(const SheetPage& page, const RunTimeError& error,
                               const MachinePath& machinePath);

} // namespace desktop
