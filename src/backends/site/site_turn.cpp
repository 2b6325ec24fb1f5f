#include "backends/site/site_turn.h"

#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/file_lock.h"
#include "system/process.h"
#include "system/root_folder.h"

#include <thread>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

/// As long for the first as for the last who came, so that each gets its turn.
constexpr auto nap = 5ms;

/// A wait of this length is told.
constexpr auto untilNotice = 1s;

/// The file of the lock; not open where nobody may write. One of another person serves as well.
FileDescriptor openLock(const std::string& siteFolder)
{
    constexpr const char* name = "changes.lock";
    const RootFolder site(siteFolder);
    FileDescriptor lock =
        site.openIfAllowed(name, {FileAccess::readAndWrite, Creation::ifMissing, LastLink::refused},
                           runTimeErrors::pathNotFound);
    if (lock.isOpen()) return lock;
    try {
        return site.openIfAllowed(name, {.lastLink = LastLink::refused},
                                  runTimeErrors::pathNotFound);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::pathNotFound) throw;
        return lock;
    }
}

/// The process that has the turn, as it wrote itself down; the empty text when it could not.
std::string holderOf(const FileDescriptor& lock)
try {
    char text[24];
    const std::string holder(text, readAt(lock, text, sizeof text, 0));
    const auto digits = holder.find_first_not_of("0123456789");
    return digits == std::string::npos || holder[digits] != '\n' ? "" : holder.substr(0, digits);
} catch (const RunTimeError&) {
    return {};
}

/// Tells those who wait whose turn it is. They can do without.
void writeDown(const FileDescriptor& lock)
{
    const std::string holder = std::to_string(ownProcess()) + "\n";
    if (writeBytesAt(lock, holder, 0) == holder.size()) resize(lock, holder.size());
}

} // namespace

SiteTurn::SiteTurn(const std::string& siteFolder, std::chrono::milliseconds patience,
                   const Notice& notice, const std::string& changed)
    : lock_(openLock(siteFolder))
{
    if (!lock_.isOpen()) return;
    const auto begin = Clock::now();
    auto since = begin;
    bool told = !notice;
    const std::string shown = changed.empty() ? "the site " + siteFolder : changed;
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
                               another() + " is changing " + shown + " and did not finish in time");
        if (!told && now - begin >= untilNotice) {
            notice("waiting for " + another() + " that is changing " + shown);
            told = true;
        }
        std::this_thread::sleep_for(nap);
    }
    writeDown(lock_);
}
