#include "shell/log_list_view.h"

#include "console/result_view.h"
#include "core/error_trap.h"
#include "core/localisation.h"
#include "logreader/log_file_names.h"
#include "platform/file_system.h"
#include "runtime/integer16.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"
#include "runtime/text.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

void addLogRow(ErrorTrap& step, ToolContext& tool, ResultView& resultView,
               const std::string& process, const std::string& name, Integer16& rowIndex)
{
    std::optional<FileInfo> file;
    std::optional<ListItem> added;
    const auto row = [&]() -> ListItem& { return required(added ? &*added : nullptr); };
    std::string mark;

    step([&] { file = tool.platform.files.file(tool.g_strLogFolder + "\\" + name); });
    step([&] { added = resultView.list().addItem(rowIndex, name); });
    step([&] { row().addSubItem(1, ""); });
    step([&] {
        if (mdlDiagnostics::getCurrentDiagnosticFile(tool, process) == name) mark = "x";
    });
    step([&] { row().addSubItem(2, mark); });
    step([&] { row().addSubItem(3, name); });
    step([&] {
        row().addSubItem(4, dateText(mdlDiagnostics::parseDateFromFileName(tool, process, name)));
    });
    step([&] {
        const FileInfo& facts = required(file);
        row().addSubItem(5, numberTextWithLeadingBlank(facts.size));
    });
    step([&] { ++rowIndex; });
}

} // namespace

void mdlSnapIn::nameLogFileColumns(ToolContext& tool, ResultView& resultView)
{
    constexpr std::pair<int, TextId> headers[] = {{2, TextId::current},
                                                  {3, TextId::fileName},
                                                  {4, TextId::timeStamp},
                                                  {5, TextId::sizeInBytes}};
    ErrorTrap step{tool, "mdlSnapIn", "populateListViewAllLogs"};

    for (const auto& header : headers) {
        step([&] {
            resultView.list().column(header.first).text = myLoadResString(tool, header.second);
        });
    }
}

void mdlSnapIn::populateListViewAllLogs(ToolContext& tool, ResultView& resultView)
{
    ErrorTrap step{tool, "mdlSnapIn", "populateListViewAllLogs"};
    Integer16 rowIndex = 1;

    step.enterProc();
    nameLogFileColumns(tool, resultView);
    const std::string process = step.value("", [&] { return resultView.scopePaneItem().name(); });
    const auto names = step.value({}, [&] {
        return tool.platform.files.matching(tool.g_strLogFolder + "\\" +
                                            logFileNames::logsOfProcess(process));
    });
    for (const auto& name : names) {
        if (logFileNames::isFormattedCopy(name)) continue;
        addLogRow(step, tool, resultView, process, name, rowIndex);
    }
    step.exitProc();
}
