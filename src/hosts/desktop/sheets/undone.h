#pragma once

#include "hosts/common/look/interface_language.h"
#include "runtime/run_time_error.h"

#include <optional>
#include <string>
#include <string_view>

class OpenSheet;

namespace desktop {

/// The first thing that the tool could not do of what a person asked for. The tool goes on after an
/// error and shows its own texts as if all had gone well.
class Undone {
public:
    /// Takes an error that a routine's trap has logged, under the routine's "[module]name".
    void note(const RunTimeError& error, std::string_view procName);

    /// What was left undone since the last call, as a sentence; null for nothing. `sheet` is the
    /// one that the person worked with, null for none.
    LiveSentence take(const OpenSheet* sheet);

private:
    std::optional<std::string> why_;
};

} // namespace desktop
