#include "backends/site/site_turn.h"

#include "system/system_error.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// As long for the first as for the last who came, so that each gets its turn.
constexpr auto nap = 5ms;

/// A wait of this length is told.
constexpr auto untilNotice = 1s;

/// The file of the lock; not open where nobody may write. One of another person serves as well.
FileDescriptor openLock(const std::string& path)
{
    constexpr int always = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    FileDescriptor lock(::open(path.c_str(), O_RDWR | O_CREAT | always, 0666));
    if (!lock.isOpen() && (errno == EACCES || errno == EPERM || errno == EROFS)) {
        lock = FileDescriptor(::open(path.c_str(), O_RDONLY | always));
        if (!lock.isOpen() && (errno == ENOENT || errno == EACCES)) return lock;
    }
    if (!lock.isOpen() && errno != ELOOP) throw systemError(errno, runTimeErrors::pathNotFound);
    struct stat facts {};
    if (!lock.isOpen() || ::fstat(lock.get(), &facts) != 0 || !S_ISREG(facts.st_mode))
        throw RunTimeError(runTimeErrors::permissionDenied, path + " is not a file");
    return lock;
}

/// True when the lock is taken, false while another program has it.
bool tryLock(const FileDescriptor& lock)
{
    while (::flock(lock.get(), LOCK_EX | LOCK_NB) != 0) {
        if (errno == EWOULDBLOCK) return false;
        if (errno != EINTR) throw systemError(errno, runTimeErrors::deviceIo);
    }
    return true;
}

/// The process that has the turn, as it wrote itself down; the empty text when it could not.
std::string holderOf(const FileDescriptor& lock)
{
    char text[24];
    const ssize_t count = ::pread(lock.get(), text, sizeof text, 0);
    const std::string holder(text, count > 0 ? static_cast<std::size_t>(count) : 0);
    const auto digits = holder.find_first_not_of("0123456789");
    return digits == std::string::npos || holder[digits] != '\n' ? "" : holder.substr(0, digits);
}

/// Tells those who wait whose turn it is. They can do without.
void writeDown(const FileDescriptor& lock)
{
    const std::string holder = std::to_string(::getpid()) + "\n";
    const auto size = static_cast<off_t>(holder.size());
    if (::pwrite(lock.get(), holder.data(), holder.size(), 0) == size &&
        ::ftruncate(lock.get(), size) != 0)
        return;
}

} // namespace

SiteTurn::SiteTurn(const std::string& siteFolder, std::chrono::milliseconds patience,
                   const Notice& notice)
    : lock_(openLock(siteFolder + "/changes.lock"))
{
    if (!lock_.isOpen()) return;
    const auto begin = Clock::now();
    auto since = begin;
    bool told = !notice;
    std::string holder = holderOf(lock_);
    const auto another = [&] {
        return "another program" + (holder.empty() ? "" : " (process " + holder + ")");
    };
    while (!tryLock(lock_)) {
        const auto now = Clock::now();
        if (const std::string next = holderOf(lock_); next != holder) {
            holder = next;
            since = now;
        }
        if (now - since >= patience || now - begin >= longestQueue * patience)
            throw RunTimeError(runTimeErrors::permissionDenied,
                               another() + " is changing the site " + siteFolder +
                                   " and did not finish in time");
        if (!told && now - begin >= untilNotice) {
            notice("waiting for " + another() + " that is changing the site " + siteFolder);
            told = true;
        }
        std::this_thread::sleep_for(nap);
    }
    writeDown(lock_);
}
