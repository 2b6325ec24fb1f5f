#pragma once

#include "core/trapped_error_listener.h"
#include "hosts/common/sentence.h"
#include "runtime/run_time_error.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

class GatherReport;
class ResultFolder;
class TreeNode;
class TreeView;
class ppgGatherLogs03Step;
struct ToolContext;

/// The sentences about a gather, for a host that translates them.
namespace gatherSentences {
constexpr std::string_view noCurrentLog = "The server names no current log of %1.";
constexpr std::string_view currentLogGone = "The current log of %1, %2, is not there.";
constexpr std::string_view currentLogUnseen = "The current log of %1, %2, can't be looked at: %3.";
constexpr std::string_view noLogFolder = "The server's log folder %1 is not there.";
constexpr std::string_view logsNotListed = "The logs in %1 could not be listed: %2.";
constexpr std::string_view logUnseen = "%1 was passed over: %2.";
constexpr std::string_view logNotFound = "%1 was not gathered: it is not in %2.";
constexpr std::string_view logNotCopied = "%1 was not copied: %2.";
constexpr std::string_view logCopiedInPart = "%1 was copied in part: %2.";
constexpr std::string_view logReadInPart = "%1 was not gathered as a whole: %2.";
constexpr std::string_view logReadSoFar = "%1 was read as far as line %3: %2.";
constexpr std::string_view linesNotStored = "Lines of %1 that were not stored: %3 (%2).";
constexpr std::string_view logCut = "%1 was cut while it was read.";
constexpr std::string_view logVanished = "%1 was taken away while it was read.";
constexpr std::string_view logsCutShort =
    "%1 logs were not gathered as a whole, the first of them %2: %3.";
constexpr std::string_view tooManyMalformedLines =
    "%1 has too many malformed lines, and was read no further than the eleventh.";
constexpr std::string_view eventLogNotCaptured = "The %1 event log was not captured: %2.";
constexpr std::string_view destinationNotMade = "The destination %1 can't be made: %2.";
constexpr std::string_view destinationGone = "The destination %1 has gone.";
constexpr std::string_view noDatabase = "No trace database was made: %1.";
constexpr std::string_view databaseIncomplete = "The trace database is not complete: %1.";
constexpr std::string_view definitionsIncomplete =
    "The macro trace definitions could not all be stored: %1.";
constexpr std::string_view filtersIncomplete = "The filters could not all be stored: %1.";
constexpr std::string_view noCabinet = "No cabinet was made.";
constexpr std::string_view noCabinetMaker = "No cabinet was made: the cabinet maker %1 is missing.";
constexpr std::string_view noCabinetBecause = "No cabinet was made: %1.";
constexpr std::string_view cabinetMakerReplaced =
    "The site's cabinet maker is not the installed one, which made the cabinet in its place.";
constexpr std::string_view wouldBeLost =
    "%1 in the destination %2 would be lost: the gather makes a file or folder of that name and "
    "removes it again.";
constexpr std::string_view notPlain =
    "%1 in the destination %2 is not a plain file, and nothing is written to such a one.";
constexpr std::string_view destinationTaken =
    "Another gather is writing to %1; wait until it has ended, or name another folder.";
constexpr std::string_view cancelled = "The gather was cancelled.";
constexpr std::string_view emptyFrame = "No line lies in the time frame.";
constexpr std::string_view kept = "What was gathered is kept in %1.";

/// Each of them once.
constexpr std::string_view all[] = {
    noCurrentLog,
    currentLogGone,
    currentLogUnseen,
    noLogFolder,
    logsNotListed,
    logUnseen,
    logNotFound,
    logNotCopied,
    logCopiedInPart,
    logReadInPart,
    logReadSoFar,
    linesNotStored,
    logCut,
    logVanished,
    logsCutShort,
    tooManyMalformedLines,
    eventLogNotCaptured,
    destinationNotMade,
    destinationGone,
    noDatabase,
    databaseIncomplete,
    definitionsIncomplete,
    filtersIncomplete,
    noCabinet,
    noCabinetMaker,
    noCabinetBecause,
    cabinetMakerReplaced,
    wouldBeLost,
    notPlain,
    destinationTaken,
    cancelled,
    emptyFrame,
    kept,
};
} // namespace gatherSentences

/// What a run of the gather pipeline left, and what it left undone.
struct GatherOutcome {
    std::string destination;             ///< as a path of this machine
    bool destinationThere = false;       ///< whether a folder is there now
    bool destinationSwapped = false;     ///< whether it is another one than when the run began
    std::vector<std::string> files;      ///< names of what this run wrote there, sorted
    std::optional<std::string> database; ///< paths of this machine; none when it was not made
    std::optional<std::string> cabinet;  ///< the first one of a set
    bool cabinetMakerReplaced = false;   ///< the installed one ran, and the site's is another one
    bool cancelled = false;
    std::map<std::string, std::int64_t, std::less<>> rows; ///< of the database, by process
    bool emptyFrame = false; ///< a database was made, and no line lies in the time frame

