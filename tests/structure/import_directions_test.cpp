#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <map>
#include <set>

namespace {

using Layers = std::set<std::string>;

const Layers base = {"runtime", "platform"};
const Layers upToCore = {"runtime", "platform", "core"};
const Layers upToTraces = {"runtime", "platform", "core", "server", "logreader", "traces"};

/// What each folder may include besides itself.
const std::map<std::string, Layers> allowed = {
    {"runtime", {}},
    {"platform", {"runtime"}},
    {"core", base},
    {"server", upToCore},
    {"logreader", upToCore},
    {"traces", {"runtime", "platform", "core", "server", "logreader"}},
    {"gather", upToTraces},
    {"wizards", {"runtime", "platform", "core", "server", "logreader", "traces", "gather"}},
    {"settings", {"runtime", "platform", "core", "server", "logreader", "traces", "gather"}},
    {"shell",
     {"runtime", "platform", "core", "server", "logreader", "traces", "gather", "wizards",
      "settings"}},
    {"cabmaker", {"runtime"}},
    {"backends/portable", base},
    {"backends/jet", base},
    {"backends/windows", base},
};

const Layers core = {"runtime", "platform", "core",    "server",   "logreader",
                     "traces",  "gather",   "wizards", "settings", "shell"};

bool isProjectInclude(const Include& include)
{
    return include.quoted && include.target.find('/') != std::string::npos;
}

TEST(ImportDirections, EveryFolderIncludesOnlyWhatItMayKnow)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src")) {
        const std::string from = layerOf(file);
        if (from.rfind("hosts/", 0) == 0) continue;
        const auto rule = allowed.find(from);
        ASSERT_NE(rule, allowed.end()) << file << " lies in a folder without a rule";
        for (const auto& include : includesOf(file)) {
            if (!isProjectInclude(include)) continue;
            const std::string to = layerOf(include.target);
            if (to != from && rule->second.count(to) == 0)
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
            const bool host = to.rfind("hosts/", 0) == 0 && to != "hosts/common";
            if (isProjectInclude(include) && host && to != layerOf(file))
                violations.push_back(file + " includes " + include.target);
        }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(ImportDirections, WhatTheHostsShareUsesTheStandardLibraryAlone)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src/hosts/common"))
        for (const auto& include : includesOf(file))
            if (!include.quoted && include.target.find_first_of("./") != std::string::npos)
                violations.push_back(file + " includes <" + include.target + ">");
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
