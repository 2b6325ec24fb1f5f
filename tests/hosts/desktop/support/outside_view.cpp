#include "hosts/desktop/support/outside_view.h"

#include "end_to_end/program.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

namespace desktop {

nlohmann::json OutsideView::told(std::vector<std::string> words) const
{
    words.insert(words.begin(), {"--json", "--site", site_});
    const Outcome run = orvandiag(words);
    EXPECT_EQ(0, run.status) << run.err;
    return run.status == 0 ? run.json() : nlohmann::json();
}

std::string OutsideView::sql(const std::string& query) const
{
    const Outcome run = runProgram({"sqlite3", site_ + "/OrvanDirDb.sqlite", query});
    EXPECT_EQ(0, run.status) << run.err;
    return run.out.substr(0, run.out.find_last_not_of('\n') + 1);
}

std::map<std::string, int> OutsideView::words(const std::string& column) const
{
    std::map<std::string, int> words;
    std::istringstream rows(sql("SELECT Name, " + column + " FROM vw_LoggerDiagnosticGrid"));
    for (std::string row; std::getline(rows, row);) {
        const auto bar = row.rfind('|');
        words[row.substr(0, bar)] = std::stoi(row.substr(bar + 1));
    }
    EXPECT_FALSE(words.empty());
    return words;
}

std::string OutsideView::registryValue(const std::string& key, const std::string& name) const
{
    std::istringstream lines(text("registry.reg"));
    bool inKey = false;
    for (std::string line; std::getline(lines, line);) {
        if (!line.empty() && line.back() == '\r') line.pop_back();
        const std::string end = "\\" + key + "]";
        if (line.rfind('[', 0) == 0)
            inKey = line.size() > end.size() &&
                    line.compare(line.size() - end.size(), end.size(), end) == 0;
        const std::string head = "\"" + name + "\"=";
        if (inKey && line.rfind(head, 0) == 0) return line.substr(head.size());
    }
    return {};
}

int OutsideView::events(int number) const
{
    std::istringstream lines(text("eventlogs/Application.jsonl"));
    const std::string wanted = "\"id\":" + std::to_string(number) + ",";
    int count = 0;
    for (std::string line; std::getline(lines, line);)
        if (line.find(wanted) != std::string::npos) ++count;
    return count;
}

std::string OutsideView::text(const std::string& file) const
{
    std::ifstream stream(site_ + "/" + file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace desktop
