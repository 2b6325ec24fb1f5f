#pragma once

#include "core/trapped_error_listener.h"
#include "hosts/common/gather/gather_files.h"
#include "hosts/common/gather/gather_job.h"
#include "hosts/common/gather/gather_outcome.h"
#include "hosts/common/gather/gather_troubles.h"
#include "hosts/common/sentence.h"

#include <optional>

class GatherReport;
class ppgGatherLogs03Step;
struct ToolContext;

/// Follows one run of the gather pipeline, whose own texts tell of no failure.
///
/// Made before the run, while the progress page is on show with its steps; asked after it. What the
/// tool's watched services saw of the logs comes from their report.
class GatherWatch {
public:
    /// `tool`, `report`, and the page until the run has returned, outlive the watch. Raises 424 for
    /// a page without a job, and 9 for a job whose lists were never cleared.
    GatherWatch(ToolContext& tool, GatherReport& report, const ppgGatherLogs03Step& page,
                MachinePath machinePath);
    GatherWatch(const GatherWatch&) = delete;
    GatherWatch& operator=(const GatherWatch&) = delete;

    /// Why the run must not begin, if so: it would take away what lies in the destination, or write
    /// to what is not a plain file there. What a gather that was killed has left of its packing is
    /// removed first. To be asked before the run, by who has the turn on the destination.
    std::optional<Sentence> refusal() const { return files_.refusal(); }

    /// What `refusal` would say. Changes nothing, and needs no turn.
    std::optional<Sentence> foreseenRefusal() const { return files_.foreseenRefusal(); }

    /// To be called at each message box of the run: the one that the pipeline has tells of a log
    /// that is not there.
    void messageShown() { troubles_.noteMissingLog(); }

    /// To be called when the person cancels.
    void cancelled() { cancelled_ = true; }

    /// What the run left. To be asked once it has returned.
    GatherOutcome outcome() const;

private:
    ToolContext& tool_;
    GatherReport& report_;
    MachinePath machinePath_;
    GatherJob job_;
    GatherFiles files_;
    GatherTroubles troubles_;
    bool cancelled_ = false;
    std::optional<TrappedErrorListener> listener_; ///< last: what it tells of is there before it
};
