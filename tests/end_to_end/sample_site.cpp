#include "end_to_end/sample_site.h"

#include <fstream>
#include <iterator>
#include <set>

namespace fs = std::filesystem;

SampleSite::SampleSite()
{
    char name[] = "/tmp/orvan_site_XXXXXX";
    folder = mkdtemp(name);
    site = folder / "site";
    target = folder / "gathered";
    const Outcome made = orvandiag({"sample", site.string(), "--lines", "3000"});
    EXPECT_EQ(0, made.status) << made.err;
}

SampleSite::~SampleSite()
{
    std::error_code none;
    fs::remove_all(folder, none);
}

Outcome SampleSite::run(std::vector<std::string> words) const
{
    words.insert(words.begin(), {"--site", site.string()});
    return orvandiag(words, folder.string());
}

Outcome SampleSite::runJson(std::vector<std::string> words) const
{
    words.insert(words.begin(), "--json");
    return run(words);
}

fs::path SampleSite::drive(const std::string& path) const
{
    return site / "drive_c" / path;
}

std::string SampleSite::read(const fs::path& file) const
{
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
}

void SampleSite::write(const fs::path& file, const std::string& content) const
{
    std::ofstream stream(file, std::ios::binary);
    stream << content;
    EXPECT_TRUE(stream) << file;
}

std::string SampleSite::currentLog() const
{
    for (const auto& log : runJson({"logs", "KoCSMgr"}).json())
        if (log["current"]) return log["fileName"];
    ADD_FAILURE() << "the sample has no current log";
    return {};
}

std::ptrdiff_t SampleSite::toolLogs() const
{
    const fs::path logs = drive("OrvanDiagnostics/LOGS");
    if (!fs::exists(logs)) return 0;
    return std::distance(fs::directory_iterator(logs), fs::directory_iterator());
}

std::string SampleSite::fingerprint() const
{
    std::set<std::string> lines;
    for (const auto& entry : fs::recursive_directory_iterator(site)) {
        const std::string name = entry.path().lexically_relative(site).string();
        if (entry.is_regular_file() && name.find("/LOGS/") == std::string::npos)
            lines.insert(name + " " + read(entry.path()));
    }
    std::string all;
    for (const auto& line : lines) all += line + "\n";
    return all;
}
