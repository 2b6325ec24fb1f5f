#pragma once

#include "platform/desktop.h"

#include <gtest/gtest.h>

#include <string>

/// What every Desktop promises, with a person in front of it who answers.
///
/// A `Machine` has a default constructor and `Desktop& desktop()`; `personCloses()`, who closes the
/// next box, and `bool boxWasSeen()`; `std::string personPicksFolder()` and `std::string
/// personPicksFile()`, who picks in the next picker what is given back; `personCancels()`, who
/// cancels it; `post(event)`, which puts an event into the host's message queue; `bool
/// showsHelp()`, whether the host can show any; and `int helpTopic()`, one that its help has.
template <typename Machine>
class DesktopContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(DesktopContract);

TYPED_TEST_P(DesktopContract, ABoxOfAnyIconReturnsWhenItIsClosed)
{
    for (const MessageIcon icon : {MessageIcon::none, MessageIcon::information,
                                   MessageIcon::exclamation, MessageIcon::critical}) {
        this->machine.personCloses();
        this->machine.desktop().messageBox("first line\r\nsecond line", "Title", icon);
        EXPECT_TRUE(this->machine.boxWasSeen());
    }
}

TYPED_TEST_P(DesktopContract, APickedFolderComesBack)
{
    const std::string folder = this->machine.personPicksFolder();
    EXPECT_EQ(folder, this->machine.desktop().pickFolder("Where to"));
}

TYPED_TEST_P(DesktopContract, APickedFileComesBack)
{
    const std::string file = this->machine.personPicksFile();
    EXPECT_EQ(file, this->machine.desktop().pickFile("Which one"));
}

TYPED_TEST_P(DesktopContract, ACancelledPickerGivesTheEmptyText)
{
    this->machine.personCancels();
    EXPECT_EQ("", this->machine.desktop().pickFolder("Where to"));
    this->machine.personCancels();
    EXPECT_EQ("", this->machine.desktop().pickFile("Which one"));
}

TYPED_TEST_P(DesktopContract, PumpingHandlesWhatWaits)
{
    int handled = 0;
    this->machine.post([&] { ++handled; });
    EXPECT_EQ(0, handled) << "nothing comes in but by the pump";
    this->machine.desktop().pumpMessages();
    EXPECT_EQ(1, handled);
}

TYPED_TEST_P(DesktopContract, HelpHasAHandleWhereItIsShown)
{
    for (const int topic : {0, this->machine.helpTopic()})
        EXPECT_EQ(this->machine.showsHelp(),
                  this->machine.desktop().showHelp("C:\\Help\\help.chm", topic) != 0)
            << topic;
}

REGISTER_TYPED_TEST_SUITE_P(DesktopContract, ABoxOfAnyIconReturnsWhenItIsClosed,
                            APickedFolderComesBack, APickedFileComesBack,
                            ACancelledPickerGivesTheEmptyText, PumpingHandlesWhatWaits,
                            HelpHasAHandleWhereItIsShown);
