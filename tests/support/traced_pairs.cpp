#include "support/traced_pairs.h"

#include "runtime/text.h"

#include <algorithm>
#include <set>

namespace {

/// The innermost call of a routine, by the end of its key; none when it was not entered.
std::set<std::string>::iterator innermost(std::set<std::string>& entered, std::string_view procName)
{
    auto found = entered.end();
    for (auto each = entered.begin(); each != entered.end(); ++each)
        if (each->substr(0, each->rfind('_')) == procName) found = each;
    return found;
}

/// A log that is refused leaves its routine at once, and the micro traces' tree is left without
/// having been entered: both are known, and have tests of their own.
bool isKnown(const std::string& trace)
{
    return beginsWith(trace, "Entering [mdlSnapIn]populateListViewDiagLog_") ||
           trace == "Exiting [ppgMicroTrace01Step]populateMicroTracesTreeview_-1";
}

} // namespace

std::vector<std::string> tracesOutOfPairs(TestTool& tool)
{
    constexpr std::string_view forced = "Error count exceeded, forcing exit from ";
    constexpr std::string_view entering = "Entering ";
    constexpr std::string_view exiting = "Exiting ";
    std::vector<std::string> outOfPairs;
    std::set<std::string> entered;
    for (const LogLine& line : tool.logLines()) {
        const std::string& message = line.message;
        if (beginsWith(message, entering)) {
            entered.insert(message.substr(entering.size()));
        } else if (beginsWith(message, forced)) {
            const auto left = innermost(entered, std::string_view(message).substr(forced.size()));
            if (left != entered.end()) entered.erase(left);
        } else if (beginsWith(message, exiting)) {
            const std::size_t end = message.find(" Start: ");
            const std::string key = message.substr(exiting.size(), end - exiting.size());
            if (end == std::string::npos || entered.erase(key) == 0) outOfPairs.push_back(message);
        }
    }
    for (const std::string& key : entered) outOfPairs.push_back(std::string(entering) + key);
    outOfPairs.erase(std::remove_if(outOfPairs.begin(), outOfPairs.end(), isKnown),
                     outOfPairs.end());
    return outOfPairs;
}

std::vector<std::string> notTraced(TestTool& tool, const std::vector<std::string>& procNames)
{
    std::set<std::string> entered;
    for (const LogLine& line : tool.logLines())
        if (beginsWith(line.message, "Entering [")) entered.insert(line.procName);
    std::vector<std::string> missing;
    for (const std::string& name : procNames)
        if (entered.count(name.substr(0, 50)) == 0) missing.push_back(name);
    return missing;
}
