#pragma once

#include "runtime/dates.h"
#include "timeline/filter/time_text.h"

#include <optional>
#include <string>

namespace cli {

class SiteTimes;

/// What stands on the command line of a time frame; the empty text for what does not.
struct FrameWords {
    std::optional<std::string> from;
    std::optional<std::string> to;
    std::optional<std::string> hours;
    std::optional<std::string> last;
};

/// What the wizard's page takes for a frame: it begins at a whole minute and has whole hours.
struct FrameEntry {
    Date start;
    std::string hours;      ///< as the person types them
    bool told = false;      ///< whether the person has to hear what the frame is
    std::string difference; ///< why it is another one than was asked for, as a clause; else empty
};

/// A time frame as a person asks for one.
///
/// `--from` with `--hours` is what the page has fields for, and as the page does, it lets the
/// seconds of the start go. `--from` with `--to-time`, and `--last`, are wider than they were asked
/// for where that takes it: no line that was asked for is left out.
class FrameRequest {
public:
    /// Raises UsageError for texts that are none and for options that don't go together.
    explicit FrameRequest(const FrameWords& words);

    /// Whether nothing was asked for, and the page's own frame is to be taken.
    bool isDefault() const { return !from_ && !last_; }

    /// By the server's clock. Raises UsageError for a frame that the page can't take.
    FrameEntry entry(SiteTimes& times) const;

private:
    FrameEntry entryOfHours(SiteTimes& times) const;
    FrameEntry entryBetween(SiteTimes& times, const timeline::TimeText& from,
                            const timeline::TimeText& to) const;

    std::optional<timeline::TimeText> from_;
    std::optional<timeline::TimeText> to_;
    std::string hours_;
    std::optional<timeline::TimeText> last_; ///< the beginning of a frame that ends now
};

} // namespace cli
