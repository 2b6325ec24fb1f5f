#include "hosts/common/logs/log_opener.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/file_opening.h"
#include "system/root_folder.h"
#include "timeline/sources/log_source.h"

namespace {

bool isNamedFor(const std::string& path, std::string_view ending)
{
    return path.size() >= ending.size() &&
           equalIgnoringCase(std::string_view(path).substr(path.size() - ending.size()), ending);
}

} // namespace

LogOpener::LogOpener(timeline::SourceOptions options)
    : options_(std::move(options)), opening_(databases_, cabinets_, options_)
{}

timeline::OpenedSources LogOpener::open(const std::string& path, timeline::Progress& progress)
{
    try {
        return opening_.open(path, progress);
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::invalidFileFormat || path == "-" ||
            hasRowsOfItsOwn(path))
            throw;
    }
    timeline::OpenedSources opened;
    opened.sources.push_back(unknownLog(path));
    return opened;
}

std::unique_ptr<timeline::Source> LogOpener::openLog(const std::string& path)
{
    timeline::Progress progress;
    timeline::OpenedSources opened = open(path, progress);
    if (opened.sources.size() == 1) return std::move(opened.sources.front());
    return unknownLog(path);
}

/// Whether a file is, or should be, one whose lines are not its rows.
bool LogOpener::hasRowsOfItsOwn(const std::string& path) const
{
    constexpr std::size_t headBytes = 4096;
    if (!isPlainFile(path) || isNamedFor(path, ".mdb") || isNamedFor(path, ".cab")) return true;
    const FileDescriptor file = openMachineFile(path, forReading, runTimeErrors::fileNotFound);
    std::string head(headBytes, '\0');
    head.resize(readAt(file, head.data(), head.size(), 0));
    return databases_.isDatabase(head) || cabinets_.isCabinet(head);
}

std::unique_ptr<timeline::Source> LogOpener::unknownLog(const std::string& path) const
{
    timeline::LogFacts facts;
    facts.source.name = lastNameOf(path);
    facts.source.path = path;
    facts.source.form = options_.form.value_or(timeline::LineForm::basic);
    if (options_.codePage) facts.codePage = *options_.codePage;
    facts.source.guesses.push_back("The lines of " + facts.source.name +
                                   " have no form of the server's, and are shown as they are");
    auto file = std::make_shared<timeline::KeptFile>(
        openMachineFile(path, forReading, runTimeErrors::fileNotFound));
    return std::make_unique<timeline::LogSource>(std::move(facts), std::move(file));
}
