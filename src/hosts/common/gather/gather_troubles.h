#pragma once

#include "runtime/run_time_error.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class TreeView;

/// The part of a run of the gather pipeline in which something failed.
enum class GatherStage {
    run,         ///< the destination, the database, and what is no part of another stage
    definitions, ///< of the macro traces, for the database
    serverLog,
    eventLog,
    filters, ///< the database's table of them
    packing,
};

/// Why a part of the gather is not whole.
struct GatherTrouble {
    GatherStage stage;
    std::string log;     ///< its name; empty but for the stages of a log
    bool tooManyErrors;  ///< a trap gave up for malformed lines alone
    std::string why;     ///< without a full stop; empty for a log that is not there
    bool gaveUp = false; ///< a trap gave up, behind a trouble of another kind
};

/// What went wrong in one run of the gather pipeline: the first trouble of each log and stage,
/// which is the cause of those behind it.
class GatherTroubles {
public:
    /// `steps` is the tree of the progress page, and outlives the run; the leaf of the log that is
    /// being gathered stands in bold. `destinationThere` tells whether the folder is there now.
    GatherTroubles(const TreeView& steps, std::function<bool()> destinationThere);

    /// Hears an error that a routine went on after, whichever routine that is.
    void note(const RunTimeError& error, std::string_view procName);

    /// The log that is being gathered is not there.
    void noteMissingLog();

    /// Null when nothing went wrong there.
    const GatherTrouble* at(GatherStage stage, std::string_view log = {}) const;

    /// Whether the destination was there when the stage of the run had its first trouble; true when
    /// it had none.
    bool destinationMade() const { return destinationMade_; }

private:
    void add(GatherTrouble trouble);

    const TreeView& steps_;
    std::function<bool()> destinationThere_;
    std::vector<GatherTrouble> troubles_;
    bool destinationMade_ = true;
};

/// What an error tells, as a part of a sentence: some end in a point of their own.
std::string causeOf(const RunTimeError& error);
