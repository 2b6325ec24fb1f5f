#pragma once

#include "platform/file_system.h"

#include <memory>
#include <string>
#include <vector>

class GatherReport;
class ToolLogGuard;

/// Files that tell a report which logs could not be listed or looked at, and how far each was read,
/// and that keep the tool's own log in bounds. Else they do and raise what the files behind them
/// do.
class WatchedFiles final : public FileSystem {
public:
    /// All of these outlive it, and the readers and writers that it opened.
    WatchedFiles(FileSystem& files, GatherReport& report, ToolLogGuard& toolLog)
        : files_(files), report_(report), toolLog_(toolLog)
    {}

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
    FileSystem& files_;
    GatherReport& report_;
    ToolLogGuard& toolLog_;
};
