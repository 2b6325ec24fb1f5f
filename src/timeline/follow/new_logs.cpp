#include "timeline/follow/new_logs.h"

#include "runtime/run_time_error.h"
#include "system/file_facts.h"
#include "system/root_folder.h"
#include "text/utf8.h"
#include "timeline/sources/log_guess.h"

#include <algorithm>

namespace timeline {

namespace {

std::vector<std::string> sortedNamesIn(const std::string& folder)
{
    try {
        std::vector<std::string> names = RootFolder(folder).names("");
        std::sort(names.begin(), names.end());
        return names;
    } catch (const RunTimeError&) {
        return {}; // it may come back
    }
}

} // namespace

NewLogs::Folder& NewLogs::watched(const std::string& path)
{
    const auto [place, isNew] = folders_.try_emplace(path);
    if (isNew)
        for (std::string& name : sortedNamesIn(path)) place->second.known.insert(std::move(name));
    return place->second;
}

void NewLogs::watchFolder(const std::string& folder)
{
    watched(folder).takesAll = true;
}

void NewLogs::watchProcessOf(const std::string& log)
{
    const LogName name = readLogName(lastNameOf(log));
    if (name.process.empty()) return;
    watched(folderPathOf(log)).processes.insert(foldCase(name.process));
}

std::vector<std::string> NewLogs::come()
{
    std::vector<std::string> paths;
    for (auto& [path, folder] : folders_) {
        for (const std::string& name : sortedNamesIn(path)) {
            if (!folder.known.insert(name).second) continue;
            const LogName told = readLogName(name);
            if (!told.isLog || told.isFormattedCopy) continue;
            if (!folder.takesAll && !folder.processes.contains(foldCase(told.process))) continue;
            const std::string log = path + "/" + name;
            const auto facts = unfollowedFactsOf(log);
            if (facts && facts->kind == FileKind::file) paths.push_back(log);
        }
    }
    return paths;
}

} // namespace timeline
