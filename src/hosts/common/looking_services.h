#pragma once

#include "hosts/common/registry_reader.h"
#include "platform/event_reporter.h"
#include "platform/file_system.h"
#include "platform/platform.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

/// A registry that is read alone. The tool is told that its keys are made and its values written.
class LookingRegistry final : public RegistryReader {
public:
    explicit LookingRegistry(Registry& registry) : RegistryReader(registry) {}

    std::optional<bool> createKey(std::uint32_t hive, const std::string& path) override;
    bool setValue(std::uint32_t hive, const std::string& path, const std::string& name,
                  const RegistryValue& value) override;
};

/// An event reporter that formats lines and takes events without reporting them.
class LookingEventReporter final : public EventReporter {
public:
    explicit LookingEventReporter(EventReporter& reporter) : reporter_(reporter) {}

    void startUp() override { reporter_.startUp(); }
    void completeStartUp() override { reporter_.completeStartUp(); }
    std::int32_t registerTool(const std::string& moduleName) override;
    void report(const std::string& source, std::int32_t handle, int type, std::int32_t id,
                const std::vector<std::string>& inserts) override;
    void formatTraceLine(std::string_view rawLine, std::string& formatted) override;
    std::string_view timeOfSoundLine(std::string_view rawLine) const override;

private:
    EventReporter& reporter_;
};

/// Files that are read alone. What the tool writes to its own log goes nowhere, and it is told that
/// it was written; the server's files may not be written (70). What lies elsewhere stays as it is:
/// logs can be gathered from a server that must not be touched.
class LookingFileSystem final : public FileSystem {
public:
    /// Whether a path is one of the server's. May raise what `FileSystem` raises.
    using IsServers = std::function<bool(const std::string& path)>;

    /// `toolFolder` is that of the tool's module; its log lies below it.
    LookingFileSystem(FileSystem& files, const std::string& toolFolder, IsServers isServers);

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
    bool isToolLog(const std::string& path) const;
    bool mayWrite(const std::string& path) const;

    FileSystem& files_;
    std::string logFolder_;
    IsServers isServers_;
};

/// The services of a tool that looks at a server and leaves it as it was: no event, no log of its
/// own, no registry value. The tool works as always, and is told that it wrote.
///
/// The directory database is as it was given: one that is only read has to be opened so. What a
/// gather starts and exports is passed through, and the machine refuses it where nobody may write.
class LookingServices {
public:
    /// `services` and what they refer to outlive this.
    LookingServices(const Platform& services, LookingFileSystem::IsServers isServers);

    LookingServices(const LookingServices&) = delete;
    LookingServices& operator=(const LookingServices&) = delete;

    Platform& platform() { return platform_; }

private:
    LookingFileSystem files_;
    LookingRegistry registry_;
    LookingEventReporter eventReporter_;
    Platform platform_;
};
