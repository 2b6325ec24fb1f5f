#include "backends/portable/tool_folder.h"

#include "backends/portable/file_pattern.h"
#include "backends/portable/folder_listing.h"
#include "backends/portable/posix_errors.h"
#include "backends/portable/utf8.h"
#include "backends/portable/whole_file.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <iterator>
#include <set>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace {

/// What lies beside the tool at run time.
constexpr std::string_view suppliedNames[] = {
    "ZMKXML", "blankWPNDB.mdb", "cabmaker.exe", "ZMKbrandingres_*", "OrvanDiagnosticTool*", "help",
};

bool isSupplied(std::string_view name)
{
    return std::any_of(
        std::begin(suppliedNames), std::end(suppliedNames),
        [&](std::string_view pattern) { return FilePattern(pattern).matches(name); });
}

bool isFolder(const std::string& path)
{
    struct stat facts {};
    return ::stat(path.c_str(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

void makeFolders(const std::string& path)
{
    if (path.empty() || isFolder(path)) return;
    makeFolders(path.substr(0, path.rfind('/')));
    if (::mkdir(path.c_str(), 0777) != 0 && errno != EEXIST)
        throw posixError(errno, runTimeErrors::pathNotFound);
}

void copyFolder(const std::string& source, const std::string& target)
{
    makeFolders(target);
    for (const auto& name : namesInFolder(source)) {
        const auto from = pathIn(source, name);
        if (isFolder(from))
            copyFolder(from, pathIn(target, name));
        else
            copyWholeFile(from, pathIn(target, name));
    }
}

/// Copies under another name and moves it into place, so that a folder too appears whole.
void supply(const std::string& source, const std::string& target)
{
    if (!isFolder(source)) {
        copyWholeFile(source, target);
        return;
    }
    const auto temporary = target + ".new-" + std::to_string(::getpid());
    try {
        copyFolder(source, temporary);
        if (::rename(temporary.c_str(), target.c_str()) == 0) return;
        if (errno != EEXIST && errno != ENOTEMPTY)
            throw posixError(errno, runTimeErrors::pathNotFound);
        removeWholeFolder(temporary); // another program has supplied it
    } catch (const RunTimeError&) {
        if (isFolder(temporary)) removeWholeFolder(temporary);
        throw;
    }
}

} // namespace

std::map<std::string, std::string> lackingInToolFolder(const std::string& toolFolder,
                                                       const std::string& installedData)
{
    std::map<std::string, std::string> lacking;
    try {
        std::set<std::string> there;
        if (isFolder(toolFolder))
            for (const auto& name : namesInFolder(toolFolder)) there.insert(foldCase(name));
        if (!isFolder(installedData)) return lacking;
        for (const auto& name : namesInFolder(installedData))
            if (isSupplied(name) && there.count(foldCase(name)) == 0)
                lacking.emplace(name, pathIn(installedData, name));
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::permissionDenied) throw;
        lacking.clear();
    }
    return lacking;
}

void supplyToolFolder(const std::string& toolFolder, const std::string& installedData)
{
    try {
        makeFolders(toolFolder);
        for (const auto& [name, source] : lackingInToolFolder(toolFolder, installedData))
            supply(source, pathIn(toolFolder, name));
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::permissionDenied) throw;
    }
}
