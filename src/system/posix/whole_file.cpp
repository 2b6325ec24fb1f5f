#include "system/whole_file.h"

#include "system/posix/permissions.h"
#include "system/process.h"
#include "system/system_error.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <random>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace {

constexpr std::size_t copyStep = 16U << 20;

constexpr std::string_view temporaryStart = ".new-";
constexpr std::time_t longestWork = 60 * 60;

/// A new file in a folder, under a name that nobody else has.
std::pair<std::string, FileDescriptor> makeTemporary(const RootFolder& folder, mode_t mode)
{
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = std::string(temporaryStart) + std::to_string(ownProcess()) + "-" +
                           std::to_string(random() % 1'000'000'000);
        FileDescriptor file(::openat(folder.descriptor(), name.c_str(),
                                     O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, mode));
        if (file.isOpen()) return {std::move(name), std::move(file)};
        if (errno != EEXIST) throw systemError(errno, runTimeErrors::pathNotFound);
    }
    throw RunTimeError(runTimeErrors::permissionDenied);
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.size() < 10 &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The process of a name that `makeTemporary` gave; the empty text for any other name.
std::string_view processOf(std::string_view name)
{
    if (name.substr(0, temporaryStart.size()) != temporaryStart) return {};
    name.remove_prefix(temporaryStart.size());
    const auto dash = name.find('-');
    if (dash == std::string_view::npos || !isNumber(name.substr(dash + 1))) return {};
    return isNumber(name.substr(0, dash)) ? name.substr(0, dash) : std::string_view();
}

/// One step of a copy by the fastest way that the two file systems offer: 0 at the end, -1 with
/// `errno` on failure. `way` moves on past a way that they don't.
ssize_t copySome(const FileDescriptor& source, const FileDescriptor& target, int& way)
{
    const int from = source.get();
    const int to = target.get();
    if (way == 0) {
        const ssize_t count = ::copy_file_range(from, nullptr, to, nullptr, copyStep, 0);
        if (count > 0) return count;
        ++way; // also at 0: some special files claim to be empty here
    }
    if (way == 1) {
        const ssize_t count = ::sendfile(to, from, nullptr, copyStep);
        if (count >= 0 || (errno != EINVAL && errno != ENOSYS)) return count;
        ++way;
    }
    char buffer[65536];
    const ssize_t count = ::read(from, buffer, sizeof buffer);
    if (count <= 0) return count;
    const auto size = static_cast<std::size_t>(count);
    return writeBytes(target, {buffer, size}) == size ? count : -1;
}

} // namespace

std::string readWholeFile(const RootFolder& root, const std::string& path, int missing,
                          std::size_t limit)
{
    return readWholeFile(root.openFile(path, forReading, missing), missing, limit);
}

std::string readMachineFile(const std::string& path, int missing, std::size_t limit)
{
    return readWholeFile(openMachineFile(path, forReading, missing), missing, limit);
}

std::string readWholeFile(const FileDescriptor& file, int missing, std::size_t limit)
{
    struct stat facts {};
    std::string bytes;
    if (::fstat(file.get(), &facts) == 0 && facts.st_size > 0)
        bytes.reserve(std::min(static_cast<std::size_t>(facts.st_size), limit) + 1);
    char buffer[65536];
    for (;;) {
        const ssize_t count = ::read(file.get(), buffer, sizeof buffer);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) throw systemError(errno, missing);
        if (count == 0) return bytes;
        if (bytes.size() + static_cast<std::size_t>(count) > limit)
            throw RunTimeError(runTimeErrors::outOfStringSpace);
        bytes.append(buffer, static_cast<std::size_t>(count));
    }
}

ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target,
                                 OthersMay others)
    : ReplacementFile(root, target, newFileMode(others))
{}

ReplacementFile::ReplacementFile(const RootFolder& root, const std::string& target, unsigned mode)
    : folder_(root.below(folderPathOf(target))), target_(lastNameOf(target))
{
    std::tie(temporary_, file_) = makeTemporary(folder_, mode);
}

ReplacementFile::~ReplacementFile()
{
    if (!temporary_.empty()) ::unlinkat(folder_.descriptor(), temporary_.c_str(), 0);
}

void ReplacementFile::resemble(const FileDescriptor& model)
{
    struct stat record {};
    if (::fstat(model.get(), &record) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    const bool owned = ::fchown(file_.get(), record.st_uid, record.st_gid) == 0;
    ::fchmod(file_.get(), record.st_mode & (owned ? 07777 : 0777));
}

void ReplacementFile::close()
{
    if (const int error = file_.close()) throw systemError(error, runTimeErrors::deviceIo);
}

void ReplacementFile::commit(bool synced)
{
    if (synced && ::fdatasync(file_.get()) != 0) throw systemError(errno, runTimeErrors::deviceIo);
    close();
    if (::renameat(folder_.descriptor(), temporary_.c_str(), folder_.descriptor(),
                   target_.c_str()) != 0)
        throw systemError(errno, runTimeErrors::pathNotFound);
    temporary_.clear();
}

void copyWholeFile(const FileDescriptor& source, const RootFolder& root, const std::string& target)
{
    struct stat facts {};
    if (::fstat(source.get(), &facts) != 0) throw systemError(errno, runTimeErrors::fileNotFound);
    ReplacementFile copy(root, target, unsigned{facts.st_mode} & 0777U);
    int way = 0;
    for (;;) {
        const ssize_t count = copySome(source, copy.file(), way);
        if (count == 0) break;
        if (count < 0 && errno != EINTR) throw systemError(errno, runTimeErrors::deviceIo);
    }
    const timespec times[] = {facts.st_atim, facts.st_mtim};
    ::futimens(copy.file().get(), times);
    copy.commit(false);
}

bool isLeftBehind(std::string_view process, const FileFacts& facts)
{
    if (!isNumber(process) || !isOurs(facts)) return false;
    return facts.modified.seconds < std::time(nullptr) - longestWork || isEndedProcess(process);
}

bool isReplacementFile(std::string_view name)
{
    return !processOf(name).empty();
}

bool isLeftReplacementFile(std::string_view name, const FileFacts& facts)
{
    return facts.kind == FileKind::file && isLeftBehind(processOf(name), facts);
}

void sweepReplacementFiles(const RootFolder& root, const std::string& folder)
{
    try {
        for (const auto& name : root.names(folder)) {
            if (!isReplacementFile(name)) continue;
            const std::string path = folder.empty() ? name : folder + "/" + name;
            const auto facts = root.unfollowedFacts(path);
            if (facts && isLeftReplacementFile(name, *facts)) root.removeFile(path);
        }
    } catch (const RunTimeError&) {
        return; // a folder that may not be read or changed keeps what it has
    }
}
