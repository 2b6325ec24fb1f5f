#include "timeline/sources/open_sources.h"

#include "platform/cabinet.h"
#include "runtime/run_time_error.h"
#include "system/file_bytes.h"
#include "system/file_facts.h"
#include "system/root_folder.h"
#include "system/system_error.h"
#include "text/utf8.h"
#include "timeline/sources/kept_bytes.h"
#include "timeline/sources/passed_over.h"

#include <algorithm>
#include <map>
#include <optional>

namespace timeline {

namespace {

constexpr std::size_t headBytes = 64U << 10;
constexpr Moment millisecondsPerSecond = 1000;
constexpr const char* inPart = " is read in part";

/// How many files of a folder or a cabinet may fail, each with a sentence.
constexpr std::size_t mostFailures = 5;

/// Of several sources that a folder or a cabinet has.
using SizesByName = std::map<std::string, std::uint64_t>;

std::string headOf(KeptFile& file)
{
    const KeptFile::Use use(file);
    std::string head(headBytes, '\0');
    head.resize(readAt(use.descriptor(), head.data(), head.size(), 0));
    return head;
}

Moment momentOfMember(const CabinetMember& member)
{
    const bool sound = member.month >= 1 && member.month <= 12 && member.day >= 1 &&
                       member.day <= 31 && member.hour >= 0 && member.hour < 24;
    if (!sound) return noMoment;
    return dayOf(member.year, member.month, member.day) +
           ((member.hour * 60 + member.minute) * 60 + member.second) * millisecondsPerSecond;
}

} // namespace

/// One call of `open`.
class SourceOpening::Work {
public:
    Work(SourceOpening& opening, Progress& progress) : opening_(opening), progress_(progress) {}

    OpenedSources take() { return std::move(opened_); }

    /// A file of any of the kinds; raises for one of none.
    void openFile(const std::string& path, std::shared_ptr<KeptFile> file, const std::string& name)
    {
        Candidate candidate;
        candidate.path = path;
        candidate.name = name;
        candidate.modified = modifiedOf(*file);
        try {
            candidate.head = headOf(*file);
        } catch (const RunTimeError& error) {
            throw toldWith(path.empty() ? name : path, error);
        }
        candidate.file = std::move(file);
        if (opening_.cabinets_.isCabinet(candidate.head))
            openCabinet(candidate, {});
        else
            opened_.sources.push_back(opening_.making_.make(candidate));
    }

    void openFolder(const std::string& path);

    /// Copies what can be read once alone.
    std::shared_ptr<KeptFile> spool(const FileDescriptor& input, const std::string& name)
    {
        SpooledFile spooled(opening_.spooling_);
        std::string piece(headBytes, '\0');
        while (!progress_.cancelled) {
            const std::size_t count = readSome(input, piece.data(), piece.size());
            if (count == 0) break;
            try {
                spooled.append({piece.data(), count});
            } catch (const RunTimeError& error) {
                opened_.troubles.push_back(toldWith(name + inPart, error).description());
                break;
            }
        }
        return std::make_shared<KeptFile>(spooled.take());
    }

private:
    class Folder;

    std::optional<Moment> modifiedOf(KeptFile& file) const
    {
        const KeptFile::Use use(file);
        return opening_.making_.local(factsOf(use.descriptor()).modified.seconds *
                                      millisecondsPerSecond);
    }

    /// Raises with a sentence what making it raises.
    SpooledFile spooledFor(const std::string& name)
    {
        try {
            return SpooledFile(opening_.spooling_);
        } catch (const RunTimeError& error) {
            throw toldWith(name + " is not read", error);
        }
    }

    void openCabinet(const Candidate& candidate, const SizesByName& beside);
    void openMember(const Candidate& cabinet, Cabinet& opened, std::size_t number,
                    PassedOver& others);

