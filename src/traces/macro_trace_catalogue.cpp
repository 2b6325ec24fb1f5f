#include "traces/macro_trace_catalogue.h"

#include "core/error_trap.h"
#include "platform/file_system.h"
#include "platform/trace_database.h"
#include "runtime/numbers.h"
#include "runtime/required_object.h"
#include "traces/macro_trace_record.h"

namespace {

constexpr std::string_view moduleName = "mdlTraces";

std::vector<std::string> definitionFiles(const ToolContext& tool)
{
    return tool.platform.files.matching(tool.g_strMacroTraceFolder + "\\HT*.xml");
}

std::string definitionPath(const ToolContext& tool, const std::string& fileName)
{
    return tool.g_strMacroTraceFolder + "\\" + fileName;
}

/// One building of the catalogue. What a failed step should have read is still that of the step
/// before: a file that does not load counts to the group before it, and brings nothing.
struct Merge {
    ToolContext& tool;
    ErrorTrap& step;
    std::unique_ptr<XmlDocument> file; ///< one after the other
    std::string groupName;
    XmlElementPtr
        mergedGroup; ///< of that name in the catalogue; null for the first file of a group
    std::string traceName;

    void mark(const XmlElementPtr& trace)
    {
        step([&] { traceName = requiredAttribute(trace, "NAME"); });
        mdlTraces::appendEnabledAttribute(tool, trace, groupName, traceName);
    }

    void addGroup()
    {
        const XmlElementPtr group =
            step.value(nullptr, [&] { return file->selectSingleNode("GA"); });
        const auto traces = step.value({}, [&] { return required(group).selectNodes("TRACE"); });
        for (const auto& trace : traces) mark(trace);
        step([&] { required(tool.g_domMacroTraces->documentElement()).appendChild(group); });
    }

    void addTraces(XmlElement& group)
    {
        const auto traces = step.value({}, [&] { return file->selectNodes("GA/TRACE"); });
        for (const auto& trace : traces) {
            mark(trace);
            step([&] { group.appendChild(trace); });
        }
    }

    void addFile(const std::string& fileName)
    {
        step([&] { file->load(definitionPath(tool, fileName)); });
        step([&] { groupName = requiredAttribute(file->selectSingleNode("GA"), "NAME"); });
        step([&] {
            mergedGroup = tool.g_domMacroTraces->selectSingleNode("HYBRIDTRACES/GA[@NAME='" +
                                                                  groupName + "']");
        });
        if (mergedGroup)
            addTraces(*mergedGroup);
        else
            addGroup();
    }
};

} // namespace

void mdlTraces::initMacroTraces(ToolContext& tool)
{
    ErrorTrap step{tool, moduleName, "initMacroTraces", countedTrap};
    Merge merge{tool, step, nullptr, {}, nullptr, {}};

    step.body([&] {
        step.enterProc();
        step([&] { tool.g_domMacroTraces = tool.platform.xml.newDocument(); });
        step([&] { tool.g_domMacroTraces->appendDocumentElement("HYBRIDTRACES"); });
        step([&] { merge.file = tool.platform.xml.newDocument(); });
        const auto fileNames = step.value({}, [&] { return definitionFiles(tool); });
        for (const auto& fileName : fileNames) merge.addFile(fileName);
        step.exitProc();
    });
}

void mdlTraces::appendEnabledAttribute(ToolContext& tool, const XmlElementPtr& traceElement,
                                       const std::string& groupName, const std::string& traceName)
{
    ErrorTrap step{tool, moduleName, "appendEnabledAttribute"};
    const std::int16_t enabled =
        step.value(0, [&] { return isenabledMacroTrace(tool, groupName, traceName); });
    step(
        [&] { required(traceElement).setAttribute("Enabled", numberText(std::int64_t{enabled})); });
}

void mdlTraces::storeMacroTraceFiles(ToolContext& tool, TraceRecordset& target)
{
    for (const auto& fileName : definitionFiles(tool)) {
        const auto stream = tool.platform.files.openForReading(definitionPath(tool, fileName));
        target.addNew();
        target.field("Name").setUtf8(fileName);
        target.field("Data").setUtf8(tool.platform.xml.textOf(stream->readAll()));
        target.update();
        stream->close();
    }
}
