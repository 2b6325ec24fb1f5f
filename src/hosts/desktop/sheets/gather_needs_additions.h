#pragma once

#include "hosts/desktop/sheets/gather_additions.h"
#include "hosts/desktop/sheets/log_facts.h"
#include "hosts/desktop/sheets/page_addition.h"
#include "wizards/time_frame_choice.h"

#include <QCoreApplication>

#include <optional>
#include <string>
#include <vector>

class QLabel;
class QPushButton;
class ppgGatherLogs01Step;
class ppgGatherLogs02Step;

namespace desktop {

/// From when to when the server's logs run, how many of them the chosen frame takes, and a button
/// that lets the frame end with the newest log.
class FrameNeeds final : public PageAddition {
    Q_DECLARE_TR_FUNCTIONS(FrameNeeds)

public:
    /// All outlive it.
    FrameNeeds(ppgGatherLogs02Step& page, GatherSurroundings surroundings);

    void renew() override;
    void controlsChanged() override;

private:
    void showNeeds();
    std::optional<TimeFrame> frame() const;
    Date newestEnd() const;
    void endWithNewest();

    ppgGatherLogs02Step& page_;
    GatherSurroundings surroundings_;
    LogFacts facts_;
    TimeFrame shown_; ///< that the sentence on show is about
    QLabel* span_;
    QLabel* needs_;
    QPushButton* newest_;
};

/// How large the ticked logs are, and how much room there is for them.
class SelectionNeeds final : public PageAddition {
    Q_DECLARE_TR_FUNCTIONS(SelectionNeeds)

public:
    /// All outlive it.
    SelectionNeeds(const ppgGatherLogs01Step& page, GatherSurroundings surroundings);

    void renew() override;
    void controlsChanged() override;

private:
    std::vector<std::string> tickedLogs() const;
    void showNeeds();

    const ppgGatherLogs01Step& page_;
    GatherSurroundings surroundings_;
    LogFacts facts_;
    std::vector<std::string> ticked_; ///< that the sentence on show is about
    QLabel* needs_;
};

} // namespace desktop
