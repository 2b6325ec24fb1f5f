#include "hosts/cli/reading/opened_logs.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/file_opening.h"
#include "system/root_folder.h"
#include "timeline/sources/log_source.h"

#include <map>
#include <utility>

namespace cli {

namespace {

bool isNamedFor(const std::string& path, std::string_view ending)
{
    return path.size() >= ending.size() &&
           equalIgnoringCase(std::string_view(path).substr(path.size() - ending.size()), ending);
}

void append(std::vector<std::string>& sentences, const std::vector<std::string>& more)
{
    sentences.insert(sentences.end(), more.begin(), more.end());
}

std::string withoutName(std::string sentence, const std::string& name)
{
    if (const auto place = sentence.find(name); place != std::string::npos)
        sentence.erase(place, name.size());
    return sentence;
}

} // namespace

OpenedLogs::OpenedLogs(timeline::SourceOptions options)
    : options_(std::move(options)), opening_(databases_, cabinets_, options_)
{}

void OpenedLogs::open(const std::string& path)
{
    timeline::Progress progress;
    try {
        timeline::OpenedSources opened = opening_.open(path, progress);
        for (auto& source : opened.sources) timeline_.add(std::move(source));
        append(failures_, opened.troubles);
        append(passedOver_, opened.passedOver);
        append(readElsewhere_, opened.notes);
    } catch (const RunTimeError& error) {
        if (error.number() == runTimeErrors::invalidFileFormat && path != "-" &&
            !hasRowsOfItsOwn(path))
            timeline_.add(unknownLog(path));
        else
            failures_.push_back(error.description());
    }
}

std::unique_ptr<timeline::Source> OpenedLogs::openLog(const std::string& path)
{
    timeline::Progress progress;
    try {
        timeline::OpenedSources opened = opening_.open(path, progress);
        if (opened.sources.size() == 1) return std::move(opened.sources.front());
    } catch (const RunTimeError& error) {
        if (error.number() != runTimeErrors::invalidFileFormat || hasRowsOfItsOwn(path)) throw;
    }
    return unknownLog(path);
}

std::vector<std::string> OpenedLogs::guesses() const
{
    struct Guess {
        std::string sentence; ///< of the first log
        std::size_t others = 0;
    };
    std::vector<std::string> inOrder;
    std::map<std::string, Guess> guesses; ///< by what they say of whatever log
    for (std::size_t at = 0; at < timeline_.sourceCount(); ++at) {
        const timeline::SourceFacts& facts = timeline_.source(at).facts();
        for (const std::string& sentence : facts.guesses) {
            std::string said = withoutName(sentence, facts.name);
            const auto [guess, isNew] = guesses.try_emplace(said, Guess{sentence});
            if (isNew)
                inOrder.push_back(std::move(said));
            else
                ++guess->second.others;
        }
    }
    std::vector<std::string> sentences;
    for (const std::string& said : inOrder) {
        const Guess& guess = guesses.at(said);
        sentences.push_back(guess.sentence);
        if (guess.others > 0)
            sentences.back() += "; the same goes for " + std::to_string(guess.others) +
                                (guess.others == 1 ? " other log" : " other logs");
    }
    return sentences;
}

/// Whether a file is, or should be, one whose lines are not its rows.
bool OpenedLogs::hasRowsOfItsOwn(const std::string& path) const
{
    constexpr std::size_t headBytes = 4096;
    if (!isPlainFile(path) || isNamedFor(path, ".mdb") || isNamedFor(path, ".cab")) return true;
    const FileDescriptor file = openMachineFile(path, forReading, runTimeErrors::fileNotFound);
    std::string head(headBytes, '\0');
    head.resize(readAt(file, head.data(), head.size(), 0));
    return databases_.isDatabase(head) || cabinets_.isCabinet(head);
}

std::unique_ptr<timeline::Source> OpenedLogs::unknownLog(const std::string& path) const
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

} // namespace cli
