#include "hosts/desktop/turn_wait.h"

#include "hosts/desktop/sheets/sheet_dialog.h"
#include "hosts/desktop/support/open_program.h"
#include "hosts/desktop/support/person.h"
#include "system/file_descriptor.h"

#include <QAction>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/file.h>

namespace desktop {

namespace {

using testing::IsEmpty;

/// A person at the window while another program, of number 123, has its turn to change the site.
struct TurnWait : testing::Test {
    TurnWait() { take(); }

    void take()
    {
        const std::string lock = shown.server.folder().write("site/changes.lock", "123\n");
        held = FileDescriptor(::open(lock.c_str(), O_RDWR));
        EXPECT_EQ(0, ::flock(held.get(), LOCK_EX));
    }

    void letGo() { held.close(); }

    std::string registry() const { return shown.server.folder().read("site/registry.reg"); }

    /// Answers the box that says what is waited for.
    void atTheBox(std::function<void(QMessageBox&)> answer)
    {
        person::answerNextDialog([this, answer = std::move(answer)](QWidget& dialog) {
            auto* box = qobject_cast<QMessageBox*>(&dialog);
            ASSERT_NE(nullptr, box);
            said = box->text().toStdString();
            answer(*box);
        });
    }

    OpenProgram shown;
    FileDescriptor held;
    std::string said; ///< by the latest box
};

TEST_F(TurnWait, EveryCommandThatChangesTheServerAtOnceWaitsForItsTurn)
{
    const struct {
        const char* because;
        std::function<void()> click;
    } commands[] = {
        {"the card", [this] { shown.clickCard("4"); }},
        {"the menu", [this] { shown.window().consoleAction("mnuStartNewLogFiles")->trigger(); }},
        {"the first language is noted",
         [this] { shown.window().consoleAction("mnuChangeLanguage")->trigger(); }},
    };
    for (const auto& command : commands) {
        SCOPED_TRACE(command.because);
        said.clear();
        const std::string before = registry();
        atTheBox([](QMessageBox& box) { person::clickButton(box, "Cancel"); });
        command.click();
        EXPECT_EQ("Waiting for another program (process 123) that is changing the site " +
                      shown.server.site() + ".",
                  said);
        EXPECT_EQ(nullptr, shown.pane().sheet());
        EXPECT_EQ(before, registry()) << "given up";
        EXPECT_THAT(shown.window().problem().toStdString(), IsEmpty());
    }
    letGo();
    commands[2].click();
    EXPECT_NE(nullptr, shown.pane().sheet());
}

TEST_F(TurnWait, TheWindowGoesOnPaintingAndTheChangeIsMadeWhenTheTurnComes)
{
    const std::string before = registry();
    std::string atTheTurn;
    QElapsedTimer sinceTick;
    qint64 longestGap = 0;
    QTimer ticks;
    QObject::connect(&ticks, &QTimer::timeout,
                     [&] { longestGap = std::max(longestGap, sinceTick.restart()); });
    sinceTick.start();
    ticks.start(10);
    atTheBox([&](QMessageBox&) {
        atTheTurn = registry();
        letGo();
    });
    shown.clickCard("4");
    EXPECT_LT(longestGap, 700) << "also before the box, which comes after a second";
    EXPECT_EQ(before, atTheTurn);
    EXPECT_NE(before, registry());
    EXPECT_EQ(nullptr, QApplication::activeModalWidget()) << "the box goes by itself";
}

TEST_F(TurnWait, ASheetStaysAsItIsWhenTheWaitIsGivenUp)
{
    shown.clickCard("6");
    atTheBox([](QMessageBox& box) { person::clickButton(box, "Cancel"); });
    person::clickButton(shown.sheet(), "OK");
    EXPECT_THAT(said, testing::StartsWith("Waiting for another program"));
    EXPECT_TRUE(shown.sheet().isVisible());
    letGo();
    person::clickButton(shown.sheet(), "OK");
    EXPECT_EQ(nullptr, shown.pane().sheet());
}

TEST_F(TurnWait, TheInterfaceLanguageIsNotedInATurnToo)
{
    const std::string before = registry();
    person::answerNextDialog([&](QWidget& about) {
        person::answerNextPopup([&](QWidget&) {
            person::press(Qt::Key_Down);
            atTheBox([](QMessageBox& box) { person::clickButton(box, "Cancel"); });
            person::press(Qt::Key_Return);
        });
        for (auto* button : about.findChildren<QPushButton*>())
            if (!button->isDefault()) person::click(*button);
        person::press(Qt::Key_Escape);
    });
    person::press(QKeySequence("Ctrl+F1"));
    EXPECT_THAT(said, testing::StartsWith("Waiting for another program"));
    EXPECT_EQ(before, registry());
}

TEST_F(TurnWait, WhoLooksOrGathersWaitsForNobody)
{
    QElapsedTimer clock;
    clock.start();
    for (const char* card : {"1", "2", "3", "6"}) {
        shown.clickCard(card);
        EXPECT_TRUE(shown.sheet().isVisible()) << card;
        person::press(Qt::Key_Escape);
    }
    shown.clickCard("5");
    person::clickButton(shown.sheet(), "Select logs");
    person::clickButton(shown.sheet(), "Next >");
    EXPECT_EQ(2, shown.sheet().sheet().currentPosition());
    person::press(Qt::Key_Escape);
    EXPECT_LT(clock.elapsed(), 5000);
}

TEST_F(TurnWait, WhatTheToolWaitsForByItselfStandsInTheStatusBar)
{
    shown.window().sayWaiting("waiting for another program that holds the registry");
    EXPECT_EQ(QStringLiteral("waiting for another program that holds the registry"),
              shown.window().statusBar()->currentMessage());
}

} // namespace

} // namespace desktop
