#include "sample/sample_server.h"

#include "runtime/run_time_error.h"
#include "sample/event_logs.h"
#include "sample/log_writer.h"
#include "sample/server_files.h"
#include "sample/traffic.h"
#include "system/machine_path.h"

#include <algorithm>
#include <fstream>
#include <string_view>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t fewestLines = 100;
constexpr std::size_t linesBetweenTellings = 1000;

fs::path targetOf(const SampleOptions& options)
{
    fs::path target = fs::absolute(filePathOf(options.folder)).lexically_normal();
    if (!target.has_filename()) target = target.parent_path();
    return target;
}

void refuseUnlessFree(const fs::path& target)
{
    std::error_code failure;
    if (!fs::is_directory(target.parent_path(), failure))
        throw RunTimeError(runTimeErrors::pathNotFound,
                           "the folder " + shownPathOf(machineTextOf(target.parent_path())) +
                               " does not exist");
    if (!fs::exists(fs::symlink_status(target, failure))) return;
    if (!fs::is_directory(target, failure) || !fs::is_empty(target, failure) || failure)
        throw RunTimeError(runTimeErrors::fileAlreadyExists,
                           shownPathOf(machineTextOf(target)) +
                               " is already there; choose another folder");
}

/// The folder that the sample is made in. Unless it was kept, it goes again.
class PartialFolder {
public:
    explicit PartialFolder(const fs::path& target) : path_(fs::path(target) += ".partial")
    {
        std::error_code failure;
        if (!fs::create_directory(path_, failure))
            throw RunTimeError(
                failure ? runTimeErrors::pathFileAccess : runTimeErrors::fileAlreadyExists,
                failure ? "cannot make the folder " + shownPathOf(machineTextOf(path_))
                        : shownPathOf(machineTextOf(path_)) + " is in the way; remove it first");
    }
    ~PartialFolder()
    {
        std::error_code ignored;
        if (!path_.empty()) fs::remove_all(path_, ignored);
    }
    PartialFolder(const PartialFolder&) = delete;
    PartialFolder& operator=(const PartialFolder&) = delete;

    const fs::path& path() const { return path_; }

    void keepAs(const fs::path& target)
    {
        std::error_code failure;
        fs::rename(path_, target, failure);
        if (failure)
            throw RunTimeError(runTimeErrors::pathFileAccess,
                               "cannot move the finished sample to " +
                                   shownPathOf(machineTextOf(target)));
        path_.clear();
    }

private:
    fs::path path_;
};

void tell(const SampleOptions& options, double done)
{
    if (options.onProgress) options.onProgress(done);
}

void writeLogs(const fs::path& folder, const std::vector<sample::LogPeriod>& plan,
               const SampleOptions& options, sample::Random& random)
{
    fs::create_directories(folder);
    sample::LogWriter writer(folder, plan, options.logFields == LogFields::extended);
    const std::size_t lines = std::max(options.lines, fewestLines);
    std::size_t written = 0; // records of data files among them, so that the end comes early
    sample::Traffic traffic(random, plan, lines, [&](const sample::LogLine& line) {
        writer.write(line);
        if (++written % linesBetweenTellings == 0)
            tell(options, std::min(1.0, static_cast<double>(written) / static_cast<double>(lines)));
    });
    traffic.run();
    writer.close();
}

void dateFolders(const fs::path& site)
{
    for (const auto& entry : fs::recursive_directory_iterator(site))
        if (entry.is_directory()) sample::setModified(entry.path(), sample::coverageEnd);
    sample::setModified(site, sample::coverageEnd);
}

void fill(const fs::path& site, const SampleOptions& options)
{
    sample::ServerIdentity identity;
    identity.logFields = options.logFields;
    sample::Random random(options.seed);
    const auto plan = sample::drawLogPlan(random);

    sample::writeServerFiles(site, filePathOf(options.dataFolder), identity, plan);
    sample::writeDirectoryDatabase(site, filePathOf(options.dataFolder));
    sample::writeEventLogs(site / "eventlogs", identity.computer, random);
    writeLogs(sample::logFolder(site), plan, options, random);
    dateFolders(site);
}

} // namespace

void makeSampleServer(const SampleOptions& options)
{
    try {
        const fs::path target = targetOf(options);
        refuseUnlessFree(target);
        PartialFolder partial(target);
        fill(partial.path(), options);
        tell(options, 1);
        partial.keepAs(target);
    } catch (const fs::filesystem_error& error) {
        throw RunTimeError(runTimeErrors::deviceIo, error.what());
    }
}

bool isSampleServer(const std::string& siteFolder)
{
    constexpr std::string_view mark = "; The sample server.";
    std::string first;
    std::ifstream settings(filePathOf(siteFolder) / "site.ini", std::ios::binary);
    std::getline(settings, first);
    return std::string_view(first).substr(0, mark.size()) == mark;
}
