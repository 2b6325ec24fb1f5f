#pragma once

#include "hosts/mmc/resources/resource.h"
#include "hosts/mmc/snap_in.h"
#include "shell/snapin_names.h"

namespace mmc {

/// What `orvan_snap_in_resources` of the build puts into a module.
inline SnapInResources snapInResources(HINSTANCE module)
{
    return {module, ORVAN_TOOL_ICON, ORVAN_ROOT_SMALL, ORVAN_ROOT_LARGE, ORVAN_SCOPE_IMAGES};
}

/// The images of the scope tree, in the order of their numbers.
inline std::vector<std::string> scopeImageNames()
{
    return {snapinImage::root, snapinImage::processes, snapinImage::process, snapinImage::log,
            snapinImage::logInUse};
}

} // namespace mmc
