#pragma once

namespace stand_in {

/// What this process has of the system's objects. Counts of the system's own are not to be had
/// everywhere.
struct HandleCount {
    long kernel = 0; ///< handles of files, threads, events and the like
    long windows = 0;
    long gdi = 0; ///< fonts, brushes, bitmaps, those of icons with them

    bool operator==(const HandleCount&) const = default;
};

/// Takes all of the last kind that are left for a moment, as counting them does.
HandleCount countHandles();

} // namespace stand_in
