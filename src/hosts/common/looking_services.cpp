#include "hosts/common/looking_services.h"

#include "platform/host_module.h"
#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace {

constexpr const char* logFolderName = "LOGS";

/// A server keeps some hundred logs; past this many a list of them helps nobody and takes minutes.
constexpr std::size_t mostNamesToLookAt = 100'000;

/// Takes what is written to it until it is closed, and keeps none of it.
class DroppingWriter final : public TextWriter {
public:
    void write(std::string_view) override { requireOpen(); }
    void writeLine(std::string_view) override { requireOpen(); }
    void flush() override { requireOpen(); }
    void close() override { open_ = false; }

private:
    void requireOpen() const
    {
        if (!open_) throw RunTimeError(runTimeErrors::objectVariableNotSet);
    }

    bool open_ = true;
};

/// The services with those that write exchanged for others.
Platform exchanged(Platform services, FileSystem& files, Registry& registry,
                   EventReporter& eventReporter)
{
    return {files,
            registry,
            services.clock,
            services.timeZone,
            eventReporter,
            services.eventLogExporter,
            services.processes,
            services.workstation,
            services.module,
            services.languages,
            services.desktop,
            services.connection,
            services.xml,
            services.traceDatabases};
}

} // namespace

std::optional<bool> LookingRegistry::createKey(std::uint32_t hive, const std::string& path)
{
    return behind().keyExists(hive, path);
}

bool LookingRegistry::setValue(std::uint32_t hive, const std::string& path, const std::string&,
                               const RegistryValue&)
{
    return behind().keyExists(hive, path);
}

std::int32_t LookingEventReporter::registerTool(const std::string& moduleName)
{
    return reporter_.registerTool(moduleName);
}

void LookingEventReporter::report(const std::string&, std::int32_t, int, std::int32_t,
                                  const std::vector<std::string>&)
{}

void LookingEventReporter::formatTraceLine(std::string_view rawLine, std::string& formatted)
{
    reporter_.formatTraceLine(rawLine, formatted);
}

std::string_view LookingEventReporter::timeOfSoundLine(std::string_view rawLine) const
{
    return reporter_.timeOfSoundLine(rawLine);
}

LookingFileSystem::LookingFileSystem(FileSystem& files, const std::string& toolFolder,
                                     IsServers isServers)
    : files_(files), logFolder_(toolFolder), isServers_(std::move(isServers))
{
    if (logFolder_.empty() || logFolder_.back() != '\\') logFolder_ += '\\';
    logFolder_ += logFolderName;
}

bool LookingFileSystem::isToolLog(const std::string& path) const
{
    const std::size_t length = logFolder_.size();
    return equalIgnoringCase(path.substr(0, length), logFolder_) &&
           (path.size() == length || path[length] == '\\');
}

/// Whether a change goes to the files; false when it is passed over. Raises 70.
bool LookingFileSystem::mayWrite(const std::string& path) const
{
    if (isToolLog(path)) return false;
    if (isServers_(path)) throw RunTimeError(runTimeErrors::permissionDenied);
    return true;
}

bool LookingFileSystem::fileExists(const std::string& path) const
{
    return files_.fileExists(path);
}

bool LookingFileSystem::folderExists(const std::string& path) const
{
    return files_.folderExists(path);
}

FileInfo LookingFileSystem::file(const std::string& path) const
{
    return files_.file(path);
}

std::int64_t LookingFileSystem::folderSize(const std::string& path) const
{
    return files_.folderSize(path);
}

std::vector<FileInfo> LookingFileSystem::entries(const std::string& folder) const
{
    return files_.entries(folder);
}

std::vector<std::string> LookingFileSystem::matching(const std::string& pattern) const
{
    auto names = files_.matching(pattern);
    if (names.size() > mostNamesToLookAt)
        throw RunTimeError(runTimeErrors::outOfMemory, "More than 100,000 names match " + pattern);
    return names;
}

void LookingFileSystem::createFolder(const std::string& path)
{
    if (mayWrite(path)) files_.createFolder(path);
}

void LookingFileSystem::createPrivateFolder(const std::string& path)
{
    if (mayWrite(path)) files_.createPrivateFolder(path);
}

void LookingFileSystem::removeFolder(const std::string& path)
{
    if (mayWrite(path)) files_.removeFolder(path);
}

void LookingFileSystem::copyFile(const std::string& source, const std::string& target)
{
    if (mayWrite(target)) files_.copyFile(source, target);
}

void LookingFileSystem::deleteFile(const std::string& path)
{
    if (mayWrite(path)) files_.deleteFile(path);
}

void LookingFileSystem::clearAttributes(const std::string& path)
{
    if (mayWrite(path)) files_.clearAttributes(path);
}

std::unique_ptr<TextReader> LookingFileSystem::openForReading(const std::string& path) const
{
    return files_.openForReading(path);
}

std::unique_ptr<TextWriter> LookingFileSystem::openForAppending(const std::string& path)
{
    if (!mayWrite(path)) return std::make_unique<DroppingWriter>();
    return files_.openForAppending(path);
}

std::unique_ptr<TextWriter> LookingFileSystem::createTextFile(const std::string& path)
{
    if (!mayWrite(path)) return std::make_unique<DroppingWriter>();
    return files_.createTextFile(path);
}

std::string LookingFileSystem::specialFolder(SpecialFolder folder) const
{
    return files_.specialFolder(folder);
}

std::string LookingFileSystem::longPathName(const std::string& path) const
{
    return files_.longPathName(path);
}

std::string LookingFileSystem::driveName(const std::string& path) const
{
    return files_.driveName(path);
}

DiskSpace LookingFileSystem::diskSpace(const std::string& drive) const
{
    return files_.diskSpace(drive);
}

void LookingFileSystem::changeDrive(const std::string& drive)
{
    files_.changeDrive(drive);
}

void LookingFileSystem::changeFolder(const std::string& path)
{
    files_.changeFolder(path);
}

LookingServices::LookingServices(const Platform& services, LookingFileSystem::IsServers isServers)
    : files_(services.files, services.module.folder(), std::move(isServers)),
      registry_(services.registry), eventReporter_(services.eventReporter),
      platform_(exchanged(services, files_, registry_, eventReporter_))
{}
