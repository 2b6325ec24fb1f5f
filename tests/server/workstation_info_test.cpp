#include "server/workstation_info.h"

#include "support/test_tool.h"

#include <gtest/gtest.h>

TEST(WSInfo, HoldsWhatTheSystemTells)
{
    FakeWorkstation workstation;
    workstation.machine = WorkstationDetails{500, "ORVAN01", "KELMA", 5, 2, "C:\\LAN", 3};
    workstation.person = LoggedOnUser{"support", "DOMAIN", "OTHER", "ORVANDC"};

    const WSInfo info(workstation);

    EXPECT_EQ("ORVAN01", info.ComputerName());
    EXPECT_EQ("KELMA", info.Domain());
    EXPECT_EQ("C:\\LAN", info.LanRoot());
    EXPECT_EQ(3, info.LoggedOnUsers());
    EXPECT_EQ(500, info.PlatformId());
    EXPECT_EQ(5, info.VerMajor());
    EXPECT_EQ(2, info.VerMinor());
    EXPECT_EQ("DOMAIN", info.LogonDomain());
    EXPECT_EQ("ORVANDC", info.LogonServer());
    EXPECT_EQ("OTHER", info.OtherDomains());
    EXPECT_EQ("support", info.UserName());
}

TEST(WSInfo, StaysEmptyOutsideTheNtFamilyHoweverOftenItIsRead)
{
    FakeWorkstation workstation;
    workstation.platformNumber = 1;
    WSInfo info(workstation);

    workstation.platformNumber = 2;
    info.Refresh();

    EXPECT_EQ("", info.ComputerName());
    EXPECT_EQ("", info.UserName());
    EXPECT_EQ(0, info.PlatformId());
    EXPECT_EQ(0, info.VerMajor());
    EXPECT_EQ(0, info.LoggedOnUsers());
}

TEST(WSInfo, AsksForTheUserWhenTheMachineDoesNotAnswer)
{
    FakeWorkstation workstation;
    workstation.machine.reset();

    const WSInfo info(workstation);

    EXPECT_EQ("", info.ComputerName());
    EXPECT_EQ("support", info.UserName());
}

TEST(WSInfo, KeepsWhatItHadWhenACallFails)
{
    FakeWorkstation workstation;
    WSInfo info(workstation);

    workstation.person.reset();
    workstation.machine->computerName = "RENAMED";
    info.Refresh();

    EXPECT_EQ("RENAMED", info.ComputerName());
    EXPECT_EQ("support", info.UserName());
}

TEST(WorkstationInfo, ComesToLifeOnFirstUseAndStays)
{
    TestTool tool;
    EXPECT_EQ(nullptr, tool.context.g_wsInfo);

    WSInfo& info = workstationInfo(tool.context);
    tool.workstation.machine->computerName = "RENAMED";

    EXPECT_EQ(&info, &workstationInfo(tool.context));
    EXPECT_EQ("ORVAN01", workstationInfo(tool.context).ComputerName());
}
