#include "server/workstation_info.h"

#include "core/tool_context.h"

namespace {
constexpr int windowsNtFamily = 2;
}

WSInfo::WSInfo(const Workstation& workstation) : workstation_(workstation)
{
    if (workstation_.platform() == windowsNtFamily) m_bIsNT = true;
    Refresh();
}

void WSInfo::Refresh()
{
    if (!m_bIsNT) return;
    if (auto details = workstation_.details()) machine_ = *details;
    if (auto user = workstation_.user()) user_ = *user;
}

WSInfo& workstationInfo(ToolContext& tool)
{
    if (!tool.g_wsInfo) tool.g_wsInfo = std::make_shared<WSInfo>(tool.platform.workstation);
    return *tool.g_wsInfo;
}
