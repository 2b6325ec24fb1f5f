#include "support/fakes/files/fake_file_system.h"

#include "platform/clock.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "support/fakes/files/fake_paths.h"
#include "support/fakes/files/fake_text_streams.h"

#include <utility>

using fakePaths::folded;

FakeFileSystem::FakeFileSystem(const Clock& clock) : clock_(clock)
{
    withDrive("C:", DiskSpace{200'000'000, 40'000'000'000});
    withFolder("C:\\WINDOWS");
    withFolder("C:\\TEMP");
}

FakeFileSystem::~FakeFileSystem() = default;

std::string FakeFileSystem::fullPath(const std::string& path) const
{
    const std::string drive = driveName(driveName(path).empty() ? currentDrive_ : path);
    const auto folder = currentFolders_.find(folded(drive));
    return fakePaths::full(path, folder == currentFolders_.end() ? drive + "\\" : folder->second);
}

std::string FakeFileSystem::keyOf(const std::string& path) const
{
    return folded(fullPath(path));
}

std::string FakeFileSystem::use(const std::string& path) const
{
    asked_.push_back(path);
    if (path.empty()) throw RunTimeError(runTimeErrors::badFileNumber);
    std::string key = keyOf(path);
    if (faultOfAll_ != 0) throw RunTimeError(faultOfAll_);
    const auto fault = faults_.find(key);
    if (fault != faults_.end() && fault->second.afterLines == 0)
        throw RunTimeError(fault->second.number);
    return key;
}

void FakeFileSystem::checkOpenFile(const std::string& key, int linesRead) const
{
    if (faultOfAll_ != 0) throw RunTimeError(faultOfAll_);
    const auto fault = faults_.find(key);
    if (fault != faults_.end() && linesRead >= fault->second.afterLines)
        throw RunTimeError(fault->second.number);
}

void FakeFileSystem::takeRoom(std::size_t bytes)
{
    if (!room_) return;
    if (static_cast<std::int64_t>(bytes) > *room_) throw RunTimeError(runTimeErrors::diskFull);
    *room_ -= static_cast<std::int64_t>(bytes);
}

void FakeFileSystem::noteClosed(const std::string& key) const
{
    closed_.push_back(lowerCase(key));
}

Date FakeFileSystem::moment() const
{
    return clock_.now();
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::find(const std::string& key) const
{
    const auto found = nodes_.find(key);
    return found == nodes_.end() ? nullptr : found->second;
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::fileNode(const std::string& key) const
{
    auto node = find(key);
    if (!node || node->info.folder) throw RunTimeError(runTimeErrors::fileNotFound);
    return node;
}

void FakeFileSystem::requireParent(const std::string& key) const
{
    const auto parent = find(fakePaths::parent(key));
    if (!parent || !parent->info.folder) throw RunTimeError(runTimeErrors::pathNotFound);
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::makeNode(const std::string& path, bool folder)
{
    auto node = std::make_shared<Node>();
    const std::string whole = fullPath(path);
    node->info.name = fakePaths::lastPart(whole);
    node->info.created = node->info.modified = moment();
    node->info.folder = folder;
    nodes_[folded(whole)] = node;
    return node;
}

std::shared_ptr<FakeFileSystem::Node> FakeFileSystem::writableFile(const std::string& path,
                                                                   const std::string& key)
{
    requireParent(key);
    auto node = find(key);
    if (!node) return makeNode(path, false);
    if (node->info.folder || node->info.readOnly)
        throw RunTimeError(runTimeErrors::permissionDenied);
    return node;
}

std::vector<std::shared_ptr<FakeFileSystem::Node>>
FakeFileSystem::childrenOf(const std::string& key) const
{
    const auto folder = find(key);
    if (!folder || !folder->info.folder) throw RunTimeError(runTimeErrors::pathNotFound);
    std::vector<std::shared_ptr<Node>> children;
    for (const auto& [path, node] : nodes_)
        if (fakePaths::parent(path) == key) children.push_back(node);
    return children;
}

FileInfo FakeFileSystem::infoOf(const Node& node) const
{
    FileInfo info = node.info;
    info.size = info.folder ? 0 : node.size();
    return info;
}

FakeFileSystem& FakeFileSystem::with(const std::string& path, std::string content)
{
    withFolder(fakePaths::parent(fullPath(path)));
    makeNode(path, false)->content = std::move(content);
    return *this;
}

FakeFileSystem& FakeFileSystem::withSize(const std::string& path, std::int64_t size)
{
    with(path);
    find(keyOf(path))->claimedSize = size;
    return *this;
}

FakeFileSystem& FakeFileSystem::withRepeated(const std::string& path, std::string content,
                                             int times)
{
    const auto size = static_cast<std::int64_t>(content.size()) * times;
    with(path, std::move(content));
    const auto node = find(keyOf(path));
    node->claimedSize = size;
    node->timesOver = times;
    return *this;
}

FakeFileSystem& FakeFileSystem::withoutFolder(const std::string& path)
{
    const std::string key = use(path);
    std::erase_if(nodes_, [&](const auto& entry) {
        return entry.first == key || entry.first.rfind(key + "\\", 0) == 0;
    });
    return *this;
}

FakeFileSystem& FakeFileSystem::withFolder(const std::string& path)
{
    const std::string whole = fullPath(path);
    if (find(folded(whole))) return *this;
    const std::string above = fakePaths::parent(whole);
    if (above.empty())
        withDrive(whole, DiskSpace{200'000'000, 40'000'000'000});
    else
        withFolder(above);
    makeNode(whole, true);
    return *this;
}

FakeFileSystem& FakeFileSystem::withDrive(const std::string& drive, DiskSpace space)
{
    const std::string key = keyOf(drive + "\\");
    drives_[key] = space;
    if (!find(key)) makeNode(drive + "\\", true);
    return *this;
}

FakeFileSystem& FakeFileSystem::created(const std::string& path, Date moment)
{
    nodes_.at(keyOf(path))->info.created = moment;
    return *this;
}

FakeFileSystem& FakeFileSystem::modified(const std::string& path, Date moment)
{
    nodes_.at(keyOf(path))->info.modified = moment;
    return *this;
}

FakeFileSystem& FakeFileSystem::readOnly(const std::string& path)
{
    nodes_.at(keyOf(path))->info.readOnly = true;
    return *this;
}

FakeFileSystem& FakeFileSystem::longName(const std::string& shortened, const std::string& path)
{
    longNames_[keyOf(shortened)] = path;
    return *this;
}

FakeFileSystem& FakeFileSystem::failing(const std::string& path, int number)
{
    faults_[keyOf(path)] = Fault{number, 0};
    return *this;
}

FakeFileSystem& FakeFileSystem::failingAfterLines(const std::string& path, int lines, int number)
{
    faults_[keyOf(path)] = Fault{number, lines};
    return *this;
}

FakeFileSystem& FakeFileSystem::failingAll(int number)
{
    faultOfAll_ = number;
    return *this;
}

FakeFileSystem& FakeFileSystem::mended(const std::string& path)
{
    faults_.erase(keyOf(path));
    return *this;
}

FakeFileSystem& FakeFileSystem::roomFor(std::int64_t bytes)
{
    room_ = bytes;
    return *this;
}

FakeFileSystem& FakeFileSystem::roomForAll()
{
    room_.reset();
    return *this;
}

std::string FakeFileSystem::content(const std::string& path) const
{
    const auto node = find(keyOf(path));
    return node ? node->content : "";
}

bool FakeFileSystem::isReadOnly(const std::string& path) const
{
    return nodes_.at(keyOf(path))->info.readOnly;
}

bool FakeFileSystem::isOpen(const std::string& path) const
{
    const auto node = nodes_.find(keyOf(path));
    return node != nodes_.end() && node->second.use_count() > 1; // one of them is the map's
}

bool FakeFileSystem::fileExists(const std::string& path) const
{
    if (path.empty()) return false;
    const auto node = find(use(path));
    return node && !node->info.folder;
}

bool FakeFileSystem::folderExists(const std::string& path) const
{
    if (path.empty()) return false;
    const auto node = find(use(path));
    return node && node->info.folder;
}

FileInfo FakeFileSystem::file(const std::string& path) const
{
    return infoOf(*fileNode(use(path)));
}

std::int64_t FakeFileSystem::folderSize(const std::string& path) const
{
    const std::string key = use(path);
    childrenOf(key);
    std::int64_t size = 0;
    for (const auto& [below, node] : nodes_)
        if (below.rfind(key + "\\", 0) == 0) size += infoOf(*node).size;
    return size;
}

std::vector<FileInfo> FakeFileSystem::entries(const std::string& folder) const
{
    std::vector<FileInfo> found;
    for (const auto& node : childrenOf(use(folder))) found.push_back(infoOf(*node));
    return found;
}

std::vector<std::string> FakeFileSystem::matching(const std::string& pattern) const
{
    const std::string wanted = fakePaths::lastPart(pattern);
    std::string folder = pattern.substr(0, pattern.size() - wanted.size());
    if (folder.empty()) folder = ".";
    const std::string key = use(folder);
    const auto node = find(key);
    std::vector<std::string> names;
    if (!node || !node->info.folder) return names;
    for (const auto& child : childrenOf(key))
        if (!child->info.folder && fakePaths::matches(child->info.name, wanted))
            names.push_back(child->info.name);
    return names;
}

void FakeFileSystem::createFolder(const std::string& path)
{
    const std::string key = use(path);
    if (find(key)) throw RunTimeError(runTimeErrors::fileAlreadyExists);
    requireParent(key);
    makeNode(path, true);
}

void FakeFileSystem::removeFolder(const std::string& path)
{
    const std::string key = use(path);
    const bool isRoot = fakePaths::parent(key).empty();
    if (!childrenOf(key).empty() || isRoot) throw RunTimeError(runTimeErrors::permissionDenied);
    nodes_.erase(key);
}

void FakeFileSystem::copyFile(const std::string& source, const std::string& target)
{
    const auto from = fileNode(use(source));
    const auto onto = writableFile(target, use(target));
    if (onto == from) throw RunTimeError(runTimeErrors::permissionDenied);
    takeRoom(from->content.size());
    const std::string name = onto->info.name;
    const Date firstCreated = onto->info.created;
    *onto = *from;
    onto->info.name = name;
    onto->info.created = firstCreated;
}

void FakeFileSystem::deleteFile(const std::string& path)
{
    const std::string key = use(path);
    if (fileNode(key)->info.readOnly) throw RunTimeError(runTimeErrors::permissionDenied);
    nodes_.erase(key);
}

void FakeFileSystem::clearAttributes(const std::string& path)
{
    fileNode(use(path))->info.readOnly = false;
}

std::unique_ptr<TextReader> FakeFileSystem::openForReading(const std::string& path) const
{
    const std::string key = use(path);
    requireParent(key);
    return std::make_unique<FakeTextReader>(*this, key, fileNode(key));
}

std::unique_ptr<TextWriter> FakeFileSystem::openForAppending(const std::string& path)
{
    const std::string key = use(path);
    return std::make_unique<FakeTextWriter>(*this, key, writableFile(path, key));
}

std::unique_ptr<TextWriter> FakeFileSystem::createTextFile(const std::string& path)
{
    const std::string key = use(path);
    const auto node = writableFile(path, key);
    node->content.clear();
    node->claimedSize.reset();
    node->info.modified = moment();
    return std::make_unique<FakeTextWriter>(*this, key, node);
}

std::string FakeFileSystem::specialFolder(SpecialFolder folder) const
{
    return folder == SpecialFolder::windows ? "C:\\WINDOWS" : "C:\\TEMP";
}

std::string FakeFileSystem::longPathName(const std::string& path) const
{
    const auto known = longNames_.find(use(path));
    return known == longNames_.end() ? path : known->second;
}

std::string FakeFileSystem::driveName(const std::string& path) const
{
    return path.size() > 1 && path[1] == ':' ? path.substr(0, 2) : "";
}

DiskSpace FakeFileSystem::diskSpace(const std::string& drive) const
{
    const auto found = drives_.find(use(drive).substr(0, 2));
    if (found == drives_.end()) throw RunTimeError(runTimeErrors::pathNotFound);
    return found->second;
}

std::string FakeFileSystem::currentFolder() const
{
    const std::string whole = fullPath(".");
    return fakePaths::parent(whole).empty() ? whole + "\\" : whole;
}

void FakeFileSystem::changeDrive(const std::string& drive)
{
    use(drive);
    const std::string name = folded(driveName(drive));
    constexpr int deviceUnavailable = 68;
    if (drives_.count(name) == 0) throw RunTimeError(deviceUnavailable, "Device unavailable");
    currentDrive_ = driveName(drive);
}

void FakeFileSystem::changeFolder(const std::string& path)
{
    childrenOf(use(path));
    const std::string whole = fullPath(path);
    currentFolders_[folded(driveName(whole))] = whole + "\\";
}
