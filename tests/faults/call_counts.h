#pragma once

#include <atomic>
#include <cstdint>

/// The kinds of calls of the system that a run can be made to fail at. The names are those of the
/// plan that a run is given, in this order.
enum class CallKind {
    any, ///< all but memory, counted together
    open,
    read,
    write,
    sync,
    rename,
    folder,
    remove,
    resize,
    map,
    close,
    ask, ///< what a file is
    list,
    lock,
    copy,
    start, ///< of another program
    memory,
    count,
};

inline constexpr int callKinds = static_cast<int>(CallKind::count);

inline constexpr const char* callKindNames[callKinds] = {
    "any", "open",  "read", "write", "sync", "rename", "folder", "remove", "resize",
    "map", "close", "ask",  "list",  "lock", "copy",   "start",  "memory"};

/// How often a run and the programs that it started made each kind of call: a file that they map.
struct CallCounts {
    std::atomic<std::uint64_t> calls[callKinds];
    std::atomic<std::uint64_t> struck; ///< how many of them the plan met
};

/// The environment of a run that counts: the file of the counts, and the seconds after which a
/// program that has not ended is ended.
inline constexpr const char* countsVariable = "ORVAN_CALL_COUNTS";
inline constexpr const char* patienceVariable = "ORVAN_CALL_PATIENCE";

/// What is to fail: "KIND FIRST LAST ACTION NUMBER", calls counted from 1. The actions: `fail` with
/// an error number, `halve` what is read or written, `signal` before the call, `tear`: half of what
/// is written, then the signal.
inline constexpr const char* planVariable = "ORVAN_CALL_PLAN";
