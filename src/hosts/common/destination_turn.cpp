#include "hosts/common/destination_turn.h"

#include "hosts/common/gather_outcome.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

#include <cerrno>
#include <ctime>
#include <filesystem>
#include <utility>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

void makeWhereMissing(FileSystem& files, const std::string& destination)
try {
    if (!files.folderExists(destination)) files.createPrivateFolder(destination);
} catch (const RunTimeError&) {
    // Another gather has made it meanwhile, or this one will say why it can't.
}

bool isOfThisSecond(const fs::path& file)
{
    struct stat facts {};
    return ::lstat(file.c_str(), &facts) == 0 && facts.st_ctime >= std::time(nullptr);
}

/// Whether a path still leads to an open folder.
bool leadsTo(const std::string& path, int folder)
{
    struct stat there {};
    struct stat open {};
    return ::stat(path.c_str(), &there) == 0 && ::fstat(folder, &open) == 0 &&
           there.st_dev == open.st_dev && there.st_ino == open.st_ino;
}

} // namespace

DestinationTurn::DestinationTurn(FileSystem& files, const std::string& destination,
                                 std::string folder)
    : path_(std::move(folder))
{
    // A folder may be put in the place of the one that was opened before that is locked.
    constexpr int mostTries = 5;
    for (int tries = 0; tries < mostTries; ++tries) {
        makeWhereMissing(files, destination);
        if (keep()) return;
    }
}

DestinationTurn::~DestinationTurn()
{
    if (folder_ >= 0) ::close(folder_);
}

/// False where the lock is one on a folder that has left its place.
bool DestinationTurn::keep()
{
    const int folder = ::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (folder < 0) return true;
    taken_ = ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    if (taken_) {
        ::close(folder);
        return true;
    }
    if (!leadsTo(path_, folder)) {
        ::close(folder);
        return false;
    }
    folder_ = folder;
    return true;
}

std::optional<Sentence> DestinationTurn::refusal() const
{
    if (!taken_) return {};
    return Sentence{gatherSentences::destinationTaken, {path_}};
}

bool DestinationTurn::hasNamesOfThisSecond() const
{
    std::error_code failed;
    for (fs::directory_iterator entry(path_, failed), end; !failed && entry != end;
         entry.increment(failed))
        if (entry->path().filename().string().find("_WPN_") != std::string::npos &&
            isOfThisSecond(entry->path()))
            return true;
    return false;
}
