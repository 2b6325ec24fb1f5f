#include "hosts/desktop/window/help_topics.h"

#include <string_view>
#include <utility>

namespace desktop {

int helpTopic::ofPage(const std::string& name)
{
    constexpr std::pair<std::string_view, int> pages[] = {
        {"ppgMacroTrace0Welcome", 200}, {"ppgMacroTrace1", 200},
        {"ppgMacroTrace3Final", 200},   {"ppgMicroTrace00Welcome", 210},
        {"ppgMicroTrace01Step", 210},   {"ppgMicroTrace99Final", 210},
        {"ppgDisableAllTraces0", 220},  {"ppgGatherLogs00Welcome", 300},
        {"ppgGatherLogs01Step", 320},   {"ppgGatherLogs02Step", 330},
        {"ppgGatherLogs03Step", 340},   {"ppgGatherLogs99Final", 350},
        {"ppgConfLogSettings", 400},    {"ppgEventLogLanguage", 410},
    };
    for (const auto& [page, topic] : pages)
        if (page == name) return topic;
    return contents;
}

} // namespace desktop
