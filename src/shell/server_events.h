#pragma once

#include <cstdint>

/// The events that mark the tool's life in the server's event log.
namespace serverEvents {
constexpr const char* source = "OrvanDiagnosticTool_MC";
constexpr int success = 0; ///< the event type
constexpr std::int32_t reporterReady = 10001;
constexpr std::int32_t loaded = 10002;
constexpr std::int32_t unloaded = 10003;
} // namespace serverEvents
