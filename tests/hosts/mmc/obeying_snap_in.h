#pragma once

#include "hosts/mmc/console/mmc_headers.h"

namespace obeying {

extern const CLSID classId;

/// What a snap-in can do wrong; each is one rule broken.
enum class Fault {
    none,
    unknownParent,
    unopenedParent,
    nodeWithoutCookie,
    sameCookie,
    unknownNodeImage,
    staticNodeDeleted,
    imagesInShow,
    imagesKept,
    verbInShow,
    nodeTextFreed,
    rowTextFreed,
    rowInVirtualList,
    countBeforeColumns,
    columnPastLast,
    menuNotAllowed,
    menuSameNumber,
    menuReservedNumber,
    menuKept,
    viewTypeOfOwnMemory,
    formatMissing,
    formatInvented,
    otherThread,
    consoleKept,
    componentKept,
    exceptionLeaves,
    accessViolation,
    everythingTaken,
    unknownSelected,
    sheetWithoutPages,
    pageOutside,
    taskWithoutText,
    nameSpaceOfWindow,
};

/// A small snap-in that does what the documentation asks, but for one fault: a root with a virtual
/// list of three rows, and below it "List", a list of nodes, and "Pad", a task pad with one task.
HRESULT make(Fault fault, REFIID id, void** object);

} // namespace obeying
