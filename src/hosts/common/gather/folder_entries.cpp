#include "hosts/common/gather/folder_entries.h"

#include "system/machine_path.h"

namespace fs = std::filesystem;

std::vector<fs::directory_entry> entriesOf(const std::string& folder, std::error_code& failed)
{
    std::vector<fs::directory_entry> entries;
    failed.clear();
    for (fs::directory_iterator entry(filePathOf(folder), failed), end; !failed && entry != end;
         entry.increment(failed))
        entries.push_back(*entry);
    if (failed == std::errc::no_such_file_or_directory) failed.clear();
    return entries;
}
