#pragma once

#include "platform/host_module.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

/// What every HostModule promises. A `Machine` has a default constructor that gives a module of
/// version 4.2.17 in the folder `C:\OrvanDiagnostics`, in a host that was started by
/// `std::string commandLine()`; `HostModule& module()`; `HostModule& developersModule()`, whose
/// host is a development environment; and `std::vector<std::string> heard()`, what that was sent.
template <typename Machine>
class HostModuleContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(HostModuleContract);

TYPED_TEST_P(HostModuleContract, TheModuleHasANameAFolderAndAVersion)
{
    const HostModule& module = this->machine.module();
    EXPECT_EQ("OrvanDiagnostics", module.name());
    EXPECT_EQ("C:\\OrvanDiagnostics", module.folder());
    EXPECT_EQ(4, module.majorVersion());
    EXPECT_EQ(2, module.minorVersion());
    EXPECT_EQ(17, module.revision());
}

TYPED_TEST_P(HostModuleContract, TheHostHasACommandLine)
{
    EXPECT_EQ(this->machine.commandLine(), this->machine.module().commandLine());
}

TYPED_TEST_P(HostModuleContract, OnlyADevelopmentEnvironmentIsADevelopmentHost)
{
    for (const int failures : {0, 1, 1000})
        EXPECT_FALSE(this->machine.module().isDevelopmentHost(failures));
    EXPECT_TRUE(this->machine.developersModule().isDevelopmentHost(0));
    EXPECT_TRUE(this->machine.developersModule().isDevelopmentHost(1));
}

TYPED_TEST_P(HostModuleContract, WhatIsSentIsHeardByTheDeveloperAndByNobodyElse)
{
    this->machine.module().debugOutput("nobody listens");
    this->machine.developersModule().debugOutput("a text");
    EXPECT_EQ((std::vector<std::string>{"a text"}), this->machine.heard());
}

REGISTER_TYPED_TEST_SUITE_P(HostModuleContract, TheModuleHasANameAFolderAndAVersion,
                            TheHostHasACommandLine, OnlyADevelopmentEnvironmentIsADevelopmentHost,
                            WhatIsSentIsHeardByTheDeveloperAndByNobodyElse);
