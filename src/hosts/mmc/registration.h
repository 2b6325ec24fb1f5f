#pragma once

#include "hosts/mmc/snap_in.h"

namespace mmc {

/// Enters the snap-in, which lies in the module that calls, into the machine's registry, for all
/// who use the machine. Where an entry fails, those before it are taken back, and the registry is
/// as it was found.
HRESULT registerSnapIn(const SnapIn& snapIn);

/// Takes the snap-in's entries out; none there is a success. What others have entered beside them
/// stays, and a key that only held them goes.
HRESULT unregisterSnapIn(const SnapIn& snapIn);

} // namespace mmc
