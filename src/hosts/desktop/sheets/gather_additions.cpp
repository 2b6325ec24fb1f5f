#include "hosts/desktop/sheets/gather_additions.h"

#include "hosts/desktop/sheets/gather_needs_additions.h"
#include "hosts/desktop/sheets/page_addition.h"
#include "runtime/run_time_error.h"
#include "wizards/gather_completion.h"
#include "wizards/gather_log_selection.h"
#include "wizards/gather_time_frame.h"

#include <QCoreApplication>
#include <QLabel>
#include <QVBoxLayout>

#include <utility>

namespace desktop {

namespace {

/// The folder of a finished gather as a path of this machine; the empty text without one.
QString resultFolder(const ppgGatherLogs99Final& page, const MachinePath& machinePath)
{
    try {
        return QString::fromStdString(machinePath(page.job().m_LogDestinationDirectory));
    } catch (const RunTimeError&) {
        return {};
    }
}

/// Where the results lie on this machine, where the tool names a drive of the server.
class ResultPlace final : public PageAddition {
    Q_DECLARE_TR_FUNCTIONS(ResultPlace)

public:
    ResultPlace(const ppgGatherLogs99Final& page, MachinePath machinePath)
        : page_(page), machinePath_(std::move(machinePath)), place_(new QLabel(this))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(place_);
        place_->setTextFormat(Qt::PlainText);
        place_->setWordWrap(true);
        place_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    }

    void renew() override
    {
        const QString folder = resultFolder(page_, machinePath_);
        place_->setText(tr("On this machine: %1").arg(folder));
        const bool told =
            folder.isEmpty() || folder.toStdString() == page_.job().m_LogDestinationDirectory;
        place_->setVisible(!told);
    }

private:
    const ppgGatherLogs99Final& page_;
    MachinePath machinePath_;
    QLabel* place_;
};

} // namespace

PageAddition* gatherAddition(SheetPage& page, const GatherSurroundings& surroundings)
{
    if (auto* frame = dynamic_cast<ppgGatherLogs02Step*>(&page))
        return new FrameNeeds(*frame, surroundings);
    if (const auto* logs = dynamic_cast<const ppgGatherLogs01Step*>(&page))
        return new SelectionNeeds(*logs, surroundings);
    if (const auto* last = dynamic_cast<const ppgGatherLogs99Final*>(&page))
        return new ResultPlace(*last, surroundings.machinePath);
    return nullptr;
}

LiveSentence gatherExplanation(const SheetPage& page, const RunTimeError& error,
                               const MachinePath& machinePath)
{
    const auto* last = dynamic_cast<const ppgGatherLogs99Final*>(&page);
    if (!last || error.number() != runTimeErrors::fileNotFound) return nullptr;
    return [folder = resultFolder(*last, machinePath)] {
        return QCoreApplication::translate("ResultPlace",
                                           "No file manager was found on this machine. The results "
                                           "are in %1.")
            .arg(folder);
    };
}

} // namespace desktop
