#include "backends/site/files/result_folder.h"

#include "backends/site/files/gather_leftovers.h"
#include "platform/tool_files.h"
#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "system/file_lock.h"

#include <ctime>

ResultFolder::ResultFolder(const std::string& path) : root_(path) {}

ResultFolder::Turn ResultFolder::takeTurn()
try {
    if (lock_.isOpen()) return Turn::ours;
    // Started programs get the lock too, so it is not closed for them.
    FileDescriptor lock = root_.openToPassOn();
    if (!tryLock(lock)) return Turn::anothers;
    lock_ = std::move(lock);
    return Turn::ours;
} catch (const RunTimeError&) {
    return Turn::unknown;
}

bool ResultFolder::isAt(const std::string& path) const
try {
    const auto here = root_.facts("");
    const auto there = factsOf(path);
    return here && there && here->identity == there->identity;
} catch (const RunTimeError&) {
    return false;
}

bool ResultFolder::hasNamesOfThisSecond() const
try {
    for (const auto& name : root_.names("")) {
        if (name.find(toolFiles::resultMark) == std::string::npos) continue;
        const auto facts = root_.unfollowedFacts(name);
        if (facts && facts->changed.seconds >= std::time(nullptr)) return true;
    }
    return false;
} catch (const RunTimeError&) {
    return false;
}

void ResultFolder::sweepLeftovers(const std::function<std::string()>& cabinetMaker)
{
    const bool kept = lock_.isOpen();
    // Who has the turn may have taken it by another object than this one.
    if (takeTurn() != Turn::unknown) sweepGatherLeftovers(root_, cabinetMaker);
    if (!kept) lock_.close();
}

std::vector<std::string>
ResultFolder::leftovers(const std::function<std::string()>& cabinetMaker) const
{
    return gatherLeftovers(root_, cabinetMaker);
}
