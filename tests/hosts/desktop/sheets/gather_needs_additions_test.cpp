#include "hosts/desktop/sheets/gather_needs_additions.h"

#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/sheet_walk.h"
#include "hosts/desktop/support/test_window.h"

#include <QDateTime>
#include <QFile>
#include <QLabel>
#include <QLocale>
#include <QPushButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <optional>

namespace desktop {

namespace {

/// The gather wizard on a server with two logs of known times: one of the morning, with 1,000
/// bytes, and one of the afternoon, with 3,000.
struct GatherPages {
    GatherPages() : shown(100)
    {
        for (const auto& entry : std::filesystem::directory_iterator(shown.server.logs()))
            std::filesystem::remove(entry.path());
        makeLog("diag_KoCSMgr_20250220_080000.txt", 1000, {2025, 2, 20}, {9, 30, 10});
        makeLog("diag_KoCSMgr_20250220_130000.txt", 3000, {2025, 2, 20}, {14, 45, 20});
        makeLog("diag_KoCSMgr_20250220_130000_fmtd.txt", 9999, {2025, 2, 21}, {0, 0, 0});
        wizard.emplace(shown, "mnuGatherLogFiles");
    }

    void makeLog(const std::string& name, std::size_t size, QDate day, QTime time)
    {
        const std::string file = shown.server.logs() + "/" + name;
        std::ofstream(file) << std::string(size, 'x');
        // The sample's server is in a zone of its own; its file times are told in that.
        QFile touched(QString::fromStdString(file));
        touched.open(QIODevice::ReadWrite);
        touched.setFileTime(QDateTime(day, time, Qt::OffsetFromUTC, serverOffset()),
                            QFileDevice::FileModificationTime);
    }

    int serverOffset()
    {
        // Standard time of the sample's zone in February, as the tool has it.
        const std::string zone = shown.tool->site().settings().timeZone.value_or("");
        return zone.rfind("PST8", 0) == 0 ? -8 * 3600 : 0;
    }

    /// The sentences that the window adds to the page on show, one after the other.
    QString told()
    {
        QString text;
        for (auto* addition : wizard->dialog().findChildren<QWidget*>()) {
            const auto* page = dynamic_cast<PageAddition*>(addition);
            if (!page || !page->isVisible()) continue;
            for (const auto* label : page->findChildren<QLabel*>()) text += label->text() + ' ';
        }
        return text.trimmed();
    }

    bool tells(const QString& part)
    {
        return waitUntil([&] { return told().contains(part); });
    }

    TestWindow shown;
    std::optional<SheetWalk> wizard;
};

constexpr int byHand = 1;
constexpr int timeFrame = 2;

TEST(FrameNeeds, TellFromWhenToWhenTheLogsRunAndWhatAFrameTakes)
{
    GatherPages pages;
    pages.wizard->choose(timeFrame);
    pages.wizard->forward();
    const auto moment = [](int hour, int minute) {
        return QLocale().toString(QDateTime({2025, 2, 20}, {hour, minute}), QLocale::ShortFormat);
    };
    EXPECT_TRUE(pages.tells(
        QStringLiteral("The logs run from %1 to %2.").arg(moment(8, 0), moment(14, 45))))
        << pages.told().toStdString();
    EXPECT_TRUE(pages.tells("No log has lines of this time frame."));
    pages.wizard->setStart(QDateTime({2025, 2, 20}, {9, 0}));
    EXPECT_TRUE(pages.tells("This time frame takes 1 log, 1.0 kB.")) << pages.told().toStdString();
}

TEST(FrameNeeds, TheNewestLogIsOneClickAway)
{
    GatherPages pages;
    pages.wizard->choose(timeFrame);
    pages.wizard->forward();
    ASSERT_TRUE(pages.tells("The logs run from"));
    for (auto* button : pages.wizard->dialog().findChildren<QPushButton*>())
        if (button->text() == QLatin1String("End with the Newest Log")) button->click();
    EXPECT_TRUE(pages.tells("This time frame takes 1 log, 3.0 kB.")) << pages.told().toStdString();
}

TEST(SelectionNeeds, TellWhatTheTickedLogsTakeAndTheRoomThereIs)
{
    GatherPages pages;
    pages.wizard->choose(byHand);
    pages.wizard->forward();
    EXPECT_TRUE(pages.tells("0 server logs are chosen, 0 bytes. Free at the destination: "))
        << pages.told().toStdString();
    pages.wizard->openFirstGroup();
    pages.wizard->tickALeaf();
    EXPECT_TRUE(pages.tells("3 server logs are chosen, 14.0 kB. Free at the destination: "))
        << pages.told().toStdString();
    EXPECT_FALSE(pages.told().contains("unknown"));
}

} // namespace

} // namespace desktop
