#include "core/trapped_error_listener.h"

#include "core/tool_context.h"

#include <utility>

TrappedErrorListener::TrappedErrorListener(ToolContext& tool, Hear hear)
    : tool_(tool), hear_(std::move(hear)), before_(std::exchange(tool.trappedErrorListener, this))
{}

TrappedErrorListener::~TrappedErrorListener()
{
    TrappedErrorListener** link = &tool_.trappedErrorListener;
    while (*link != this) link = &(*link)->before_;
    *link = before_;
}

void TrappedErrorListener::tell(ToolContext& tool, const RunTimeError& error,
                                std::string_view procName)
{
    if (tool.trappedErrorListener) tool.trappedErrorListener->hear_(error, procName);
}
