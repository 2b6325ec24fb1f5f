#include "hosts/cli/naming/matching_name.h"

#include "hosts/cli/command.h"
#include "hosts/cli/naming/near_names.h"
#include "text/utf8.h"

#include <algorithm>

namespace cli {

std::optional<std::string> matchingName(const std::string& typed,
                                        const std::vector<std::string>& known)
{
    if (std::find(known.begin(), known.end(), typed) != known.end()) return typed;
    const std::string folded = foldCase(typed);
    std::vector<std::string> found;
    for (const std::string& name : known)
        if (foldCase(name) == folded && std::find(found.begin(), found.end(), name) == found.end())
            found.push_back(name);
    if (found.empty()) return std::nullopt;
    if (found.size() > 1)
        throw CommandFailure("\"" + typed + "\" may be " + namesToChoose(found) +
                             "; write it as it stands there");
    return found.front();
}

} // namespace cli
