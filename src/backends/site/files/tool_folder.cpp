#include "backends/site/files/tool_folder.h"

#include "backends/common/file_pattern.h"
#include "backends/common/folder_listing.h"
#include "platform/tool_files.h"
#include "runtime/run_time_error.h"
#include "system/process.h"
#include "system/whole_file.h"
#include "text/utf8.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string_view>

namespace {

/// What lies beside the tool at run time.
constexpr std::string_view suppliedNames[] = {
    toolFiles::definitionsFolder, toolFiles::blankDatabase, toolFiles::cabinetMaker,
    "ZMKbrandingres_*.txt",       "OrvanDiagnosticTool*",   "help",
};

bool isSupplied(std::string_view name)
{
    return std::any_of(
        std::begin(suppliedNames), std::end(suppliedNames),
        [&](std::string_view pattern) { return FilePattern(pattern).matches(name); });
}

constexpr std::string_view temporaryMark = ".new-";

std::string below(const std::string& folder, const std::string& name)
{
    return folder.empty() ? name : folder + "/" + name;
}

void copyFolder(const RootFolder& source, const RootFolder& root, const std::string& target)
{
    root.makeFolders(target);
    for (const auto& name : sortedNames(source.names(""))) {
        if (const auto folder = source.belowIfThere(name))
            copyFolder(*folder, root, below(target, name));
        else
            copyWholeFile(source.openFile(name, forReading, runTimeErrors::fileNotFound), root,
                          below(target, name));
    }
}

/// Copies under another name and moves it into place, so that a folder too appears whole.
void supply(const RootFolder& data, const std::string& name, const SitePlace& tool)
{
    const std::string target = below(tool.path, name);
    const auto source = data.belowIfThere(name);
    if (!source) {
        copyWholeFile(data.openFile(name, forReading, runTimeErrors::fileNotFound), tool.root,
                      target);
        return;
    }
    const std::string temporary =
        target + std::string(temporaryMark) + std::to_string(ownProcess());
    try {
        copyFolder(*source, tool.root, temporary);
        tool.root.rename(temporary, target);
    } catch (const RunTimeError& error) {
        if (tool.root.isFolder(temporary)) tool.root.removeFolder(temporary);
        if (error.number() != runTimeErrors::fileAlreadyExists) throw; // else another supplied it
    }
}

/// Removes what programs that were killed have left of folders that they were copying.
void sweepFolders(const SitePlace& tool)
{
    for (const auto& name : tool.root.names(tool.path)) {
        const auto mark = name.rfind(temporaryMark);
        if (mark == std::string::npos || !isSupplied(name.substr(0, mark))) continue;
        const std::string path = below(tool.path, name);
        const auto facts = tool.root.unfollowedFacts(path);
        if (facts && facts->kind == FileKind::folder &&
            isLeftBehind(name.substr(mark + temporaryMark.size()), *facts))
            tool.root.removeFolder(path);
    }
}

} // namespace

std::map<std::string, std::string> lackingInToolFolder(const SitePlace& toolFolder,
                                                       const std::string& installedData)
{
    std::map<std::string, std::string> lacking;
    if (installedData.empty()) return lacking;
    try {
        std::set<std::string> there;
        if (const auto folder = toolFolder.root.belowIfThere(toolFolder.path))
            for (const auto& name : sortedNames(folder->names(""))) there.insert(foldCase(name));
        const RootFolder machine("/", RootFolder::Bounds::machine);
        const auto data = machine.belowIfThere(installedData);
        if (!data) return lacking;
        for (const auto& name : sortedNames(data->names("")))
            if (isSupplied(name) && there.count(foldCase(name)) == 0)
                lacking.emplace(name, installedData + "/" + name);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::permissionDenied) throw;
        lacking.clear();
    }
    return lacking;
}

void supplyToolFolder(const SitePlace& toolFolder, const std::string& installedData)
{
    try {
        toolFolder.root.makeFolders(toolFolder.path);
        sweepReplacementFiles(toolFolder.root, toolFolder.path);
        sweepFolders(toolFolder);
        const auto lacking = lackingInToolFolder(toolFolder, installedData);
        if (lacking.empty()) return;
        const RootFolder data(installedData, RootFolder::Bounds::machine);
        for (const auto& entry : lacking) supply(data, entry.first, toolFolder);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::permissionDenied) throw;
    }
}