    SourceOpening& opening_;
    Progress& progress_;
    OpenedSources opened_;
};

/// Unpacks what a cabinet has, but for what lies beside it in the same size.
void SourceOpening::Work::openCabinet(const Candidate& candidate, const SizesByName& beside)
{
    std::unique_ptr<Cabinet> cabinet;
    try {
        cabinet = opening_.cabinets_.open(std::make_shared<KeptBytes>(candidate.file));
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), candidate.name + ": " + error.description());
    }
    PassedOver others;
    PassedOver twins;
    PassedOver unread;
    PassedOver failed;
    std::uint64_t effort = 0;
    const std::uint64_t most = opening_.spooling_.limits().bytes;
    for (std::size_t number = 0; number < cabinet->members().size(); ++number) {
        const CabinetMember& member = cabinet->members()[number];
        if (progress_.cancelled) break;
        const auto twin = beside.find(foldCase(member.name));
        if (twin != beside.end() && twin->second == member.size) {
            twins.add(member.name);
            continue;
        }
        if (cabinet->effort(number) > most - std::min(effort, most)) {
            unread.add(member.name);
            continue;
        }
        effort += cabinet->effort(number);
        if (failed.count() == mostFailures) {
            unread.add(member.name);
            continue;
        }
        try {
            openMember(candidate, *cabinet, number, others);
        } catch (const RunTimeError& error) {
            opened_.troubles.push_back(error.description());
            failed.add(member.name);
        }
    }
    if (!twins.empty())
        opened_.notes.push_back(twins.sentence("file", candidate.name,
                                               "lies beside it and is read there",
                                               "lie beside it and are read there"));
    if (!unread.empty())
        opened_.troubles.push_back(
            unread.sentence("file", candidate.name,
                            "is not read, as too much would have to be unpacked or is damaged",
                            "are not read, as too much would have to be unpacked or is damaged"));
    if (!others.empty())
        opened_.passedOver.push_back(others.sentence("file", candidate.name,
                                                     "is nothing to be read as rows",
                                                     "are nothing to be read as rows"));
}

/// Unpacks a member. What lies in front of a damage becomes a source all the same, and then this
/// raises what the damage raised.
void SourceOpening::Work::openMember(const Candidate& cabinet, Cabinet& opened, std::size_t number,
                                     PassedOver& others)
{
    const CabinetMember& member = opened.members()[number];
    Candidate candidate;
    candidate.name = cabinet.name + "/" + member.name;
    std::replace(candidate.name.begin(), candidate.name.end(), '\\', '/');
    if (const Moment modified = momentOfMember(member); modified != noMoment)
        candidate.modified = modified;
    SpooledFile spooled = spooledFor(candidate.name);
    std::optional<RunTimeError> failure;
    try {
        opened.read(number, [&](std::string_view piece) {
            if (progress_.cancelled)
                throw RunTimeError(runTimeErrors::invalidCall, "It was broken off.");
            spooled.append(piece);
        });
    } catch (const RunTimeError& error) {
        failure = toldWith(candidate.name + inPart, error);
    }
    candidate.head.resize(std::min<std::uint64_t>(headBytes, spooled.size()));
    candidate.head.resize(readAt(spooled.file(), candidate.head.data(), candidate.head.size(), 0));
    const bool isCabinet = opening_.cabinets_.isCabinet(candidate.head);
    if (!isCabinet && opening_.making_.isSource(candidate)) {
        candidate.file = std::make_shared<KeptFile>(spooled.take());
        opened_.sources.push_back(opening_.making_.make(candidate));
    } else if (!failure) {
        others.add(member.name);
    }
    if (failure) throw RunTimeError(*failure);
}

/// The files of a folder, by what they are.
class SourceOpening::Work::Folder {
public:
    Folder(Work& work, const std::string& path) : work_(work), root_(path), path_(path) {}

    void openAll()
    {
        sort();
        std::vector<Candidate> cabinets;
        for (const std::string& name : files_) {
            if (work_.progress_.cancelled) return;
            if (hasLogBeside(name)) {
                copies_.add(name);
                continue;
            }
            openOne(name, cabinets);
        }
        for (const Candidate& cabinet : cabinets)
            pass(cabinet.name, [&] { work_.openCabinet(cabinet, sizes_); });
        tell();
    }

private:
    void sort()
    {
        std::vector<std::string> names = root_.names("");
        std::sort(names.begin(), names.end());
        for (std::string& name : names) {
            const auto facts = root_.unfollowedFacts(name);
            if (!facts) continue;
            if (facts->kind == FileKind::folder) {
                folders_.add(name);
            } else if (facts->kind == FileKind::file) {
                sizes_.emplace(foldCase(name), static_cast<std::uint64_t>(facts->size));
                files_.push_back(std::move(name));
            } else {
                (facts->kind == FileKind::link ? links_ : others_).add(name);
            }
        }
    }

    /// Whether a name is that of a formatted copy of a log that is here as well.
    bool hasLogBeside(const std::string& name) const
    {
        const std::size_t tag = foldCase(name).rfind(foldCase("_fmtd."));
        if (tag == std::string::npos) return false;
        return sizes_.contains(foldCase(name.substr(0, tag) + name.substr(tag + 5)));
    }

    void openOne(const std::string& name, std::vector<Candidate>& cabinets)
    {
        pass(name, [&] {
            Candidate candidate;
            candidate.name = name;
            candidate.path = path_ + "/" + name;
            candidate.file = std::make_shared<KeptFile>(work_.opening_.files_, candidate.path);
            requireSame(name, *candidate.file);
            candidate.modified = work_.modifiedOf(*candidate.file);
            candidate.head = headOf(*candidate.file);
            if (work_.opening_.cabinets_.isCabinet(candidate.head))
                cabinets.push_back(std::move(candidate));
            else
                work_.opened_.sources.push_back(work_.opening_.making_.make(candidate));
        });
    }

