#include "backends/site/files/result_folder.h"

#include "backends/site/files/gather_leftovers.h"
#include "system/system_error.h"

#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

ResultFolder::ResultFolder(const std::string& path) : root_(path) {}

ResultFolder::Turn ResultFolder::takeTurn()
{
    if (lock_.isOpen()) return Turn::ours;
    // Started programs get the lock too, so it is not closed for them.
    FileDescriptor lock(::openat(root_.descriptor(), ".", O_RDONLY | O_DIRECTORY));
    if (!lock.isOpen()) return Turn::unknown;
    if (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0)
        return errno == EWOULDBLOCK ? Turn::anothers : Turn::unknown;
    lock_ = std::move(lock);
    return Turn::ours;
}

bool ResultFolder::isAt(const std::string& path) const
{
    struct stat here {};
    struct stat there {};
    return ::fstat(root_.descriptor(), &here) == 0 && ::stat(path.c_str(), &there) == 0 &&
           here.st_dev == there.st_dev && here.st_ino == there.st_ino;
}

bool ResultFolder::hasNamesOfThisSecond() const
try {
    for (const auto& name : root_.names("")) {
        if (name.find("_WPN_") == std::string::npos) continue;
        const auto facts = root_.ownFacts(name);
        if (facts && facts->st_ctime >= std::time(nullptr)) return true;
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
