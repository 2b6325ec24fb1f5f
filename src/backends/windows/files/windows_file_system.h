#pragma once

#include "platform/file_system.h"

#include <string>

/// The files of the machine itself, as the user may reach them.
///
/// Reading never keeps another program from writing, renaming or removing the file. The current
/// folders are those of the process. What is a device and no file raises 70. File times are local,
/// by the rules of their own year.
class WindowsFileSystem final : public FileSystem {
public:
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
};
