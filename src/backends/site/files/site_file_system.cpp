#include "backends/site/files/site_file_system.h"

#include "backends/common/file_pattern.h"
#include "backends/common/folder_listing.h"
#include "backends/common/text_file_reader.h"
#include "backends/common/text_file_writer.h"
#include "backends/site/files/file_times.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/system_error.h"
#include "system/whole_file.h"

#include <cerrno>
#include <optional>
#include <utility>

namespace {

using namespace runTimeErrors;

constexpr int deviceUnavailable = 68;

/// Whether an error says that nothing is there, and not that nobody may see what is.
bool saysNothingThere(int error)
{
    return error == fileNotFound || error == pathNotFound || error == deviceUnavailable;
}

/// Where the last name of a path begins.
std::size_t startOfLastName(const std::string& path)
{
    const auto separator = path.find_last_of("\\/");
    if (separator != std::string::npos) return separator + 1;
    return SitePaths::driveName(path).size();
}

/// The facts of a plain file. Raises 53, and 70 for what is neither file nor folder.
FileFacts factsOfFile(const SitePlace& place)
{
    const auto facts = place.root.facts(place.path);
    if (!facts || facts->kind == FileKind::folder) throw RunTimeError(fileNotFound);
    if (facts->kind != FileKind::file) throw RunTimeError(permissionDenied);
    return *facts;
}

std::string below(const std::string& folder, const std::string& name)
{
    return folder.empty() ? name : folder + "/" + name;
}

/// A folder whose entries are looked at one by one.
class Listing {
public:
    Listing(const SitePlace& place, const SitePaths::StandIns& standIns)
        : place_(place), standIns_(standIns)
    {
        try {
            folder_ = place.root.belowIfThere(place.path);
        } catch (const RunTimeError&) {
            folder_.reset(); // what stands in for its contents is to be seen all the same
        }
    }

    /// An entry, or what a link leads to that stays inside.
    struct Entry {
        FileFacts facts; ///< of the kind `other` for what is out of reach, or gone since
        SitePlace place;

        /// Why the machine would not tell the facts; not for what has gone since the listing, nor
        /// for a link that can't be followed.
        std::optional<RunTimeError> unseen;

        bool isListed() const
        {
            return facts.kind == FileKind::file || facts.kind == FileKind::folder;
        }
    };

    Entry entry(const std::string& name) const
    {
        if (const auto standIn = standIns_.find(name); standIn != standIns_.end())
            return followed(
                {RootFolder("/", RootFolder::Bounds::machine), standIn->second.substr(1)});
        if (!folder_) return {{}, place_, RunTimeError(deviceIo)};
        try {
            const auto facts = folder_->unfollowedFacts(name);
            if (facts && facts->kind == FileKind::link)
                return followed({place_.root, below(place_.path, name)});
            return {facts.value_or(FileFacts{}), {*folder_, name}, {}};
        } catch (const RunTimeError& error) {
            return {{}, place_, error};
        }
    }

private:
    static Entry followed(SitePlace place)
    {
        FileFacts facts;
        try {
            facts = place.root.facts(place.path).value_or(FileFacts{});
        } catch (const RunTimeError&) {
            facts = {};
        }
        return {facts, std::move(place), {}};
    }

    const SitePlace& place_;
    const SitePaths::StandIns& standIns_;
    std::optional<RootFolder> folder_;
};

/// What lies in a folder of a site, and what stands in for what does not.
std::vector<std::string> unsortedNames(const SitePlace& place, const SitePaths::StandIns& standIns)
{
    std::vector<std::string> names;
    if (standIns.empty() || place.root.isFolder(place.path)) names = place.root.names(place.path);
    for (const auto& standIn : standIns) names.push_back(standIn.first);
    return names;
}

} // namespace

SiteFileSystem::SiteFileSystem(SitePaths& paths, PosixTimeZone zone)
    : paths_(paths), zone_(std::move(zone))
{}

bool SiteFileSystem::fileExists(const std::string& path) const
{
    try {
        const SitePlace place = paths_.place(path);
        return place.root.isFile(place.path);
    } catch (const RunTimeError&) {
        return false;
    }
}

bool SiteFileSystem::folderExists(const std::string& path) const
{
    try {
        const SitePlace place = paths_.place(path);
        return place.root.isFolder(place.path);
    } catch (const RunTimeError&) {
        return false;
    }
}

FileInfo SiteFileSystem::describe(const SitePlace& place, std::string name,
                                  const FileFacts& facts) const
{
    FileInfo info;
    info.folder = facts.kind == FileKind::folder;
    info.size = info.folder ? 0 : facts.size;
    info.readOnly = facts.readOnly;
    info.modified = localDate(zone_, facts.modified.seconds);
    info.created = creationTime(name, place.root, place.path, zone_, info.modified);
    info.name = std::move(name);
    return info;
}

FileInfo SiteFileSystem::file(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    return describe(place, lastNameOf(place.path), factsOfFile(place));
}

std::int64_t SiteFileSystem::folderSize(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    return place.root.size(place.path);
}

/// Whether a folder is there to be listed. Raises 70, 57 where that can't be told: a folder that
/// nobody may see is not an empty one.
bool SiteFileSystem::hasFolder(const std::string& path) const
try {
    const SitePlace place = paths_.place(path);
    const auto facts = place.root.facts(place.path);
    return facts && facts->kind == FileKind::folder;
} catch (const RunTimeError& error) {
    if (saysNothingThere(error.number())) return false;
    throw;
}

