#pragma once

#include "console/console.h"
#include "core/text_id.h"

#include <functional>
#include <string>

class HostModule;
class Languages;

/// What the snap-in calls itself, for whoever asks before there is a tool, such as a console that
/// lists the snap-ins it could load: in the user's language, and without the help file's name. No
/// log, no registry and no event is touched. Raises what the services raise.
SnapInIdentity snapinIdentity(Languages& languages, const HostModule& module);

/// The snap-in's name and its legal notices, a line each, of the texts that `text` gives.
std::string snapinDescription(const std::function<std::string(TextId)>& text);
