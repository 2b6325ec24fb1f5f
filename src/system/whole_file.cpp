#include "system/whole_file.h"

#include "system/process.h"
#include "system/replacement_names.h"
#include "system/system_error.h"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <random>

namespace {

constexpr std::string_view temporaryStart = ".new-";
constexpr std::time_t longestWork = 60 * 60;

bool isNumber(std::string_view text)
{
    return !text.empty() && text.size() < 10 &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

/// The process of a name that `makeReplacement` gave; the empty text for any other name.
std::string_view processOf(std::string_view name)
{
    if (name.substr(0, temporaryStart.size()) != temporaryStart) return {};
    name.remove_prefix(temporaryStart.size());
    const auto dash = name.find('-');
    if (dash == std::string_view::npos || !isNumber(name.substr(dash + 1))) return {};
    return isNumber(name.substr(0, dash)) ? name.substr(0, dash) : std::string_view();
}

} // namespace

std::pair<std::string, FileDescriptor>
makeReplacement(const std::function<FileDescriptor(const std::string& name)>& make)
{
    std::random_device random;
    for (int attempt = 0; attempt < 100; ++attempt) {
        std::string name = std::string(temporaryStart) + std::to_string(ownProcess()) + "-" +
                           std::to_string(random() % 1'000'000'000);
        FileDescriptor file = make(name);
        if (file.isOpen()) return {std::move(name), std::move(file)};
        if (errno != EEXIST) throw systemError(errno, runTimeErrors::pathNotFound);
    }
    throw RunTimeError(runTimeErrors::permissionDenied);
}

std::string readWholeFile(const RootFolder& root, const std::string& path, int missing,
                          std::size_t limit)
{
    return readWholeFile(root.openFile(path, forReading, missing), missing, limit);
}

std::string readMachineFile(const std::string& path, int missing, std::size_t limit)
{
    return readWholeFile(openMachineFile(path, forReading, missing), missing, limit);
}

std::string readWholeFile(const FileDescriptor& file, int missing, std::size_t limit)
try {
    const auto size = static_cast<std::size_t>(std::max<std::int64_t>(factsOf(file).size, 0));
    std::string bytes;
    if (size > 0) bytes.reserve(std::min(size, limit) + 1);
    char buffer[65536];
    while (const std::size_t count = readSome(file, buffer, sizeof buffer)) {
        if (bytes.size() + count > limit) throw RunTimeError(runTimeErrors::outOfStringSpace);
        bytes.append(buffer, count);
    }
    return bytes;
} catch (const SystemError& error) {
    throw error.whereMissingIs(missing);
}

void ReplacementFile::close()
{
    if (const int error = file_.close()) throw systemError(error, runTimeErrors::deviceIo);
}

bool isLeftBehind(std::string_view process, const FileFacts& facts)
{
    if (!isNumber(process) || !isOurs(facts)) return false;
    return facts.modified.seconds < std::time(nullptr) - longestWork || isEndedProcess(process);
}

bool isReplacementFile(std::string_view name)
{
    return !processOf(name).empty();
}

bool isLeftReplacementFile(std::string_view name, const FileFacts& facts)
{
    return facts.kind == FileKind::file && isLeftBehind(processOf(name), facts);
}

void sweepReplacementFiles(const RootFolder& root, const std::string& folder)
{
    try {
        for (const auto& name : root.names(folder)) {
            if (!isReplacementFile(name)) continue;
            const std::string path = folder.empty() ? name : folder + "/" + name;
            const auto facts = root.unfollowedFacts(path);
            if (facts && isLeftReplacementFile(name, *facts)) root.removeFile(path);
        }
    } catch (const RunTimeError&) {
        return; // a folder that may not be read or changed keeps what it has
    }
}
