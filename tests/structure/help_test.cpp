#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "core/string_table.h"
#include "support/places.h"

namespace {

using Pages = std::map<std::string, std::string>;

const std::filesystem::path folder = std::filesystem::path(checkout::data) / "help";

std::string contentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The HTML pages of the manual by file name.
Pages readPages()
{
    Pages pages;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".html") continue;
        pages[entry.path().filename().string()] = contentOf(entry.path());
    }
    return pages;
}

/// What the first group of `pattern` matches in `text`, in order.
std::vector<std::string> allMatches(const std::string& text, const std::regex& pattern)
{
    std::vector<std::string> found;
    for (std::sregex_iterator match(text.begin(), text.end(), pattern), end; match != end;
         ++match) {
        found.push_back((*match)[1]);
    }
    return found;
}

std::vector<std::string> linksOf(const std::string& page)
{
    static const std::regex link("(?:href|src)=\"([^\"]*)\"");
    return allMatches(page, link);
}

std::vector<std::string> anchorsOf(const std::string& page)
{
    static const std::regex anchor(" id=\"([^\"]*)\"");
    return allMatches(page, anchor);
}

/// The file part of a link; a bare anchor lies in the page itself.
std::string targetOf(const std::string& link, const std::string& from)
{
    const auto file = link.substr(0, link.find('#'));
    return file.empty() ? from : file;
}

struct Topic {
    int number = 0;
    std::string page;
};

std::vector<Topic> readTopics()
{
    std::vector<Topic> topics;
    std::istringstream lines(contentOf(folder / "topics.txt"));
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.front() == '#') continue;
        Topic topic;
        std::istringstream fields(line);
        std::string rest;
        EXPECT_TRUE(fields >> topic.number >> topic.page) << line;
        EXPECT_FALSE(fields >> rest) << line;
        topics.push_back(topic);
    }
    return topics;
}

/// Text as a reader sees it: blanks and line ends as one blank.
std::string normalised(const std::string& text)
{
    static const std::regex space("\\s+");
    return std::regex_replace(text, space, " ");
}

/// Every text that the tool shows on a control or in its tree.
std::set<std::string> interfaceTexts()
{
    std::set<std::string> texts = {// the console's own words
                                   "Apply", "Back", "Cancel", "Finish", "Next", "Refresh",
                                   // texts that are the same in every language
                                   "Change Orvan Event Log Language", "Open Log File", "Orvan Logs",
                                   "Processes"};
    for (int id = firstTextId; id <= lastTextId; ++id) texts.emplace(englishText(TextId{id}));
    return texts;
}

TEST(HelpManual, HasEveryPageAndPlaceThatItLinksTo)
{
    const auto pages = readPages();
    ASSERT_FALSE(pages.empty());
    for (const auto& [name, page] : pages) {
        for (const auto& link : linksOf(page)) {
            const auto target = targetOf(link, name);
            EXPECT_TRUE(std::filesystem::is_regular_file(folder / target)) << name << ": " << link;
            const auto mark = link.find('#');
            if (mark == std::string::npos || pages.count(target) == 0) continue;
            const auto anchors = anchorsOf(pages.at(target));
            EXPECT_EQ(1, std::count(anchors.begin(), anchors.end(), link.substr(mark + 1)))
                << name << ": " << link;
        }
    }
}

TEST(HelpManual, LeadsFromItsContentsToEveryPage)
{
    const auto pages = readPages();
    std::set<std::string> reached;
    std::vector<std::string> open = {"index.html"};
    while (!open.empty()) {
        const auto name = open.back();
        open.pop_back();
        if (pages.count(name) == 0 || !reached.insert(name).second) continue;
        for (const auto& link : linksOf(pages.at(name))) open.push_back(targetOf(link, name));
    }
    for (const auto& [name, page] : pages) EXPECT_EQ(1u, reached.count(name)) << name;
}

TEST(HelpTopics, AreNumberedUpwardsAndLeadToPages)
{
    int last = 0;
    for (const auto& topic : readTopics()) {
        EXPECT_GT(topic.number, last) << topic.page;
        EXPECT_TRUE(std::filesystem::is_regular_file(folder / topic.page)) << topic.page;
        last = topic.number;
    }
    EXPECT_GT(last, 0);
}

TEST(HelpTopics, NameEveryPageOnce)
{
    std::multiset<std::string> named;
    for (const auto& topic : readTopics()) named.insert(topic.page);
    std::multiset<std::string> pages;
    for (const auto& [name, page] : readPages()) pages.insert(name);

    EXPECT_EQ(pages, named);
}

TEST(HelpPage, HasOneHeadingATitleAndTheStyleSheet)
{
    for (const auto& [name, page] : readPages()) {
        static const std::regex heading("<h1>([^<]+)</h1>");
        static const std::regex title("<title>([^<]+) - Orvan Diagnostic Tool</title>");
        EXPECT_EQ(1u, allMatches(page, heading).size()) << name;
        EXPECT_EQ(1u, allMatches(page, title).size()) << name;
        EXPECT_NE(std::string::npos, page.find("<meta charset=\"utf-8\">")) << name;
        const auto links = linksOf(page);
        EXPECT_EQ(1, std::count(links.begin(), links.end(), "help.css")) << name;
    }
}

TEST(HelpPage, ClosesWhatItOpens)
{
    static const std::regex tag("<(/?[a-z][a-z0-9]*)");
    static const std::set<std::string> alone = {"br", "link", "meta"};
    for (const auto& [name, page] : readPages()) {
        std::vector<std::string> open;
        for (const auto& found : allMatches(page, tag)) {
            if (alone.count(found) != 0) continue;
            if (found.front() != '/') {
                open.push_back(found);
                continue;
            }
            ASSERT_FALSE(open.empty()) << name << ": <" << found << ">";
            ASSERT_EQ("/" + open.back(), found) << name;
            open.pop_back();
        }
        EXPECT_TRUE(open.empty()) << name;
    }
}

TEST(HelpPage, CallsControlsByTheTextsThatTheToolShows)
{
    const auto texts = interfaceTexts();
    std::size_t checked = 0;
    for (const auto& [name, page] : readPages()) {
        static const std::regex control("<span class=\"ui\">([^<]*)</span>");
        for (const auto& text : allMatches(page, control)) {
            EXPECT_EQ(1u, texts.count(normalised(text))) << name << ": " << text;
            ++checked;
        }
    }
    EXPECT_GT(checked, 0u);
}

} // namespace
