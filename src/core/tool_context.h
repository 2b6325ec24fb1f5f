#pragma once

#include "core/class_log.h"
#include "core/first_use.h"
#include "platform/platform.h"
#include "platform/time_zone.h"
#include "runtime/dictionary.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

class DatabaseConnection;
class OpenForm;
class ScopeItem;
class TrappedErrorListener;
class WSInfo;
class XmlDocument;

/// What the interface language module remembers.
struct LanguageState {
    std::int32_t g_hResourceLibrary = 0;   ///< 0 when no library is loaded
    std::int32_t g_lngCurrentLanguage = 0; ///< 0 when none is chosen yet
    std::vector<std::string>
        g_astrLanguages;              ///< codes of the libraries found; never empty once filled
    std::vector<OpenForm*> openForms; ///< in the order of their opening
};

/// The tool's whole state: every global variable and the services that the tool is given.
///
/// One for a run of the tool; a routine takes it as its first argument. What is marked "first use"
/// comes to life in whichever routine touches it first.
struct ToolContext {
    explicit ToolContext(Platform& services);

    Platform& platform;

    FirstUse<classLog> g_log;
    bool g_bDebugMode = false;         ///< the log's DebugMode, taken once at start-up
    bool g_bExtendedLogFields = false; ///< server logs carry thread, port and call id

    std::string g_strInstalledFolder;
    std::string g_strLogFolder;        ///< of the server's logs; read once at start-up
    std::string g_strMacroTraceFolder; ///< of the macro trace definitions

    std::int32_t g_eventLogHandle = 0;
    TimeZoneInformation g_timeZone;
    std::array<std::int32_t, 32>
        g_bitMasks{}; ///< entry n is 2 to the power n; entry 31 is negative

    DatabaseConnection& g_connection; ///< opened at start-up and never closed by the tool

    std::shared_ptr<XmlDocument> g_domMacroTraces;     ///< all definitions; null until built
    std::shared_ptr<XmlDocument> g_domDiagnosticGrids; ///< first use, by `openDiagGrids`

    std::shared_ptr<WSInfo> g_wsInfo; ///< first use, through `workstationInfo`

    /// Scope item key to log node, and to opened process node. Never emptied: a node that has gone,
    /// or was never there, is null.
    Dictionary<std::weak_ptr<ScopeItem>> g_dictLogItems;
    Dictionary<std::weak_ptr<ScopeItem>> g_dictProcessItems;

    LanguageState language;
    std::int32_t g_hwndHelp = 0; ///< the window that help was shown in last; 0 for none

    std::string g_strTraceDatabase;              ///< path of the latest trace database, or empty
    Dictionary<std::string> g_dictUniqueFilters; ///< never emptied
    TrappedErrorListener* trappedErrorListener = nullptr; ///< null when nobody listens

    bool cancelRequested = false; ///< asked and set by `cancelCurrentProcess`
};
