#include "system/posix/open_beneath.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <climits>
#include <deque>
#include <fcntl.h>
#include <linux/openat2.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace {

constexpr int mostLinks = 40;

FileDescriptor failed(int error)
{
    errno = error;
    return {};
}

/// What a link holds; empty with `errno` when it can't be read.
std::string targetOf(int folder, const std::string& name)
{
    char text[PATH_MAX];
    const ssize_t length = ::readlinkat(folder, name.c_str(), text, sizeof text);
    return length <= 0 ? std::string() : std::string(text, static_cast<std::size_t>(length));
}

/// A walk down from a folder and back up to it, which never asks the system for "..": the folders
/// above the present one are those that it came by.
class Walk {
public:
    Walk(int folder, const std::string& path, Links links) : root_(folder), links_(links)
    {
        put(path);
    }

    FileDescriptor open(int flags, mode_t mode)
    {
        while (!names_.empty()) {
            const std::string name = std::move(names_.front());
            names_.pop_front();
            if (name == "..") {
                if (folders_.empty()) return failed(EXDEV);
                folders_.pop_back();
                continue;
            }
            const bool last = names_.empty() && !folderWanted_;
            const bool takesLink = last && (flags & (O_NOFOLLOW | O_EXCL)) != 0;
            struct stat facts {};
            const bool there = ::fstatat(present(), name.c_str(), &facts, AT_SYMLINK_NOFOLLOW) == 0;
            if (there && S_ISLNK(facts.st_mode) && !takesLink) {
                if (const int error = follow(name)) return failed(error);
                continue;
            }
            if (last) return openName(name, flags, mode);
            FileDescriptor next = openName(name, O_PATH | O_DIRECTORY, 0);
            if (!next.isOpen()) return next;
            folders_.push_back(std::move(next));
        }
        return openName(".", flags, mode);
    }

private:
    int present() const { return folders_.empty() ? root_ : folders_.back().get(); }

    FileDescriptor openName(const std::string& name, int flags, mode_t mode) const
    {
        return FileDescriptor(
            ::openat(present(), name.c_str(), flags | O_NOFOLLOW | O_CLOEXEC, mode));
    }

    /// Gives the system's error number, or 0.
    int follow(const std::string& name)
    {
        if (links_ == Links::none || ++followed_ > mostLinks) return ELOOP;
        const std::string target = targetOf(present(), name);
        if (target.empty()) return ENOENT;
        if (target.front() == '/') return EXDEV;
        put(target);
        return 0;
    }

    /// Puts the names of a path before those that are left.
    void put(std::string_view path)
    {
        if (names_.empty() && !path.empty() && path.back() == '/') folderWanted_ = true;
        std::vector<std::string> names;
        while (!path.empty()) {
            const auto name = path.substr(0, path.find('/'));
            path.remove_prefix(std::min(name.size() + 1, path.size()));
            if (!name.empty() && name != ".") names.emplace_back(name);
        }
        names_.insert(names_.begin(), names.begin(), names.end());
    }

    int root_;
    Links links_;
    std::vector<FileDescriptor> folders_;
    std::deque<std::string> names_;
    bool folderWanted_ = false; ///< the path ends in a separator
    int followed_ = 0;
};

} // namespace

FileDescriptor openBeneathByKernel(int folder, const std::string& path, int flags, mode_t mode,
                                   Links links)
{
    open_how how{};
    how.flags = static_cast<unsigned>(flags | O_CLOEXEC);
    how.mode = (flags & O_CREAT) != 0 ? mode : 0;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    if (links == Links::none) how.resolve |= RESOLVE_NO_SYMLINKS;
    const char* name = path.empty() ? "." : path.c_str();
    return FileDescriptor(static_cast<int>(::syscall(SYS_openat2, folder, name, &how, sizeof how)));
}

FileDescriptor openBeneathByWalk(int folder, const std::string& path, int flags, mode_t mode,
                                 Links links)
{
    if (!path.empty() && path.front() == '/') return failed(EXDEV);
    return Walk(folder, path, links).open(flags, mode);
}

FileDescriptor openBeneath(int folder, const std::string& path, int flags, mode_t mode, Links links)
{
    static std::atomic<bool> kernelKnows{true};
    if (kernelKnows) {
        FileDescriptor file = openBeneathByKernel(folder, path, flags, mode, links);
        // EAGAIN: something was renamed above the file meanwhile. EPERM may be that of a sandbox
        // that does not know the call.
        if (file.isOpen() || (errno != ENOSYS && errno != EPERM && errno != EAGAIN)) return file;
        if (errno == ENOSYS) kernelKnows = false;
    }
    return openBeneathByWalk(folder, path, flags, mode, links);
}
