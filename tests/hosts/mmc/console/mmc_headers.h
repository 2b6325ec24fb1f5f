#pragma once

// The console's own header wants OLE in front of it, and the sheets' one; the formatter would put
// them in the order of their names.
#include <windows.h>

#include <ole2.h>

#include <commctrl.h>

#include <mmc.h>
