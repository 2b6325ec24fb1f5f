#pragma once

#include "text/code_page.h"
#include "timeline/sources/open_files.h"
#include "timeline/sources/source.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

class TraceTableReader;

namespace timeline {

struct FirstLines;
struct LogFacts;
struct LogName;

/// What is known of the sources from elsewhere: their server's settings, or a person. What is
/// missing is guessed, and told.
struct SourceOptions {
    std::optional<CodePage> codePage;
    std::optional<LineForm> form; ///< of raw logs
    /// From universal time to that of the server's clock; where it is missing, by this machine's
    /// zone.
    std::function<Moment(Moment)> localTime;
};

/// A file that may be a source.
struct Candidate {
    std::string name; ///< as a person knows it
    std::string path; ///< of the machine; empty where no file bears a name
    std::shared_ptr<KeptFile> file;
    std::string head;               ///< its first bytes
    std::optional<Moment> modified; ///< by the server's clock
};

/// Makes sources of files that were opened.
class SourceMaking {
public:
    /// `databases` stays alive while this and its sources are used.
    SourceMaking(const TraceTableReader& databases, SourceOptions options);

    /// Whether a file is of a kind that sources are made of, cabinets aside, by its first bytes and
    /// its name.
    bool isSource(const Candidate& candidate) const;

    /// The source that a file is. Raises 321, with a sentence, for one that is none; what opening a
    /// trace database raises.
    std::unique_ptr<Source> make(const Candidate& candidate) const;

    /// Raises 321 with the sentence that something is nothing to be read.
    [[noreturn]] static void raiseNone(const std::string& name);

    /// A moment of universal time by the server's clock.
    Moment local(Moment universal) const;

private:
    std::unique_ptr<Source> makeLog(const Candidate& candidate, const FirstLines& lines,
                                    const LogName& name) const;
    static void guessFirstDay(const Candidate& candidate, LogFacts& facts);

    const TraceTableReader& databases_;
    SourceOptions options_;
};

/// From universal time to that of this machine's clocks.
Moment machineLocalTime(Moment universal);

} // namespace timeline
