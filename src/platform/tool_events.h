#pragma once

#include <cstdint>

/// The events that the tool itself reports to the server's event log. Ids and source are those of
/// the server's message texts.
namespace toolEvents {

constexpr const char* source = "OrvanDiagnosticTool_MC";

// The types.
constexpr int success = 0;
constexpr int traceChange = 10;

// The ids: the first three mark the tool's life, the others changes of traces.
constexpr std::int32_t reporterReady = 10001;
constexpr std::int32_t loaded = 10002;
constexpr std::int32_t unloaded = 10003;
constexpr std::int32_t macroTraceOn = 10004;
constexpr std::int32_t macroTraceOff = 10005;
constexpr std::int32_t microTraceOn = 10006;

} // namespace toolEvents
