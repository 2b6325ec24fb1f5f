#include <cstdio>
#include <exception>
#include <filesystem>
#include <new>
#include <string>
#include <thread>
#include <vector>

#include "cabmaker/cabinet_maker.h"
#include "runtime/run_time_error.h"
#include "system/environment.h"
#include "system/held_end_signals.h"
#include "system/machine_path.h"
#include "system/program_arguments.h"
#include "system/terminal.h"
#include "system/write_signals.h"
#include "text/visible_text.h"

namespace {

constexpr int statusDone = 0;
constexpr int statusFailed = 1;
constexpr int statusUsage = 2;

constexpr const char* usage = "usage: cabmaker /f FILE.DDF\n";

constexpr const char* help =
    "Packs the files that a directive file names into a cabinet.\n"
    "\n"
    "  /f FILE.DDF, -f FILE.DDF  the directive file\n"
    "  --help                    shows this text\n"
    "  --version                 shows the version\n"
    "\n"
    "A directive file has an item a line, in Windows-1252, or in UTF-8 behind its\n"
    "byte order mark; names know no case:\n"
    "\n"
    "  .Option EXPLICIT\n"
    "  .Set CabinetNameTemplate=..\\NAME.cab   relative to the output folder\n"
    "  .Set Cabinet=on\n"
    "  .Set Compress=on                       or off\n"
    "  .Set MaxDiskSize=CDROM                 or bytes; 0 is no limit\n"
    "  \"C:\\Temp\\FILE.csv\"                    a file to pack\n"
    "  ; a comment\n"
    "\n"
    "Further variables: CabinetName1, CompressionType (MSZIP), DestinationDir,\n"
    "DiskDirectory1 and DiskDirectoryTemplate (the output folder, disk1),\n"
    "InfFileName (setup.inf), MaxCabinetSize, RptFileName (setup.rpt), SourceDir,\n"
    "UniqueFiles (on).\n"
    "\n"
    "What is larger than MaxDiskSize or MaxCabinetSize becomes a set of cabinets.\n"
    "A * in CabinetNameTemplate and in DiskDirectoryTemplate is the cabinet's\n"
    "number; without one the second cabinet of NAME.cab is NAME_2.cab.\n"
    "\n"
    "A path on a drive, such as C:\\x, is drive_c/x in the folder that the\n"
    "environment variable ORVAN_SITE_DRIVES names, and on a machine with drives of its\n"
    "own, where that names none, what it says; a path that begins with / is the\n"
    "machine's own.\n"
    "\n"
    "Exit status: 0 done, 1 the cabinet could not be made, 2 wrong usage.\n";

int makeCabinet(const std::string& directivePath, HeldEndSignals& interruptions)
{
    const auto drives = environmentVariable("ORVAN_SITE_DRIVES");
    const cabmaker::MadeCabinet made = cabmaker::makeCabinet(
        directivePath, {.workingFolder = machineTextOf(std::filesystem::current_path()),
                        .drives = drives.value_or(""),
                        .threads = std::thread::hardware_concurrency(),
                        .checkpoint = [&] {
                            if (interruptions.came())
                                throw RunTimeError(runTimeErrors::deviceIo, "interrupted");
                        }});
    const std::string cabinets =
        made.cabinets == 1 ? "" : " in " + std::to_string(made.cabinets) + " cabinets";
    std::printf("%s: %zu files, %llu bytes packed into %llu%s\n", visibleText(made.path).c_str(),
                made.members, static_cast<unsigned long long>(made.plainBytes),
                static_cast<unsigned long long>(made.bytes), cabinets.c_str());
    return statusDone;
}

int run(const std::string& directivePath)
{
    letWritesPastTheSizeLimitFail();
    HeldEndSignals interruptions;
    std::string failure;
    try {
        return makeCabinet(directivePath, interruptions);
    } catch (const std::bad_alloc&) {
        failure = "Out of memory";
    } catch (const std::exception& error) {
        failure = error.what();
    }
    std::fprintf(stderr, "cabmaker: %s\n", visibleText(failure).c_str());
    interruptions.letGo();
    return statusFailed;
}

} // namespace

int main(int count, char** given)
{
    writeUtf8ToTerminals();
    const std::vector<std::string> arguments = programArguments(count, given);
    const std::string option = arguments.size() > 1 ? arguments[1] : "";
    if (arguments.size() == 3 && (option == "/f" || option == "/F" || option == "-f"))
        return run(arguments[2]);
    if (arguments.size() == 2 && (option == "--help" || option == "/?")) {
        std::printf("%s\n%s", usage, help);
        return statusDone;
    }
    if (arguments.size() == 2 && option == "--version") {
        std::printf("cabmaker %s\n", CABMAKER_VERSION);
        return statusDone;
    }
    std::fputs(usage, stderr);
    return statusUsage;
}
