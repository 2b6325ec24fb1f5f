#include "cabmaker/cabinet_maker.h"

#include <algorithm>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>
#include <vector>

#include "cabmaker/cabinet_set.h"
#include "cabmaker/cabinet_writer.h"
#include "cabmaker/directive_file.h"
#include "cabmaker/directive_paths.h"
#include "cabmaker/reports.h"
#include "cabmaker/source_file.h"
#include "runtime/windows_path.h"
#include "system/machine_path.h"
#include "system/system_error.h"

namespace cabmaker {

namespace fs = std::filesystem;

namespace {

constexpr std::uint64_t largestDirectiveFile = 64 << 20;

std::string readDirectiveFile(const std::string& path, const std::string& shownName)
{
    const SourceFacts facts = sourceFacts(path, shownName);
    if (facts.bytes > largestDirectiveFile)
        throw RunTimeError(runTimeErrors::overflow,
                           shownName + " is too large: a directive file " + "takes up to " +
                               std::to_string(largestDirectiveFile) + " bytes");
    std::string text(facts.bytes, '\0');
    SourceReader reader(path, shownName, facts);
    while (reader.remaining() > 0)
        reader.read(std::span(reinterpret_cast<std::uint8_t*>(text.data()), text.size())
                        .last(reader.remaining()));
    reader.finish();
    return text;
}

// The output folder of one run. What this run made is removed again, unless the run went well.
class DiskFolder {
public:
    explicit DiskFolder(const fs::path& path)
    {
        std::error_code error;
        // Where nothing can be found out, not even the top is there, and above it is itself again.
        for (fs::path folder = path; folder.has_relative_path() && !fs::exists(folder, error);
             folder = folder.parent_path())
            made_.push_back(folder);
        fs::create_directories(path, error);
        if (!error) return;
        remove();
        throw toldWith(
            "cannot make the folder " + machineTextOf(path),
            systemError(error.default_error_condition().value(), runTimeErrors::pathNotFound));
    }
    ~DiskFolder() { remove(); }
    DiskFolder(const DiskFolder&) = delete;
    DiskFolder& operator=(const DiskFolder&) = delete;

    void keep() { made_.clear(); }

private:
    void remove() const
    {
        std::error_code ignored;
        for (const fs::path& folder : made_) fs::remove(folder, ignored);
    }

    std::vector<fs::path> made_; // innermost first
};

std::vector<CabinetSource> sourcesOf(const Directives& directives, const DirectivePaths& paths,
                                     const std::string& directiveFile)
{
    if (directives.members.empty())
        throw RunTimeError(runTimeErrors::invalidCall, directiveFile + " names no file to pack");
    std::vector<CabinetSource> sources;
    sources.reserve(directives.members.size());
    for (const DirectiveMember& member : directives.members) {
        const std::string origin = directiveFile + ":" + std::to_string(member.line) + ": ";
        try {
            sources.push_back(
                {paths.machinePath(member.source), member.source, member.name, origin});
        } catch (const RunTimeError& error) {
            throw RunTimeError(error.number(), origin + error.description());
        }
    }
    return sources;
}

// A name under which `path` leads on, whatever kind of path the two are.
std::string beneath(const std::string& folder, const std::string& path)
{
    const bool absolute =
        path.starts_with('/') || path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
    return absolute || folder.empty() ? path : folder + "\\" + path;
}

/// A run's outputs: what they may not take the place of, and what they are called.
class Outputs {
public:
    Outputs(const Directives& directives, const DirectivePaths& paths)
        : directives_(directives), paths_(paths)
    {}

    /// A file that no output may be.
    void protect(const std::string& path, const std::string& shownName)
    {
        sources_.emplace_back(path, shownName);
    }

    /// The machine's path of an output. Raises 75 for one that would take the place of a file that
    /// is read or of an earlier output, and for what is no plain file; 76 for a name that is too
    /// long, which would be told only when the finished file is to get it.
    std::string place(const std::string& name)
    {
        const std::string path = paths_.machinePath(name);
        std::error_code none;
        const fs::path file = filePathOf(path);
        const fs::file_status status = fs::symlink_status(file, none);
        if (none == std::errc::filename_too_long)
            throw toldWith(
                "cannot write " + path,
                systemError(none.default_error_condition().value(), runTimeErrors::pathNotFound));
        if (fs::exists(status) && !fs::is_regular_file(status))
            throw RunTimeError(runTimeErrors::pathFileAccess,
                               "cannot write " + path + ": it is not a plain file");
        for (const auto& [source, shownName] : sources_)
            if (path == source || fs::equivalent(file, filePathOf(source), none))
                throw RunTimeError(runTimeErrors::pathFileAccess,
                                   "cannot write " + path + ": " + shownName + " would be lost");
        sources_.emplace_back(path, name);
        return path;
    }

    std::string placeOfCabinet(std::size_t number)
    {
        return place(
            beneath(diskFolderOf(directives_, number), cabinetNameOf(directives_, number)));
    }

