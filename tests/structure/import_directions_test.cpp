#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <map>
#include <optional>
#include <set>

namespace {

using Layers = std::set<std::string>;

/// The house from the ground up: a folder may know those of the storeys under its own.
const std::vector<Layers> storeys = {
    {"runtime"}, {"text", "tracelines"},  {"platform"}, {"controls"}, {"console"},
    {"core"},    {"logreader", "server"}, {"traces"},   {"gather"},   {"wizards", "settings"},
    {"shell"},
};

const Layers core = {"runtime", "text",    "tracelines", "platform", "controls",
                     "console", "core",    "logreader",  "server",   "traces",
                     "gather",  "wizards", "settings",   "shell"};

/// What stands beside the house, and what each of it may know. The machine lies there: no storey
/// reaches it but through the services of `platform`.
const std::map<std::string, Layers> annexes = {
    {"system", {"runtime", "text"}},
    {"drives", {"runtime", "text", "system"}},
    {"cabmaker", {"runtime", "text", "system", "drives"}},
    {"backends/common", {"runtime", "text", "system", "platform"}},
    {"backends/xml", {"runtime", "text", "system", "platform"}},
    {"backends/site",
     {"runtime", "text", "tracelines", "system", "drives", "platform", "backends/common",
      "backends/xml"}},
    {"backends/jet", {"runtime", "text", "tracelines", "system", "platform"}},
    {"backends/odbc", {"runtime", "text", "platform"}},
    {"backends/cabinet", {"runtime", "text", "platform"}},
    {"backends/windows",
     {"runtime", "text", "tracelines", "system", "platform", "backends/common"}},
    {"timeline", {"runtime", "text", "tracelines", "system", "platform", "core", "logreader"}},
    {"sample", {"runtime", "text", "tracelines", "system", "drives", "platform", "backends/site"}},
};

/// What a folder may include besides itself; nothing for one that has no rule.
std::optional<Layers> allowedFor(const std::string& folder)
{
    if (const auto annex = annexes.find(folder); annex != annexes.end()) return annex->second;
    Layers below;
    for (const auto& storey : storeys) {
        if (storey.count(folder) != 0) return below;
        below.insert(storey.begin(), storey.end());
    }
    return std::nullopt;
}

bool isProjectInclude(const Include& include)
{
    return include.quoted && include.target.find('/') != std::string::npos;
}

/// Whether a file is of what windows alone share, which is drawn with a library.
bool isOfWindows(const std::string& file)
{
    return file.find("hosts/common/look/") != std::string::npos ||
           file.find("hosts/common/filters/") != std::string::npos;
}

TEST(ImportDirections, EveryFolderIncludesOnlyWhatItMayKnow)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src")) {
        const std::string from = layerOf(file);
        if (from.rfind("hosts/", 0) == 0) continue;
        const auto allowed = allowedFor(from);
        ASSERT_TRUE(allowed) << file << " lies in a folder without a rule";
        for (const auto& include : includesOf(file)) {
            if (!isProjectInclude(include)) continue;
            const std::string to = layerOf(include.target);
            if (to != from && allowed->count(to) == 0)
                violations.push_back(file + " includes " + include.target);
        }
    }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(ImportDirections, AHostIncludesNoOtherHostButWhatAllShare)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src/hosts"))
        for (const auto& include : includesOf(file)) {
            const std::string to = layerOf(include.target);
            const bool host =
                to.rfind("hosts/", 0) == 0 && to != "hosts/common" && to != "hosts/machine";
            if (isProjectInclude(include) && host && to != layerOf(file))
                violations.push_back(file + " includes " + include.target);
        }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(ImportDirections, WhatTheHostsShareUsesTheStandardLibraryAlone)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src/hosts/common"))
        for (const auto& include : includesOf(file)) {
            const bool window = isOfWindows(file);
            const bool library =
                !include.quoted && include.target.find_first_of("./") != std::string::npos;
            if (library && !window)
                violations.push_back(file + " includes <" + include.target + ">");
            if (!window && include.quoted && isOfWindows(include.target))
                violations.push_back(file + " includes " + include.target);
        }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(ImportDirections, TheCoreUsesTheStandardLibraryAlone)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src")) {
        if (core.count(layerOf(file)) == 0) continue;
        for (const auto& include : includesOf(file))
            if (!include.quoted && include.target.find_first_of("./") != std::string::npos)
                violations.push_back(file + " includes <" + include.target + ">");
    }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(ImportDirections, IncludesOfTheProjectAreWrittenFromTheSourceFolder)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src"))
        for (const auto& include : includesOf(file))
            if (include.quoted && !isProjectInclude(include))
                violations.push_back(file + " includes \"" + include.target + "\"");
    EXPECT_THAT(violations, testing::IsEmpty());
}

} // namespace
