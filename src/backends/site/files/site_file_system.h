#pragma once

#include "backends/site/time/posix_time_zone.h"
#include "drives/site_paths.h"
#include "platform/file_system.h"

#include <string>
#include <string_view>
#include <vector>

/// The files of a site, and those of the machine behind a leading `/` that a person named.
///
/// A file without its owner's leave to write is read-only, whoever runs the tool. Links out of a
/// drive, and what is neither file nor folder, are in no listing and are not opened; nothing is
/// removed through a link. What stands in for missing files
/// (`SitePaths::standIn`) is there in every way.
class SiteFileSystem final : public FileSystem {
public:
    /// `paths` keeps the current folder, which started programs share, and outlives this. File
    /// times are local in `zone`.
    SiteFileSystem(SitePaths& paths, PosixTimeZone zone);

    bool fileExists(const std::string& path) const override;
    bool folderExists(const std::string& path) const override;
    FileInfo file(const std::string& path) const override;
    std::int64_t folderSize(const std::string& path) const override;
    std::vector<FileInfo> entries(const std::string& folder) const override;
    std::vector<std::string> matching(const std::string& pattern) const override;
    void createFolder(const std::string& path) override;
    void createPrivateFolder(const std::string& path) override;
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

private:
    bool hasFolder(const std::string& path) const;
    std::vector<std::string> namesIn(const SitePlace& place, const std::string& folder) const;
    FileInfo describe(const SitePlace& place, std::string name, const FileFacts& facts) const;
    std::unique_ptr<TextWriter> openForWriting(const std::string& path,
                                               const FileOpening& opening) const;

    SitePaths& paths_;
    PosixTimeZone zone_;
};
