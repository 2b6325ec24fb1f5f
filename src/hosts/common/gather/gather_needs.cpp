#include "hosts/common/gather/gather_needs.h"

#include "logreader/log_file_names.h"
#include "runtime/run_time_error.h"

#include <system_error>

namespace fs = std::filesystem;

std::vector<std::string> logsForFrames(const FileSystem& files, const std::string& folder)
{
    std::vector<std::string> logs;
    for (const char* pattern : {logFileNames::diagnosticLogs, logFileNames::dataFiles}) {
        try {
            for (std::string& name : files.matching(folder + "\\" + pattern))
                if (!logFileNames::isFormattedCopy(name)) logs.push_back(std::move(name));
        } catch (const RunTimeError&) {
            continue; // the gather itself says what it could not list
        }
    }
    return logs;
}

std::optional<FileInfo> logFacts(const FileSystem& files, const std::string& folder,
                                 const std::string& name)
{
    try {
        return files.file(folder + "\\" + name);
    } catch (const RunTimeError&) {
        return {};
    }
}

std::optional<std::int64_t> roomBelow(fs::path folder)
{
    std::error_code failed;
    while (!fs::exists(folder, failed) && folder.has_relative_path()) folder = folder.parent_path();
    const fs::space_info space = fs::space(folder, failed);
    if (failed) return {};
    return static_cast<std::int64_t>(space.available);
}
