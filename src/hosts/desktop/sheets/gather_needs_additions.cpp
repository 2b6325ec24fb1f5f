#include "hosts/desktop/sheets/gather_needs_additions.h"

#include "hosts/common/gather/gather_needs.h"
#include "runtime/run_time_error.h"
#include "system/machine_path.h"
#include "wizards/gather_log_selection.h"
#include "wizards/gather_time_frame.h"

#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace desktop {

namespace {

QString shownMoment(Date moment)
{
    const DateParts parts = partsOf(moment);
    return QLocale().toString(
        QDateTime(QDate(parts.year, parts.month, parts.day), QTime(parts.hour, parts.minute)),
        QLocale::ShortFormat);
}

std::int64_t sizeOf(const std::vector<FileInfo>& logs)
{
    std::int64_t size = 0;
    for (const FileInfo& log : logs) size += log.size;
    return size;
}

QString shownSize(std::int64_t bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

QLabel* sentence(QWidget* parent)
{
    auto* label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

FrameNeeds::FrameNeeds(ppgGatherLogs02Step& page, GatherSurroundings surroundings)
    : page_(page), surroundings_(std::move(surroundings)),
      facts_(surroundings_.files, surroundings_.logFolder), span_(sentence(this)),
      needs_(sentence(this)), newest_(new QPushButton(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(span_);
    column->addWidget(needs_);
    column->addWidget(newest_, 0, Qt::AlignLeft);
    QObject::connect(&facts_, &LogFacts::known, this, [this] { showNeeds(); });
    QObject::connect(newest_, &QPushButton::clicked, this, [this] {
        if (act) act([this] { endWithNewest(); });
    });
}

void FrameNeeds::renew()
{
    facts_.look(logsForFrames(surroundings_.files, surroundings_.logFolder));
    newest_->setText(tr("End with the Newest Log"));
    span_->setText(tr("Looking at the logs..."));
    needs_->clear();
    newest_->setEnabled(false);
}

/// The clock of the page changes each second, which is nothing to the frame.
void FrameNeeds::controlsChanged()
{
    const auto now = frame();
    const bool same = now && now->start == shown_.start && now->end == shown_.end;
    if (facts_.complete() && !same) showNeeds();
}

/// None while the duration is no number.
std::optional<TimeFrame> FrameNeeds::frame() const
{
    try {
        TimeFrame frame;
        computeTimeFrame(page_.choice(), frame);
        return frame;
    } catch (const RunTimeError&) {
        return {};
    }
}

Date FrameNeeds::newestEnd() const
{
    Date newest;
    for (const FileInfo& log : facts_.logs()) newest = std::max(newest, log.modified);
    return newest;
}

void FrameNeeds::showNeeds()
{
    newest_->setEnabled(!facts_.logs().empty());
    if (facts_.logs().empty()) {
        span_->setText(tr("No logs were found in the server's log folder."));
        return needs_->clear();
    }
    const auto earlier = [](const FileInfo& left, const FileInfo& right) {
        return left.created < right.created;
    };
    const Date first =
        std::min_element(facts_.logs().begin(), facts_.logs().end(), earlier)->created;
    span_->setText(
        tr("The logs run from %1 to %2.").arg(shownMoment(first), shownMoment(newestEnd())));
    const auto asked = frame();
    if (!asked) return needs_->clear();
    shown_ = *asked;
    std::vector<FileInfo> taken;
    for (const FileInfo& log : facts_.logs())
        if (fileOverlapsTimeFrame(log, asked->start, asked->end)) taken.push_back(log);
    const QString count = QLocale().toString(static_cast<qulonglong>(taken.size()));
    const QString size = shownSize(sizeOf(taken));
    if (taken.empty())
        needs_->setText(tr("No log has lines of this time frame."));
    else if (taken.size() == 1)
        needs_->setText(tr("This time frame takes 1 log, %1.").arg(size));
    else
        needs_->setText(tr("This time frame takes %1 logs, %2.").arg(count, size));
}

/// Starts so much earlier as the frame is long, at the next whole minute: the frame leaves the
/// seconds of its start away, and would end before the log does.
void FrameNeeds::endWithNewest()
{
    constexpr double lastSecond = 59;
    const auto asked = frame();
    if (!asked) return;
    const double hours = (asked->end.days - asked->start.days) * 24;
    const Date start = addSeconds(addHours(newestEnd(), -hours), lastSecond);
    page_.dtpickerDate.setByPerson(start);
    page_.dtpickerTime.setByPerson(start);
}

SelectionNeeds::SelectionNeeds(const ppgGatherLogs01Step& page, GatherSurroundings surroundings)
    : page_(page), surroundings_(std::move(surroundings)),
      facts_(surroundings_.files, surroundings_.logFolder), needs_(sentence(this))
{
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(needs_);
    QObject::connect(&facts_, &LogFacts::known, this, [this] { showNeeds(); });
}

void SelectionNeeds::renew()
{
    ticked_ = tickedLogs();
    facts_.look(ticked_);
}

void SelectionNeeds::controlsChanged()
{
    if (tickedLogs() != ticked_) renew();
}

/// The logs are two levels below the first root, their processes one.
std::vector<std::string> SelectionNeeds::tickedLogs() const
{
    std::vector<std::string> ticked;
    const auto& roots = page_.treeviewLogsToGather.roots();
    if (roots.empty()) return ticked;
    for (const TreeNode* process = roots.front()->child(); process; process = process->next())
        for (const TreeNode* log = process->child(); log; log = log->next())
            if (log->checked()) ticked.push_back(log->text());
    return ticked;
}

void SelectionNeeds::showNeeds()
{
    const std::int64_t size = sizeOf(facts_.logs());
    std::optional<std::int64_t> room;
    try {
        room =
            roomBelow(filePathOf(surroundings_.machinePath(page_.job().m_LogDestinationDirectory)));
    } catch (const RunTimeError&) {
        room.reset(); // the gather itself says what is wrong with the destination
    }
    const QString free = room ? shownSize(*room) : tr("unknown");
    const auto count = static_cast<qulonglong>(facts_.logs().size());
    QString text = count == 1 ? tr("1 server log is chosen, %1. Free at the destination: %2.")
                                    .arg(shownSize(size), free)
                              : tr("%1 server logs are chosen, %2. Free at the destination: %3.")
                                    .arg(QLocale().toString(count), shownSize(size), free);
    if (room && *room < size) text += QLatin1Char(' ') + tr("That is not enough room.");
    needs_->setText(text);
}

} // namespace desktop
