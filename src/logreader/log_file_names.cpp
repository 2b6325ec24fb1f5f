#include "logreader/log_file_names.h"

#include "core/error_trap.h"
#include "core/registry_store.h"
#include "platform/file_system.h"
#include "runtime/text.h"

namespace {

std::string fileNameOf(const std::string& path)
{
    const std::size_t separator = path.find_last_of("\\/");
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

} // namespace

std::string logFileNames::logsOfProcess(const std::string& process)
{
    return std::string(diagnosticPrefix) + process + "_*" + std::string(ending);
}

bool logFileNames::isFormattedCopy(std::string_view name)
{
    return lowerCase(name).find(formattedTag.substr(1)) != std::string::npos;
}

std::string mdlDiagnostics::getCurrentDiagnosticFile(ToolContext& tool, const std::string& process)
{
    ErrorTrap step{tool, "mdlDiagnostics", "getCurrentDiagnosticFile"};
    std::string name;

    step.enterProc();
    const std::string path = step.value("", [&] {
        return getRegistryText(tool, std::string(logProcessesKey) + "\\" + process,
                               currentLogValue);
    });
    const bool exists = step.value(false, [&] { return tool.platform.files.fileExists(path); });
    if (exists) name = fileNameOf(path);
    step.exitProc();
    return name;
}

Date mdlDiagnostics::parseDateFromFileName(ToolContext& tool, const std::string& process,
                                           const std::string& fileName)
{
    ErrorTrap step{tool, "mdlDiagnostics", "parseDateFromFileName"};
    int position = 0;
    const auto digits = [&](int offset, int count) {
        return std::string(mid(fileName, position + offset, count));
    };

    step.enterProc();
    position = static_cast<int>(positionOf(fileName, process) + process.size() + 1);
    const std::string dateText =
        step.value("", [&] { return digits(4, 2) + "/" + digits(6, 2) + "/" + digits(0, 4); });
    position += 9;
    const std::string timeText =
        step.value("", [&] { return digits(0, 2) + ":" + digits(2, 2) + ":" + digits(4, 2); });
    const Date opened = step.value(Date{}, [&] { return parseDate(dateText + " " + timeText); });
    step.exitProc();
    return opened;
}

std::string mdlDiagnostics::appendFormattedTagToFile(ToolContext& tool, const std::string& fileName)
{
    ErrorTrap step{tool, "mdlDiagnostics", "appendFormattedTagToFile"};
    int dot = 0;
    std::string tagged;

    step.enterProc();
    dot = static_cast<int>(positionOf(fileName, "."));
    step([&] {
        tagged.append(mid(fileName, 1, dot - 1))
            .append(logFileNames::formattedTag)
            .append(mid(fileName, dot));
    });
    step.exitProc();
    return tagged;
}
