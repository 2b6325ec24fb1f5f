#include "cabmaker/cabinet_maker.h"

#include <algorithm>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>
#include <vector>

#include "cabmaker/cabinet_writer.h"
#include "cabmaker/directive_file.h"
#include "cabmaker/file_error.h"
#include "cabmaker/names.h"
#include "cabmaker/reports.h"
#include "cabmaker/site_paths.h"
#include "cabmaker/source_file.h"

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
        for (fs::path folder = path; !fs::exists(folder, error); folder = folder.parent_path())
            made_.push_back(folder);
        fs::create_directories(path, error);
        if (!error) return;
        remove();
        throw fileError("cannot make the folder " + path.string(), error.value());
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

std::vector<CabinetSource> sourcesOf(const Directives& directives, const SitePaths& paths,
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

void writeReport(std::optional<OutputFile>& report, const SitePaths& paths, const std::string& name,
                 const std::string& text)
{
    if (name.empty()) return;
    report.emplace(paths.machinePath(name));
    report->append(text);
    report->close();
}

} // namespace

MadeCabinet makeCabinet(const std::string& directivePath, const Surroundings& surroundings)
{
    const SitePaths paths(surroundings.drives, surroundings.workingFolder);
    const Directives directives = parseDirectives(
        readDirectiveFile(paths.machinePath(directivePath), directivePath), directivePath);
    const std::vector<CabinetSource> sources = sourcesOf(directives, paths, directivePath);

    Packing packing{.compression = directives.compression,
                    .threads = surroundings.threads,
                    .checkpoint = surroundings.checkpoint};
    if (directives.largestCabinet != 0)
        packing.largestCabinet = std::min(packing.largestCabinet, directives.largestCabinet);

    DiskFolder diskFolder(paths.machinePath(directives.diskFolder));
    const std::string path =
        paths.machinePath(beneath(directives.diskFolder, directives.cabinetName));
    OutputFile cabinetFile(path);
    const PackedCabinet cabinet = writeCabinet(sources, packing, cabinetFile);
    cabinetFile.close();

    const ReportSubject subject{.cabinetName = std::string(baseName(directives.cabinetName)),
                                .diskFolder = directives.diskFolder,
                                .compression = directives.compression,
                                .cabinet = cabinet};
    std::optional<OutputFile> inf;
    std::optional<OutputFile> rpt;
    writeReport(inf, paths, directives.infFile, setupInf(subject));
    writeReport(rpt, paths, directives.rptFile, setupRpt(subject));

    // The cabinet comes last: where it is, the whole run went well.
    if (inf) inf->publish();
    if (rpt) rpt->publish();
    cabinetFile.publish();
    diskFolder.keep();

    MadeCabinet made{.path = path, .members = cabinet.members.size(), .bytes = cabinet.bytes};
    for (const MemberFacts& member : cabinet.members) made.plainBytes += member.bytes;
    return made;
}

} // namespace cabmaker