/// Names in a folder, and of what stands in for its missing contents. Raises 76.
std::vector<std::string> SiteFileSystem::namesIn(const SitePlace& place,
                                                 const std::string& folder) const
{
    return sortedNames(unsortedNames(place, paths_.standInsOf(folder)));
}

std::vector<FileInfo> SiteFileSystem::entries(const std::string& folder) const
{
    const SitePlace place = paths_.place(folder);
    const Listing listing(place, paths_.standInsOf(folder));
    std::vector<FileInfo> found;
    for (auto& name : namesIn(place, folder)) {
        const auto entry = listing.entry(name);
        if (entry.unseen) throw RunTimeError(*entry.unseen);
        if (entry.isListed()) found.push_back(describe(entry.place, std::move(name), entry.facts));
    }
    return found;
}

std::vector<std::string> SiteFileSystem::matching(const std::string& pattern) const
{
    const auto lastName = startOfLastName(pattern);
    const auto folder = lastName == 0 ? "." : pattern.substr(0, lastName);
    const FilePattern wanted(std::string_view(pattern).substr(lastName));
    std::vector<std::string> found;
    const auto& standIns = paths_.standInsOf(folder);
    if (standIns.empty() && !hasFolder(folder)) return found;
    const SitePlace place = paths_.place(folder);
    const Listing listing(place, standIns);
    std::vector<std::string> names = unsortedNames(place, standIns);
    std::erase_if(names, [&](const std::string& name) { return !wanted.matches(name); });
    for (auto& name : sortedNames(std::move(names))) {
        // A file that nobody can look at is listed: who goes on to it hears why.
        const auto entry = listing.entry(name);
        if (entry.facts.kind == FileKind::file || entry.unseen) found.push_back(std::move(name));
    }
    return found;
}

void SiteFileSystem::createFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    place.root.makeFolder(place.path);
}

void SiteFileSystem::createPrivateFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    place.root.makeFolder(place.path, OthersMay::nothing);
}

void SiteFileSystem::removeFolder(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    if (paths_.isRoot(path)) throw RunTimeError(permissionDenied);
    place.root.removeEmptyFolder(place.path);
}

void SiteFileSystem::copyFile(const std::string& source, const std::string& target)
{
    const SitePlace from = paths_.place(source);
    factsOfFile(from);
    const FileDescriptor file = from.root.openFile(from.path, forReading, fileNotFound);
    const SitePlace to = paths_.place(target);
    if (const auto there = to.root.unfollowedFacts(to.path)) {
        const bool same = factsOf(file).identity == there->identity;
        if (same || there->kind != FileKind::file || there->readOnly)
            throw RunTimeError(permissionDenied);
    }
    sweepReplacementFiles(to.root, folderPathOf(to.path));
    copyWholeFile(file, to.root, to.path);
}

void SiteFileSystem::deleteFile(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    if (factsOfFile(place).readOnly) throw RunTimeError(permissionDenied);
    place.root.removeFile(place.path);
}

void SiteFileSystem::clearAttributes(const std::string& path)
{
    const SitePlace place = paths_.place(path);
    place.root.allowWriting(place.path);
}

std::unique_ptr<TextReader> SiteFileSystem::openForReading(const std::string& path) const
{
    const SitePlace place = paths_.place(path);
    const bool folderThere = place.root.isFolder(folderPathOf(place.path));
    return std::make_unique<TextFileReader>(
        place.root.openFile(place.path, forReading, folderThere ? fileNotFound : pathNotFound));
}

std::unique_ptr<TextWriter> SiteFileSystem::openForWriting(const std::string& path,
                                                           const FileOpening& opening) const
{
    const SitePlace place = paths_.place(path);
    FileDescriptor file = place.root.openFile(place.path, opening, pathNotFound);
    const auto facts = factsOf(file);
    if (facts.readOnly) throw RunTimeError(permissionDenied);
    if (opening.access != FileAccess::append && facts.hardLinks > 1) {
        // The file's other names, perhaps those of a backup, keep what it holds.
        place.root.removeFile(place.path);
        file = place.root.openFile(place.path, {FileAccess::write, Creation::always}, pathNotFound);
    } else if (opening.access != FileAccess::append && !resize(file, 0)) {
        throw systemError(errno, deviceIo);
    }
    return std::make_unique<TextFileWriter>(std::move(file));
}

std::unique_ptr<TextWriter> SiteFileSystem::openForAppending(const std::string& path)
{
    return openForWriting(path, {FileAccess::append, Creation::ifMissing});
}

std::unique_ptr<TextWriter> SiteFileSystem::createTextFile(const std::string& path)
{
    return openForWriting(path, {FileAccess::write, Creation::ifMissing, LastLink::refused});
}

std::string SiteFileSystem::specialFolder(SpecialFolder folder) const
{
    return folder == SpecialFolder::windows ? "C:\\Windows" : "C:\\Temp";
}

std::string SiteFileSystem::longPathName(const std::string& path) const
{
    return path;
}

std::string SiteFileSystem::driveName(const std::string& path) const
{
    return SitePaths::driveName(path);
}

DiskSpace SiteFileSystem::diskSpace(const std::string& drive) const
{
    const SitePlace place = paths_.place(drive);
    const FileSystemRoom room = place.root.room(place.path);
    return {room.free, room.total};
}

void SiteFileSystem::changeDrive(const std::string& drive)
{
    paths_.changeDrive(drive);
}

void SiteFileSystem::changeFolder(const std::string& path)
{
    paths_.changeFolder(path);
}
