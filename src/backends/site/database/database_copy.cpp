#include "backends/site/database/database_copy.h"

#include "runtime/run_time_error.h"
#include "system/machine_path.h"
#include "system/temporary_folder.h"
#include "system/whole_file.h"

#include <filesystem>
#include <system_error>

namespace fs = std::filesystem;

namespace {

using runTimeErrors::fileNotFound;

constexpr FileOpening unlinked{.lastLink = LastLink::refused};

/// The copy may be written to, whoever may write to what it was made from.
void copyForWriting(const FileDescriptor& source, const std::string& target)
{
    copyWholeFile(source, RootFolder(folderPathOf(target)), lastNameOf(target));
    std::error_code none;
    fs::permissions(filePathOf(target), fs::perms::owner_write, fs::perm_options::add, none);
}

} // namespace

DatabaseCopy::DatabaseCopy(const std::string& file)
    : folder_(makeTemporaryFolder("orvandiag-")), path_(folder_ + "/database")
{
    try {
        const RootFolder folder(folderPathOf(file));
        const std::string name = lastNameOf(file);
        // A log that is copied first holds what the database may have taken over since, which does
        // no harm; the other way round rows would be lost.
        for (const char* ending : {"-wal", "-journal"})
            if (folder.unfollowedFacts(name + ending))
                copyForWriting(folder.openFile(name + ending, unlinked, fileNotFound),
                               path_ + ending);
        copyForWriting(folder.openFile(name, unlinked, fileNotFound), path_);
    } catch (...) {
        std::error_code none;
        fs::remove_all(filePathOf(folder_), none);
        throw;
    }
}

DatabaseCopy::~DatabaseCopy()
{
    std::error_code none;
    fs::remove_all(filePathOf(folder_), none);
}
