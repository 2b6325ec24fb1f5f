#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

/// Source files of a folder that no CMakeLists.txt or .cmake file beside or above them names.
std::vector<std::string> unlisted(const std::string& top)
{
    namespace fs = std::filesystem;
    std::vector<std::string> missing;
    for (const auto& file : sourceFiles(top)) {
        const fs::path path = file;
        if (path.extension() != ".cpp") continue;
        bool listed = false;
        for (fs::path folder = path.parent_path(); !listed && !folder.empty();
             folder = folder.parent_path()) {
            const std::string name = path.lexically_relative(folder).generic_string();
            listed = textOf((folder / "CMakeLists.txt").generic_string()).find(name) !=
                     std::string::npos;
        }
        if (!listed) missing.push_back(file);
    }
    return missing;
}

TEST(BuiltFiles, EverySourceFileIsInABuildList)
{
    EXPECT_THAT(unlisted("src"), testing::IsEmpty());
}

TEST(BuiltFiles, EveryTestFileIsInABuildList)
{
    EXPECT_THAT(unlisted("tests"), testing::IsEmpty());
}

} // namespace
