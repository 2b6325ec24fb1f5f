#include "end_to_end/program.h"
#include "support/places.h"

#include <gmock/gmock.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>

namespace {

std::set<std::string> longOptions(const std::string& text)
{
    static const std::regex option("--[a-z][a-z-]+");
    return {std::sregex_token_iterator(text.begin(), text.end(), option),
            std::sregex_token_iterator()};
}

/// A program's manual page as the reader sees it: a hyphen that is not broken is written `\-`.
std::string manualPage(const std::string& program)
{
    std::ifstream file(std::string(checkout::packaging) + "/" + program + ".1");
    const std::string source{std::istreambuf_iterator<char>(file), {}};
    return std::regex_replace(source, std::regex(R"(\\-)"), "-");
}

void expectSameOptions(const std::string& path, const std::string& program)
{
    const Outcome help = runProgram({path, "--help"});
    ASSERT_EQ(0, help.status) << help.err;
    auto told = longOptions(help.out);
    told.erase("--development-host"); // for who builds the tool
    EXPECT_GT(told.size(), 5u);
    EXPECT_EQ(told, longOptions(manualPage(program)));
}

TEST(WindowManuals, HaveTheOptionsThatTheProgramsTell)
{
    expectSameOptions(built::console, "orvandiag-console");
    expectSameOptions(built::viewer, "orvandiag-viewer");
}

} // namespace