    CabinetHead::Neighbour called(std::size_t number) const
    {
        return {std::string(baseName(cabinetNameOf(directives_, number))),
                "Disk " + std::to_string(number)};
    }

private:
    const Directives& directives_;
    const DirectivePaths& paths_;
    std::vector<std::pair<std::string, std::string>> sources_;
};

std::unique_ptr<OutputFile> makeReport(const std::string& path, const std::string& text)
{
    if (path.empty()) return nullptr;
    auto report = std::make_unique<OutputFile>(path);
    report->append(text);
    report->close();
    return report;
}

/// The cabinets of one run, closed, under names of their own still.
struct Cabinets {
    std::vector<std::unique_ptr<OutputFile>> files;
    std::vector<std::unique_ptr<DiskFolder>> folders; ///< that had to be made for them
    std::vector<std::size_t> firstMembers;            ///< that begin in each
    std::uint64_t bytes = 0;
};

SetWish setWishOf(const Directives& directives, const Outputs& outputs)
{
    SetWish wish{.called = [&](std::size_t number) { return outputs.called(number); }};
    if (directives.largestCabinet != 0)
        wish.largestCabinet = std::min(wish.largestCabinet, directives.largestCabinet);
    return wish;
}

/// Divides what was packed, as its size asks for.
Cabinets cabinetsOf(const PackedCabinet& packed, const OutputFile& whole,
                    const Directives& directives, const DirectivePaths& paths, Outputs& outputs,
                    const std::function<void()>& checkpoint)
{
    const SetWish wish = setWishOf(directives, outputs);
    const std::vector<SetPart> plan = planSet(packed, wish);
    Cabinets cabinets;
    for (std::size_t number = 1; number <= plan.size(); ++number) {
        checkpoint();
        if (number > 1)
            cabinets.folders.push_back(std::make_unique<DiskFolder>(
                filePathOf(paths.machinePath(diskFolderOf(directives, number)))));
        auto file = std::make_unique<OutputFile>(number == 1 ? whole.path()
                                                             : outputs.placeOfCabinet(number));
        writeSetPart(packed, whole, directives.compression, plan, number, wish, *file);
        cabinets.bytes += file->size();
        file->close();
        cabinets.files.push_back(std::move(file));
        const SetPart& part = plan[number - 1];
        cabinets.firstMembers.push_back(part.firstMember + part.membersFromPrevious);
    }
    return cabinets;
}

ReportSubject subjectOf(const Cabinets& cabinets, const Directives& directives,
                        const PackedCabinet& packed)
{
    ReportSubject subject{
        .bytes = cabinets.bytes, .compression = directives.compression, .packed = packed};
    for (std::size_t i = 0; i < cabinets.files.size(); ++i)
        subject.cabinets.push_back({std::string(baseName(cabinetNameOf(directives, i + 1))),
                                    diskFolderOf(directives, i + 1), cabinets.firstMembers[i]});
    return subject;
}

} // namespace

MadeCabinet makeCabinet(const std::string& directivePath, const Surroundings& surroundings)
{
    const DirectivePaths paths(surroundings.drives, surroundings.workingFolder);
    const std::string directiveFile = paths.machinePath(directivePath);
    const Directives directives =
        parseDirectives(readDirectiveFile(directiveFile, directivePath), directivePath);
    const std::vector<CabinetSource> sources = sourcesOf(directives, paths, directivePath);

    Outputs outputs(directives, paths);
    outputs.protect(directiveFile, directivePath);
    for (const CabinetSource& source : sources) outputs.protect(source.path, source.shownName);
    // Made first: the folder's file system alone knows how long a name may be.
    DiskFolder diskFolder(filePathOf(paths.machinePath(diskFolderOf(directives, 1))));
    const std::string path = outputs.placeOfCabinet(1);
    const auto placeOfReport = [&](const std::string& name) {
        return name.empty() ? std::string() : outputs.place(name);
    };
    const std::string infPath = placeOfReport(directives.infFile);
    const std::string rptPath = placeOfReport(directives.rptFile);

    Packing packing{.compression = directives.compression,
                    .threads = surroundings.threads,
                    .checkpoint = surroundings.checkpoint};
    Cabinets cabinets;
    auto whole = std::make_unique<OutputFile>(path);
    PackedCabinet packed = writeCabinet(sources, packing, *whole);
    if (packed.bytes <= setWishOf(directives, outputs).largestCabinet) {
        whole->close();
        cabinets.bytes = packed.bytes;
        cabinets.files.push_back(std::move(whole));
        cabinets.firstMembers = {0};
    } else {
        packing.folders = FolderUse::own;
        whole = std::make_unique<OutputFile>(path);
        packed = writeCabinet(sources, packing, *whole);
        cabinets = cabinetsOf(packed, *whole, directives, paths, outputs, surroundings.checkpoint);
    }
    const ReportSubject subject = subjectOf(cabinets, directives, packed);
    const auto inf = makeReport(infPath, setupInf(subject));
    const auto rpt = makeReport(rptPath, setupRpt(subject));

    // The first cabinet comes last: where it is, the whole run went well.
    if (inf) inf->publish();
    if (rpt) rpt->publish();
    std::for_each(cabinets.files.rbegin(), cabinets.files.rend(),
                  [](const auto& file) { file->publish(); });
    for (const auto& folder : cabinets.folders) folder->keep();
    diskFolder.keep();

    MadeCabinet made{.path = path,
                     .members = packed.members.size(),
                     .bytes = cabinets.bytes,
                     .cabinets = cabinets.files.size()};
    for (const MemberFacts& member : packed.members) made.plainBytes += member.bytes;
    return made;
}

} // namespace cabmaker
