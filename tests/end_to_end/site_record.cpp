#include "end_to_end/site_record.h"

#include <fstream>
#include <iterator>
#include <sstream>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

std::string recordOfOne(const fs::path& path)
{
    struct stat facts {};
    if (::lstat(path.c_str(), &facts) != 0) return "gone";
    std::ostringstream text;
    text << std::oct << facts.st_mode << std::dec << ' ' << facts.st_uid << ' ' << facts.st_ino
         << " written " << facts.st_mtim.tv_sec << '.' << facts.st_mtim.tv_nsec << " changed "
         << facts.st_ctim.tv_sec << '.' << facts.st_ctim.tv_nsec << ' ';
    if (S_ISREG(facts.st_mode)) text << std::ifstream(path, std::ios::binary).rdbuf();
    return text.str();
}

} // namespace

std::map<std::string, std::string> recordOf(const fs::path& folder)
{
    std::map<std::string, std::string> record{{"", recordOfOne(folder)}};
    for (const auto& entry : fs::recursive_directory_iterator(folder))
        record[entry.path().lexically_relative(folder).string()] = recordOfOne(entry.path());
    return record;
}
