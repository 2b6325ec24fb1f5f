#pragma once

#include "hosts/cli/command.h"
#include "hosts/cli/manual/values.h"

#include <string>
#include <vector>

namespace cli {

/// The values of a kind that the server has now, which the options or what is set for the person
/// name, of which `typed` is there so far. None where the
/// server or what it keeps of them can't be read; that is told nobody.
///
/// It is read without its database, which may be slow to answer or held by others, without taking a
/// turn, and nothing is written: components are those that the catalogue of level texts tells of.
std::vector<std::string> liveValues(GlobalOptions options, Values kind, const std::string& typed);

} // namespace cli
