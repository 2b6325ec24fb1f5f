#include "traces/trace_bits.h"

#include "core/tool_context.h"
#include "runtime/numbers.h"
#include "runtime/run_time_error.h"

std::int32_t mdlTraces::levelMask(const ToolContext& tool, int level)
{
    if (level < 0 || static_cast<std::size_t>(level) >= tool.g_bitMasks.size())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return tool.g_bitMasks[static_cast<std::size_t>(level)];
}

std::int16_t mdlTraces::leadingLevel(std::string_view text)
{
    return toInteger16(leadingNumber(text));
}
