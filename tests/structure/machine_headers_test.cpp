#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <set>

namespace {

/// The libraries' own headers. Every other header in angle brackets with an ending is the
/// machine's.
const std::set<std::string> libraries = {"iconv.h",   "sql.h",      "sqlext.h",
                                         "sqlite3.h", "sqlucode.h", "zlib.h"};

/// Windows' own headers have to come before those of ODBC, which is a library everywhere else.
bool isNeededByALibrary(const std::string& file, const Include& include)
{
    return file == "src/backends/odbc/odbc_api.h" && include.target == "windows.h";
}

bool isOfTheMachine(const Include& include)
{
    return !include.quoted && include.target.ends_with(".h") &&
           !include.target.starts_with("libxml/") && libraries.count(include.target) == 0;
}

bool isCodeForOneSystem(const std::string& file)
{
    return file.starts_with("src/system/posix/") || file.starts_with("src/system/windows/") ||
           file.starts_with("src/backends/windows/");
}

TEST(MachineHeaders, AreIncludedWhereTheCodeForOneSystemLies)
{
    std::vector<std::string> violations;
    std::size_t found = 0;
    for (const auto& file : sourceFiles("src"))
        for (const auto& include : includesOf(file)) {
            if (!isOfTheMachine(include)) continue;
            if (isCodeForOneSystem(file))
                ++found;
            else if (!isNeededByALibrary(file, include))
                violations.push_back(file + " includes <" + include.target + ">");
        }
    EXPECT_THAT(violations, testing::IsEmpty());
    EXPECT_LT(0u, found);
}

TEST(MachineHeaders, CodeForOneSystemIsIncludedByItsOwnAlone)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src"))
        for (const auto& include : includesOf(file)) {
            const std::string target = "src/" + include.target;
            const auto folder = target.substr(0, target.rfind('/') + 1);
            if (include.quoted && isCodeForOneSystem(target) && !file.starts_with(folder))
                violations.push_back(file + " includes " + include.target);
        }
    EXPECT_THAT(violations, testing::IsEmpty());
}

TEST(MachineHeaders, NoHeaderNamesTheTypesAndFlagsOfOneSystem)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src")) {
        if (isCodeForOneSystem(file) || !file.ends_with(".h")) continue;
        const std::string text = textOf(file);
        for (const char* name : {"mode_t", "pid_t", "off_t", "ssize_t", "struct stat", "O_RDONLY",
                                 "O_CREAT", "HANDLE ", "DWORD"})
            if (text.find(name) != std::string::npos) violations.push_back(file + " has " + name);
    }
    EXPECT_THAT(violations, testing::IsEmpty());
}

} // namespace
