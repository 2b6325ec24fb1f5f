#include "hosts/viewer/document/source_opening.h"

#include "backends/xml/libxml_documents.h"
#include "system/file_facts.h"
#include "timeline/sources/trace_database_source.h"

#include <exception>
#include <utility>

namespace viewer {

namespace {

void append(std::vector<std::string>& sentences, const std::vector<std::string>& more)
{
    sentences.insert(sentences.end(), more.begin(), more.end());
}

void addMacroTraces(const timeline::TraceDatabaseSource& database, OpenedPath& result)
{
    LibxmlDocuments xml;
    const auto definitions =
        timeline::MacroTraceDefinitions::of(database.tables(), xml, result.notes);
    result.macroTraces.insert(result.macroTraces.end(), definitions.all().begin(),
                              definitions.all().end());
}

/// A cabinet's members have no file of their own, and those of one in a folder are named by it.
SourceHome homeOf(const timeline::SourceFacts& facts, const std::string& path)
{
    if (!facts.path.empty() || path == "-") return {facts.name, facts.path};
    if (isPlainFile(path)) return {facts.name, path};
    const std::string cabinet = path + "/" + facts.name.substr(0, facts.name.find('/'));
    return {facts.name, isPlainFile(cabinet) ? cabinet : std::string()};
}

} // namespace

SourceOpening::SourceOpening(SharedTimeline& timeline, Told told)
    : timeline_(timeline), told_(std::move(told)), opener_(timeline::SourceOptions()),
      thread_([this](const std::stop_token& stop) { run(stop); })
{}

SourceOpening::~SourceOpening()
{
    thread_.request_stop();
    cancel();
}

void SourceOpening::open(const std::string& path)
{
    const std::lock_guard lock(asking_);
    paths_.push_back(path);
    asked_.notify_all();
}

std::size_t SourceOpening::cancel()
{
    const std::lock_guard lock(asking_);
    const std::size_t before = paths_.size();
    paths_.resize(opens_ ? 1 : 0);
    progress_.cancelled = opens_;
    return before - paths_.size();
}

void SourceOpening::run(const std::stop_token& stop)
{
    for (;;) {
        std::string path;
        {
            std::unique_lock lock(asking_);
            asked_.wait(lock, stop, [this] { return !paths_.empty(); });
            if (stop.stop_requested()) return;
            path = paths_.front();
            opens_ = true;
            progress_.cancelled = false;
        }
        if (path != "-") told_.before(path);
        OpenedPath opened = openNow(path);
        {
            const std::lock_guard lock(asking_);
            paths_.pop_front();
            opens_ = false;
        }
        if (stop.stop_requested()) return;
        told_.opened(std::move(opened));
    }
}

OpenedPath SourceOpening::openNow(const std::string& path)
{
    OpenedPath result;
    result.path = path;
    try {
        timeline::OpenedSources opened = opener_.open(path, progress_);
        result.sources = opened.sources.size();
        result.troubles = std::move(opened.troubles);
        result.notes = std::move(opened.passedOver);
        append(result.notes, opened.notes);
        for (const auto& source : opened.sources) {
            append(result.notes, source->facts().guesses);
            result.homes.push_back(homeOf(source->facts(), path));
            if (const auto* database =
                    dynamic_cast<const timeline::TraceDatabaseSource*>(source.get()))
                addMacroTraces(*database, result);
        }
        if (!opened.sources.empty()) result.firstSource = timeline_.add(std::move(opened.sources));
    } catch (const std::exception& error) {
        result.troubles.emplace_back(error.what());
    }
    return result;
}

} // namespace viewer