    /// What was opened by its path has to be what the folder holds: no link leads out of it.
    void requireSame(const std::string& name, KeptFile& file) const
    {
        const auto facts = root_.unfollowedFacts(name);
        const KeptFile::Use use(file);
        if (!facts || facts->identity != factsOf(use.descriptor()).identity)
            throw RunTimeError(runTimeErrors::permissionDenied);
    }

    template <typename Step>
    void pass(const std::string& name, const Step& step)
    {
        try {
            step();
        } catch (const RunTimeError& error) {
            if (error.number() == runTimeErrors::invalidFileFormat)
                others_.add(name);
            else if (++failures_ <= mostFailures)
                work_.opened_.troubles.push_back(error.description().find(name) == std::string::npos
                                                     ? name +
                                                           " can't be read: " + error.description()
                                                     : error.description());
        }
    }

    void tell() const
    {
        std::vector<std::string>& troubles = work_.opened_.troubles;
        std::vector<std::string>& passedOver = work_.opened_.passedOver;
        if (!others_.empty())
            passedOver.push_back(others_.sentence("file", path_, "is nothing to be read as rows",
                                                  "are nothing to be read as rows"));
        if (!links_.empty())
            passedOver.push_back(
                links_.sentence("link", path_, "is not followed, as it may lead out of the folder",
                                "are not followed, as they may lead out of the folder"));
        if (!copies_.empty())
            work_.opened_.notes.push_back(
                copies_.sentence("file", path_, "is the formatted copy of a log beside it",
                                 "are formatted copies of logs beside them"));
        if (!folders_.empty())
            passedOver.push_back(
                folders_.sentence("folder", path_, "is not entered", "are not entered"));
        if (files_.empty() && others_.empty() && links_.empty() && folders_.empty())
            passedOver.push_back("nothing is in " + path_);
        if (failures_ > mostFailures)
            troubles.push_back(std::to_string(failures_ - mostFailures) + " more files of " +
                               path_ + " can't be read");
    }

    Work& work_;
    RootFolder root_;
    std::string path_;
    std::vector<std::string> files_;
    SizesByName sizes_;
    PassedOver others_;
    PassedOver copies_;
    PassedOver folders_;
    PassedOver links_;
    std::size_t failures_ = 0;
};

void SourceOpening::Work::openFolder(const std::string& path)
{
    Folder(*this, path).openAll();
}

SourceOpening::SourceOpening(const TraceTableReader& databases, const CabinetReader& cabinets,
                             SourceOptions options, Spooling::Limits limits,
                             std::size_t mostOpenFiles)
    : making_(databases, std::move(options)), cabinets_(cabinets), spooling_(limits),
      files_(std::make_shared<OpenFiles>(mostOpenFiles))
{}

std::size_t SourceOpening::usualOpenFiles()
{
    constexpr std::size_t most = 200;
    return std::min(most, openFilesAllowed() / 3);
}

OpenedSources SourceOpening::open(const std::string& path, Progress& progress)
{
    constexpr int standardInput = 0;
    if (path == "-") return openInput(FileDescriptor(standardInput), "standard input", progress);
    const auto facts = factsOf(path);
    if (!facts) throw RunTimeError(runTimeErrors::fileNotFound, "there is no " + path);
    Work work(*this, progress);
    if (facts->kind == FileKind::folder) {
        work.openFolder(path);
    } else if (facts->kind == FileKind::file) {
        std::shared_ptr<KeptFile> file;
        try {
            file = std::make_shared<KeptFile>(files_, path);
        } catch (const RunTimeError& error) {
            throw toldWith(path, error);
        }
        work.openFile(path, std::move(file), lastNameOf(path));
    } else if (facts->kind == FileKind::pipe) {
        return openInput(openMachinePipe(path, runTimeErrors::fileNotFound), path, progress);
    } else {
        SourceMaking::raiseNone(path);
    }
    return work.take();
}

OpenedSources SourceOpening::openInput(FileDescriptor file, const std::string& name,
                                       Progress& progress)
{
    Work work(*this, progress);
    std::shared_ptr<KeptFile> kept;
    try {
        const bool isPlain = factsOf(file).kind == FileKind::file;
        kept = isPlain ? std::make_shared<KeptFile>(std::move(file)) : work.spool(file, name);
    } catch (const RunTimeError& error) {
        throw toldWith(name, error);
    }
    work.openFile("", std::move(kept), name);
    return work.take();
}

} // namespace timeline
