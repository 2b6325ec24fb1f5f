#pragma once

#include "hosts/common/gather/gather_job.h"
#include "hosts/common/look/interface_language.h"

#include <functional>
#include <string>
#include <vector>

class DestinationTurn;
class GatherReport;
class GatherWatch;
class SheetPage;
class Timer;
struct Sentence;
struct ToolContext;

namespace desktop {

/// A sentence that the hosts share, in the language of the window.
QString inLanguage(const Sentence& sentence);

/// Follows the gathers that a person has the tool do, and tells what each left undone: the tool's
/// own texts tell of no failure.
class GatherNotice {
public:
    /// Lets a timer of a page tick. Where that runs a gather: gives, when it has come to its end,
    /// what there is to say, and null for nothing; a gather that would harm its destination, or
    /// another one that writes there, is not run, and why is said at once. One that would name its
    /// results as an earlier one did is run at a later tick. `tool`, what its services saw of the
    /// logs (`report`) and the page outlive the call.
    LiveSentence tick(ToolContext& tool, GatherReport& report, const SheetPage& page, Timer& timer,
                      MachinePath machinePath, const std::function<void()>& run);

    /// A box was shown; the person cancels on a page. Both count for the gather that runs.
    void messageShown();
    void cancelled(const SheetPage& page);

    /// The gather that runs is cancelled, from wherever.
    void cancelled();

private:
    bool leavesASecond(const DestinationTurn& turn, const Timer& timer);

    GatherWatch* watch_ = nullptr; ///< null while no gather runs
    int waited_ = 0;               ///< milliseconds, for the second of earlier results to pass
};

/// The sentences about gathers that the window has translations of, in English.
std::vector<std::string> translatedGatherSentences();

} // namespace desktop
