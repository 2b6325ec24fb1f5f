#include "backends/jet/pages/file_pages.h"
#include "backends/jet/reader.h"
#include "core/localisation.h"
#include "core/registry_store.h"
#include "core/utility.h"
#include "hosts/common/health/examined_server.h"
#include "hosts/common/health/health_checks.h"
#include "hosts/common/health/health_sentences.h"
#include "platform/file_system.h"
#include "platform/languages.h"
#include "platform/tool_files.h"
#include "platform/trace_database.h"
#include "runtime/run_time_error.h"

namespace healthChecks {

namespace {

using namespace healthSentences;
using health::lacking;
using health::listed;
using health::well;

constexpr const char* tablesOfGather[] = {"tblTraces", "tblMacroTraces", "tblUniqueFilters"};

HealthReport lookAtBlankDatabase(ExaminedServer& server)
{
    const std::string file = server.besideTool(toolFiles::blankDatabase);
    if (!server.files().fileExists(file))
        return lacking(HealthState::missing, {noFile, {file}}, installTool);
    try {
        const jet::FilePages pages(server.machinePath(file));
        const jet::Reader reader(pages.pages());
        for (const char* table : tablesOfGather)
            if (!reader.find(table))
                return lacking(HealthState::damaged, {noTable, {file, table}}, installTool);
        return well({plain, {file}});
    } catch (const RunTimeError& error) {
        const bool read = error.number() == traceDatabaseErrors::unknownFormat;
        return lacking(read ? HealthState::damaged : HealthState::unusable,
                       {unreadFile, {file, health::clauseOf(error)}}, read ? installTool : letRead);
    }
}

HealthReport lookAtCabinetMaker(ExaminedServer& server)
{
    const std::string file = server.besideTool(toolFiles::cabinetMaker);
    if (!server.files().fileExists(file))
        return lacking(HealthState::missing, {noFile, {file}}, installTool);
    if (const std::string why = server.server().obstacleTo(file); !why.empty())
        return lacking(HealthState::unusable, {notStarted, {file, why}}, installTool);
    return well({plain, {file}});
}

HealthReport lookAtViewer(ExaminedServer& server)
{
    const std::string named = getRegistryText(server.context(), viewerKey, viewerValue);
    if (named.empty()) return lacking(HealthState::missing, {noViewer, {}}, useOwnViewer);
    const std::string file = expandPath(server.context(), named);
    if (!server.files().fileExists(file))
        return lacking(HealthState::missing, {noFile, {file}}, useOwnViewer);
    if (const std::string why = server.server().obstacleTo(file); !why.empty())
        return lacking(HealthState::unusable, {notStarted, {file, why}}, useOwnViewer);
    return well({plain, {file}});
}

/// Whether the texts of a language lie beside the tool.
bool hasTexts(ExaminedServer& server, std::int32_t language)
{
    Languages& libraries = server.context().platform.languages;
    const std::int32_t handle =
        libraries.loadLibrary(languageLibraryPath(server.context().platform.module, language));
    if (handle != 0) libraries.freeLibrary(handle);
    return handle != 0;
}

bool isEnglish(std::int32_t language)
{
    constexpr int english = 9; ///< the primary language in the low bits of an identifier
    constexpr int primaryLanguage = 0x3ff;
    return (language & primaryLanguage) == english;
}

HealthReport lookAtLanguages(ExaminedServer& server)
{
    const auto codes = libraryCodes(server.context());
    if (codes.empty()) return lacking(HealthState::missing, {noLanguages, {}}, installTool);
    std::vector<std::string> bad;
    for (const std::string& code : codes)
        if (!hasTexts(server, languageIdFromCode(code))) bad.push_back(code);
    if (!bad.empty())
        return lacking(HealthState::damaged, {badLanguages, {listed(bad)}}, installTool);
    const std::int32_t own = server.context().platform.languages.userDefaultLanguage();
    if (!isEnglish(own) && !hasTexts(server, own))
        return lacking(HealthState::missing, {noOwnLanguage, {languageName(server.context(), own)}},
                       installTool);
    return well({languageCodes, {listed(codes)}});
}

} // namespace

std::vector<HealthCheck> ofToolFolder()
{
    return {
        {"trace-database", blankDatabase, true, lookAtBlankDatabase},
        {"cabinet-maker", cabinetMaker, true, lookAtCabinetMaker},
        {"viewer", viewer, false, lookAtViewer},
        {"languages", languages, false, lookAtLanguages},
    };
}

} // namespace healthChecks
