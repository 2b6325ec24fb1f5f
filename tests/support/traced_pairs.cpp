#include "support/traced_pairs.h"

#include "runtime/text.h"

#include <set>

std::vector<std::string> tracesOutOfPairs(TestTool& tool)
{
    constexpr std::string_view entering = "Entering ";
    constexpr std::string_view exiting = "Exiting ";
    std::vector<std::string> outOfPairs;
    std::set<std::string> entered;
    for (const LogLine& line : tool.logLines()) {
        const std::string& message = line.message;
        if (beginsWith(message, entering)) {
            entered.insert(message.substr(entering.size()));
        } else if (beginsWith(message, exiting)) {
            const std::size_t end = message.find(" Start: ");
            const std::string key = message.substr(exiting.size(), end - exiting.size());
            if (end == std::string::npos || entered.erase(key) == 0) outOfPairs.push_back(message);
        }
    }
    for (const std::string& key : entered) outOfPairs.push_back(std::string(entering) + key);
    return outOfPairs;
}
