#include "structure/source_tree.h"

#include <gmock/gmock.h>

#include <regex>

namespace {

/// Whether a header has nothing but macros, as one that the resource compiler reads.
bool declaresNothing(const std::string& header)
{
    static const std::regex lines("((#|//)[^\n]*\n|\n)*");
    return std::regex_match(header, lines);
}

/// Whether a header declares all that is its own within the namespace. Before it may stand what
/// others define, behind it nothing.
bool keepsTo(const std::string& space, const std::string& header)
{
    if (declaresNothing(header)) return true;
    const std::regex begin("\nnamespace " + space + "(::\\w+)* \\{\n");
    const std::regex end("\n\\} // namespace " + space + "(::\\w+)*\n$");
    const std::regex definition("\n(class|struct|enum|constexpr|inline) [^;]*\\{");
    std::smatch found;
    if (!std::regex_search(header, found, begin)) return false;
    return !std::regex_search(found.prefix().str(), definition) && std::regex_search(header, end);
}

std::vector<std::string> headersOutside(const std::string& folder, const std::string& space)
{
    std::vector<std::string> outside;
    for (const auto& file : sourceFiles(folder))
        if (file.ends_with(".h") && !keepsTo(space, textOf(file))) outside.push_back(file);
    return outside;
}

TEST(Namespaces, AProgramsOwnNamesStandInItsNamespace)
{
    EXPECT_THAT(headersOutside("src/hosts/cli", "cli"), testing::IsEmpty());
    EXPECT_THAT(headersOutside("src/hosts/desktop", "desktop"), testing::IsEmpty());
    EXPECT_THAT(headersOutside("src/hosts/mmc", "mmc"), testing::IsEmpty());
    EXPECT_THAT(headersOutside("src/hosts/viewer", "viewer"), testing::IsEmpty());
}

TEST(Namespaces, WhatStandsOutsideOfOneIsSeen)
{
    EXPECT_TRUE(keepsTo("cli", "#pragma once\n\nnamespace cli {\n\nclass A {};\n\n"
                               "} // namespace cli\n"));
    EXPECT_TRUE(
        keepsTo("cli", "\nclass Q;\n\nnamespace cli::names {\n} // namespace cli::names\n"));
    EXPECT_TRUE(keepsTo("cli", "#pragma once\n\n// A number.\n#define NUMBER 1\n"));
    EXPECT_FALSE(keepsTo("cli", "#define NUMBER 1\nclass A {};\n"));
    EXPECT_FALSE(keepsTo("cli", "\nclass A {};\n\nnamespace cli {\n} // namespace cli\n"));
    EXPECT_FALSE(keepsTo("cli", "\nnamespace cli {\n} // namespace cli\n\nclass A {};\n"));
    EXPECT_FALSE(keepsTo("cli", "\nclass A {};\n"));
}

} // namespace