    /// What was asked for and is not there as a whole, and why. Empty when the gather brought all.
    std::vector<Sentence> missing;

    /// What to tell the person beside the tool's own texts: a cancel, what is missing, an empty
    /// time frame, another cabinet maker, and where the rest is kept. Empty when there is nothing
    /// to add.
    std::vector<Sentence> sentences() const;
};

/// Follows one run of the gather pipeline, whose own texts tell of no failure.
///
/// Made before the run, while the progress page is on show with its steps; asked after it. What the
/// tool's watched services saw of the logs comes from their report.
class GatherWatch {
public:
    /// Where a path of the tool lies on this machine.
    using MachinePath = std::function<std::string(const std::string&)>;

    /// `tool`, `report`, and the page until the run has returned, outlive the watch. Raises 424 for
    /// a page without a job, and 9 for a job whose lists were never cleared.
    GatherWatch(ToolContext& tool, GatherReport& report, const ppgGatherLogs03Step& page,
                MachinePath machinePath);
    ~GatherWatch();
    GatherWatch(const GatherWatch&) = delete;
    GatherWatch& operator=(const GatherWatch&) = delete;

    /// Why the run must not begin, if so: it would take away what lies in the destination, or write
    /// to what is not a plain file there. What a gather that was killed has left of its packing is
    /// removed first. To be asked before the run, by who has the turn on the destination.
    std::optional<Sentence> refusal() const;

    /// What `refusal` would say. Changes nothing, and needs no turn.
    std::optional<Sentence> foreseenRefusal() const;

    /// To be called at each message box of the run: the one that the pipeline has tells of a log
    /// that is not there.
    void messageShown();

    /// To be called when the person cancels.
    void cancelled() { cancelled_ = true; }

    /// What the run left. To be asked once it has returned.
    GatherOutcome outcome() const;

private:
    struct Stamp {
        std::filesystem::file_time_type written;
        std::uintmax_t size;

        bool operator==(const Stamp&) const = default;
    };

    enum class Stage { run, definitions, serverLog, eventLog, filters, packing };

    /// Why a part of the gather is not whole.
    struct Trouble {
        Stage stage;
        std::string log;    ///< empty but for the stages of a log
        bool tooManyErrors; ///< a trap gave up for malformed lines alone
        std::string why;
        bool gaveUp = false; ///< the same, behind a trouble of another kind
    };

    std::string cabinetMaker() const;
    void note(const RunTimeError& error, std::string_view procName);
    void add(Trouble trouble);

    /// Null when nothing went wrong there.
    const Trouble* troubleAt(Stage stage, std::string_view log = {}) const;

    std::optional<Sentence> refusalBeside(const std::vector<std::string>& leftovers) const;
    std::map<std::string, Stamp> filesThere() const;
    bool isOfThisRun(const std::string& name) const;
    bool isCapture(const std::string& name) const;
    bool mayBeOfThisRun(const std::string& name) const;
    void findFiles(GatherOutcome& outcome) const;
    void tellOfDestination(GatherOutcome& outcome) const;
    void tellOfDatabase(GatherOutcome& outcome) const;
    void tellOfCabinet(GatherOutcome& outcome) const;
    void tellOfCabinetsContents(GatherOutcome& outcome) const;
    void tellOfCurrentLog(GatherOutcome& outcome) const;
    void tellOfCurrentLogs(GatherOutcome& outcome) const;
    std::map<std::string, std::string> passedOver(std::error_code& failed) const;
    void tellOfListing(GatherOutcome& outcome) const;
    void tellOfLogs(GatherOutcome& outcome) const;
    void tellOfEventLogs(GatherOutcome& outcome) const;
    std::vector<Sentence> gapsOf(const std::string& log, const GatherOutcome& outcome) const;
    std::optional<Sentence> gapOf(const std::string& log, const GatherOutcome& outcome) const;

    ToolContext& tool_;
    GatherReport& report_;
    const TreeView& steps_;
    MachinePath machinePath_;
    std::optional<TrappedErrorListener> listener_;

    bool standard_;
    bool timeFrame_;
    std::vector<std::string> logs_;
    std::vector<std::string> eventLogs_;
    std::string destination_;              ///< as the tool's path
    std::unique_ptr<ResultFolder> folder_; ///< as the run found it; null where there was none
    std::map<std::string, Stamp> before_;

    std::vector<Trouble> troubles_; ///< the first of each log and stage
    bool destinationMade_ = true;   ///< whether it was there when a stage had its first trouble
    bool cancelled_ = false;
};
