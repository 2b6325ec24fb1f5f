#include "hosts/desktop/sheets/gather_notice.h"

#include "controls/sheet_page.h"
#include "core/tool_context.h"
#include "hosts/common/gather/destination_turn.h"
#include "hosts/common/gather/gather_sentences.h"
#include "hosts/common/gather/gather_watch.h"
#include "runtime/run_time_error.h"
#include "wizards/gather_progress.h"

#include <QCoreApplication>
#include <QStringList>

#include <optional>

namespace desktop {

namespace {

constexpr const char* context = "GatherReport"; ///< of the texts, in the translations

// What the hosts share knows nothing of translations: the texts are named here once more.
constexpr const char* texts[] = {
    QT_TRANSLATE_NOOP("GatherReport", "The server names no current log of %1."),
    QT_TRANSLATE_NOOP("GatherReport", "The current log of %1, %2, is not there."),
    QT_TRANSLATE_NOOP("GatherReport", "The current log of %1, %2, can't be looked at: %3."),
    QT_TRANSLATE_NOOP("GatherReport", "The server's log folder %1 is not there."),
    QT_TRANSLATE_NOOP("GatherReport", "The logs in %1 could not be listed: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was passed over: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was not gathered: it is not in %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was not copied: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was copied in part: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was not gathered as a whole: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was read as far as line %3: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "Lines of %1 that were not stored: %3 (%2)."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was cut while it was read."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 was taken away while it was read."),
    QT_TRANSLATE_NOOP("GatherReport",
                      "%1 logs were not gathered as a whole, the first of them %2: %3."),
    QT_TRANSLATE_NOOP(
        "GatherReport",
        "%1 has too many malformed lines, and was read no further than the eleventh."),
    QT_TRANSLATE_NOOP("GatherReport", "The %1 event log was not captured: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "The destination %1 can't be made: %2."),
    QT_TRANSLATE_NOOP("GatherReport", "The destination %1 has gone."),
    QT_TRANSLATE_NOOP("GatherReport", "No trace database was made: %1."),
    QT_TRANSLATE_NOOP("GatherReport", "The trace database is not complete: %1."),
    QT_TRANSLATE_NOOP("GatherReport", "The macro trace definitions could not all be stored: %1."),
    QT_TRANSLATE_NOOP("GatherReport", "The filters could not all be stored: %1."),
    QT_TRANSLATE_NOOP("GatherReport", "No cabinet was made."),
    QT_TRANSLATE_NOOP("GatherReport", "No cabinet was made: the cabinet maker %1 is missing."),
    QT_TRANSLATE_NOOP("GatherReport", "No cabinet was made: %1."),
    QT_TRANSLATE_NOOP(
        "GatherReport",
        "The site's cabinet maker is not the installed one, which made the cabinet in its place."),
    // No comma is missing. NOLINTNEXTLINE(bugprone-suspicious-missing-comma)
    QT_TRANSLATE_NOOP("GatherReport",
                      "%1 in the destination %2 would be lost: the gather makes a file or folder "
                      "of that name and removes it again."),
    QT_TRANSLATE_NOOP("GatherReport", "%1 in the destination %2 is not a plain file, and nothing "
                                      "is written to such a one."),
    QT_TRANSLATE_NOOP("GatherReport",
                      "Another gather is writing to %1; wait until it has ended, or "
                      "name another folder."),
    QT_TRANSLATE_NOOP("GatherReport", "The gather was cancelled."),
    QT_TRANSLATE_NOOP("GatherReport", "No line lies in the time frame."),
    QT_TRANSLATE_NOOP("GatherReport", "What was gathered is kept in %1."),
};

/// Keeps the watch of the gather that runs in its place, while it does.
class Running {
public:
    Running(GatherWatch*& place, GatherWatch& watch) : place_(place) { place_ = &watch; }
    ~Running() { place_ = nullptr; }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

private:
    GatherWatch*& place_;
};

} // namespace

QString inLanguage(const Sentence& sentence)
{
    const std::string pattern(sentence.pattern);
    const QString text = QCoreApplication::translate(context, pattern.c_str());
    return QString::fromStdString(withInserts(text.toStdString(), sentence.inserts));
}

std::vector<std::string> translatedGatherSentences()
{
    return {std::begin(texts), std::end(texts)};
}

LiveSentence GatherNotice::tick(ToolContext& tool, GatherReport& report, const SheetPage& page,
                                Timer& timer, MachinePath machinePath,
                                const std::function<void()>& run)
{
    const auto* progress = dynamic_cast<const ppgGatherLogs03Step*>(&page);
    // A second run in the middle of the first one belongs to it.
    if (!progress || &timer != &progress->tmrDelayStart || watch_) return run(), nullptr;
    std::optional<DestinationTurn> turn;
    std::optional<GatherWatch> watch;
    try {
        const std::string& destination = progress->job().m_LogDestinationDirectory;
        turn.emplace(tool.platform.files, destination, machinePath(destination));
        watch.emplace(tool, report, *progress, std::move(machinePath));
    } catch (const RunTimeError&) {
        // A page without a job has nothing to gather.
        return run(), nullptr;
    }
    const auto taken = turn->refusal();
    if (const auto refusal = taken ? taken : watch->refusal()) {
        timer.setEnabled(false); // until the person comes back to the page
        return [sentence = *refusal] { return inLanguage(sentence); };
    }
    if (leavesASecond(*turn, timer)) return nullptr;
    const Running running(watch_, *watch);
    run();
    const auto sentences = watch->outcome().sentences();
    if (sentences.empty()) return nullptr;
    return [sentences] {
        QStringList told;
        for (const Sentence& sentence : sentences) told << inLanguage(sentence);
        return told.join(QLatin1Char(' '));
    };
}

/// Whether the gather waits for the timer's next tick, so that the window goes on painting.
bool GatherNotice::leavesASecond(const DestinationTurn& turn, const Timer& timer)
{
    const bool wait = waited_ < DestinationTurn::longestPause && turn.hasNamesOfThisSecond();
    waited_ = wait ? waited_ + timer.interval() : 0;
    return wait;
}

void GatherNotice::messageShown()
{
    if (watch_) watch_->messageShown();
}

void GatherNotice::cancelled(const SheetPage& page)
{
    // The other pages let a run below them go on.
    if (dynamic_cast<const ppgGatherLogs03Step*>(&page)) cancelled();
}

void GatherNotice::cancelled()
{
    if (watch_) watch_->cancelled();
}

} // namespace desktop
