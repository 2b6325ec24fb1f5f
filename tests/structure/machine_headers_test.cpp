#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <set>

namespace {

/// The libraries' own headers. Every other header in angle brackets with an ending is the
/// machine's.
const std::set<std::string> libraries = {
    "iconv.h", "mspack.h", "re2/filtered_re2.h", "toml++/toml.h", "re2/re2.h",
    "sql.h",   "sqlext.h", "sqlite3.h",          "sqlucode.h",    "zlib.h"};

/// Windows' own headers have to come before those of ODBC, which is a library everywhere else.
bool isNeededByALibrary(const std::string& file, const Include& include)
{
    return file == "src/backends/odbc/odbc_api.h" && include.target == "windows.h";
}

/// The instructions of a processor are the same under each system; the file does without them
/// where there is another one.
bool isOfAProcessor(const std::string& file, const Include& include)
{
    return file == "src/timeline/lines/byte_blocks.h" && include.target == "emmintrin.h";
}

bool isOfTheMachine(const Include& include)
{
    return !include.quoted && include.target.ends_with(".h") &&
           !include.target.starts_with("libxml/") && libraries.count(include.target) == 0;
}

/// The system that a file is written for; empty where it is for any.
std::string systemOf(const std::string& file)
{
    if (file.starts_with("src/system/posix/")) return "POSIX";
    for (const char* folder : {"src/system/windows/", "src/backends/windows/",
                               "src/hosts/machine/windows/", "src/hosts/mmc/"})
        if (file.starts_with(folder)) return "Windows";
    return "";
}

bool isCodeForOneSystem(const std::string& file)
{
    return !systemOf(file).empty();
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
            else if (!isNeededByALibrary(file, include) && !isOfAProcessor(file, include))
                violations.push_back(file + " includes <" + include.target + ">");
        }
    EXPECT_THAT(violations, testing::IsEmpty());
    EXPECT_LT(0u, found);
}

TEST(MachineHeaders, CodeForOneSystemIsIncludedByCodeForThatSystemAlone)
{
    std::vector<std::string> violations;
    for (const auto& file : sourceFiles("src"))
        for (const auto& include : includesOf(file)) {
            const std::string target = "src/" + include.target;
            if (include.quoted && isCodeForOneSystem(target) && systemOf(file) != systemOf(target))
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
