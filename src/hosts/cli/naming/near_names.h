#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Those of `known` that a person most likely meant by a name that is none of them: all that are
/// equally near, at most three, each once, in the order of `known`. Care is taken of no case, and
/// two letters that changed places are one slip. Where nothing is a few slips away, names that hold
/// all of the typed one are near. None for what is too short to tell, or longer than anybody types.
std::vector<std::string> nearNames(std::string_view typed, const std::vector<std::string>& known);

/// Names as a choice of a sentence, such as `status`, `A or B` or `"A - B", C or D`: quoted where
/// a shell would take one apart. Empty for none.
std::string namesToChoose(const std::vector<std::string>& names);

/// What ends a sentence that refuses a name: `; did you mean CallFlow?`, with `namesToChoose` of
/// the near ones. `otherwise` where none is near.
std::string didYouMean(std::string_view typed, const std::vector<std::string>& known,
                       const std::string& otherwise = {});

} // namespace cli
