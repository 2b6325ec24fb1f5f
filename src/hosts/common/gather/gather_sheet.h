#pragma once

#include "console/open_sheet.h"
#include "console/pages.h"

/// Whether a sheet gathers logs: it adds to the server, beside programs that change that.
inline bool isGatherSheet(OpenSheet& sheet)
{
    return sheet.page(1).name() == "ppgGatherLogs00Welcome";
}
