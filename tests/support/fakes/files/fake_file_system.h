#pragma once

#include "platform/file_system.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class Clock;

/// A file system in memory that keeps every promise of file_system.h.
///
/// It begins with an empty drive C:, its folders WINDOWS and TEMP, and C:\ as the current folder.
class FakeFileSystem final : public FileSystem {
public:
    explicit FakeFileSystem(const Clock& clock);
    ~FakeFileSystem() override;

    /// Makes a file, and the folders above it.
    FakeFileSystem& with(const std::string& path, std::string content = "");

    /// Makes a file that is said to be `size` bytes long, whatever reading it gives.
    FakeFileSystem& withSize(const std::string& path, std::int64_t size);

    /// Makes a file that reads as `content` so many times over, and holds it once.
    FakeFileSystem& withRepeated(const std::string& path, std::string content, int times);
    FakeFileSystem& withFolder(const std::string& path);

    /// Takes a folder away with all that is below it.
    FakeFileSystem& withoutFolder(const std::string& path);

    /// Makes a drive such as "D:", or sets the space of one that is there.
    FakeFileSystem& withDrive(const std::string& drive, DiskSpace space);

    FakeFileSystem& created(const std::string& path, Date moment);
    FakeFileSystem& modified(const std::string& path, Date moment);
    FakeFileSystem& readOnly(const std::string& path);
    FakeFileSystem& longName(const std::string& shortened, const std::string& path);

    /// From now on any use of `path` raises `number`, streams that are open included.
    FakeFileSystem& failing(const std::string& path, int number);

    /// Reading `path` raises `number` once `lines` lines have been read.
    FakeFileSystem& failingAfterLines(const std::string& path, int lines, int number);

    /// From now on any use of any path raises `number`; 0 ends that.
    FakeFileSystem& failingAll(int number);

    /// Ends what `failing` and `failingAfterLines` said of a path.
    FakeFileSystem& mended(const std::string& path);

    /// Writing raises 61 once this many more bytes were written; `roomForAll` ends that.
    FakeFileSystem& roomFor(std::int64_t bytes);
    FakeFileSystem& roomForAll();

    /// The bytes of a file; the empty text when there is none.
    std::string content(const std::string& path) const;
    bool isReadOnly(const std::string& path) const;

    /// Whether a stream of a file is still open.
    bool isOpen(const std::string& path) const;

    /// Paths of the streams that were closed, and not just let go, oldest first, in lower case.
    const std::vector<std::string>& closed() const { return closed_; }

    /// Paths asked for, oldest first, as the asker wrote them.
    const std::vector<std::string>& asked() const { return asked_; }

    /// The folder in which started processes begin.
    std::string currentFolder() const;

    bool fileExists(const std::string& path) const override;
    bool folderExists(const std::string& path) const override;
    FileInfo file(const std::string& path) const override;
    std::int64_t folderSize(const std::string& path) const override;
    std::vector<FileInfo> entries(const std::string& folder) const override;
    std::vector<std::string> matching(const std::string& pattern) const override;
    void createFolder(const std::string& path) override;
    void createPrivateFolder(const std::string& path) override { createFolder(path); }
    void removeFolder(const std::string& path) override;
    void copyFile(const std::string& source, const std::string& target) override;
    void deleteFile(const std::string& path) override;
    void clearAttributes(const std::string& path) override;
    std::unique_ptr<TextReader> openForReading(const std::string& path) const override;
    std::unique_ptr<TextWriter> openForAppending(const std::string& path) override;
    std::unique_ptr<TextWriter> createTextFile(const std::string& path) override;
    std::string specialFolder(SpecialFolder folder) const override;
    std::string longPathName(const std::string& path) const override;
    std::string driveName(const std::string& path) const override;
    DiskSpace diskSpace(const std::string& drive) const override;
    void changeDrive(const std::string& drive) override;
    void changeFolder(const std::string& path) override;

    /// A file or folder; its key in the map is its full path, folded.
    struct Node {
        FileInfo info;
        std::string content;
        std::optional<std::int64_t> claimedSize;
        int timesOver = 1; ///< how often the content follows upon itself

        std::int64_t size() const
        {
            return claimedSize.value_or(static_cast<std::int64_t>(content.size()));
        }
    };

    /// What an open stream asks of its file system.
    void checkOpenFile(const std::string& key, int linesRead) const;
    void takeRoom(std::size_t bytes);
    void noteClosed(const std::string& key) const;
    Date moment() const;

private:
    struct Fault {
        int number = 0;
        int afterLines = 0;
    };

    std::string fullPath(const std::string& path) const;
    std::string keyOf(const std::string& path) const;
    std::string use(const std::string& path) const;
    std::shared_ptr<Node> find(const std::string& key) const;
    std::shared_ptr<Node> fileNode(const std::string& key) const;
    std::shared_ptr<Node> makeNode(const std::string& path, bool folder);
    std::shared_ptr<Node> writableFile(const std::string& path, const std::string& key);
    void requireParent(const std::string& key) const;
    std::vector<std::shared_ptr<Node>> childrenOf(const std::string& key) const;
    FileInfo infoOf(const Node& node) const;

    const Clock& clock_;
    std::map<std::string, std::shared_ptr<Node>> nodes_;
    std::map<std::string, DiskSpace> drives_;
    std::map<std::string, Fault> faults_;
    std::map<std::string, std::string> longNames_;
    int faultOfAll_ = 0;
    std::optional<std::int64_t> room_;
    std::string currentDrive_ = "C:";
    std::map<std::string, std::string> currentFolders_; ///< by drive; the root of one without
    mutable std::vector<std::string> asked_;
    mutable std::vector<std::string> closed_;
};
