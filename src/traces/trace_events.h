#pragma once

#include <cstdint>

/// The events that mark changes of traces in the server's event log.
namespace traceEvents {
constexpr int type = 10;
constexpr std::int32_t macroTraceOn = 10004;
constexpr std::int32_t macroTraceOff = 10005;
constexpr std::int32_t microTraceOn = 10006;
} // namespace traceEvents
