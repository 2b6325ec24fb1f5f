#include "sample/server_files.h"

#include "platform/tool_files.h"
#include "runtime/run_time_error.h"
#include "sample/output_file.h"
#include "system/machine_path.h"

#include <algorithm>
#include <map>

namespace sample {

namespace fs = std::filesystem;

namespace {

using Replacements = std::map<std::string, std::string>;

/// Fills in a template: each `@NAME@` whose name is known gives way to its value.
std::string filledIn(std::string text, const Replacements& replacements)
{
    for (const auto& [name, value] : replacements) {
        const std::string place = '@' + name + '@';
        for (std::size_t at = 0; (at = text.find(place, at)) != std::string::npos;
             at += value.size())
            text.replace(at, place.size(), value);
    }
    return text;
}

/// What differs between samples. Release 2.1 is the first one whose logs have the extended fields.
Replacements replacementsFor(const ServerIdentity& identity, const std::vector<LogPeriod>& plan)
{
    const bool extended = identity.logFields == LogFields::extended;
    Replacements values = {
        {"COMPUTER", identity.computer},
        {"LOGFIELDS", extended ? "extended" : "basic"},
        {"MINORVERSION", extended ? "00000001" : "00000000"},
        {"VERSION", extended ? "2.1.4.1187" : "2.0.4.1187"},
        {"TIMEZONE", timeZoneText},
    };
    for (std::size_t index = 0; index < processCount; ++index) {
        const auto process = static_cast<Process>(index);
        values["CURRENTLOG:" + std::string(nameOf(process))] = currentLogName(plan, process);
    }
    return values;
}

/// The plain files of a folder of the installed data, by name.
std::vector<fs::path> filesIn(const fs::path& folder)
{
    std::error_code failure;
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder, failure)) files.push_back(entry.path());
    if (failure)
        throw RunTimeError(runTimeErrors::fileNotFound, "the installed data lack the folder " +
                                                            shownPathOf(machineTextOf(folder)));
    std::sort(files.begin(), files.end());
    return files;
}

void copyTo(const fs::path& target, const fs::path& source)
{
    writeFile(target, readFile(source), installed);
}

} // namespace

fs::path installFolder(const fs::path& site)
{
    return site / "drive_c" / "KelmaOrvan";
}

fs::path logFolder(const fs::path& site)
{
    return installFolder(site) / "Logs";
}

void writeServerFiles(const fs::path& site, const fs::path& data, const ServerIdentity& identity,
                      const std::vector<LogPeriod>& plan)
{
    const fs::path templates = data / "sample";
    const Replacements values = replacementsFor(identity, plan);
    for (const char* name : {"site.ini", "registry.reg"})
        writeFile(site / name, filledIn(readFile(templates / name), values), installed);

    const fs::path install = installFolder(site);
    for (const std::string language : {"ENU", "FRA"}) {
        const std::string name = "DiagnosticGrids_" + language + ".xml";
        copyTo(install / "GuiResources" / "Resources" / language / name, templates / name);
    }
    for (const auto& messages : filesIn(templates / "messages"))
        copyTo(install / "Localize" / "Messaging" / messages.stem() / "KoMessages.dll", messages);
    for (const auto& definitions : filesIn(data / toolFiles::definitionsFolder))
        copyTo(site / "drive_c" / "OrvanDiagnostics" / toolFiles::definitionsFolder /
                   definitions.filename(),
               definitions);
    for (const char* folder : {"Temp", "Windows"})
        fs::create_directories(site / "drive_c" / folder);
}

} // namespace sample
