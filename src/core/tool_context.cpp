#include "core/tool_context.h"

ToolContext::ToolContext(Platform& services)
    : platform(services), g_log([&services] { return std::make_unique<classLog>(services); }),
      g_connection(services.connection)
{}
