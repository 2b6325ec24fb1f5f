#pragma once

#include "hosts/mmc/snap_in.h"

#include <windows.h>

namespace mmc {

/// The snap-in of a module: each library that offers one has this function, and
/// `module_exports.cpp` makes the entry points of it.
const SnapIn& snapInOfModule();

/// A class factory of the snap-in or of its about object, as `DllGetClassObject` answers. From the
/// first on the module stays loaded.
HRESULT classObject(const SnapIn& snapIn, REFCLSID asked, REFIID interfaceId, void** object);

} // namespace mmc
