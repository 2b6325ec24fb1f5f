#pragma once

#include "hosts/mmc/com/interface_ids.h"
#include "hosts/mmc/snap_in.h"

namespace mmc {

/// Gives a console's list the images of the snap-in's nodes, by their numbers. One that is not
/// among the resources is left out.
void addImages(IImageList& images, const SnapIn& snapIn);

} // namespace mmc
