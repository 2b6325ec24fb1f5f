#pragma once

#include "platform/event_reporter.h"
#include "support/error_of.h"

#include <gtest/gtest.h>

#include <string>

/// What every EventReporter promises where the server installs none. A `Machine` has a default
/// constructor that gives such a server, and `EventReporter& reporter()`.
template <typename Machine>
class MissingEventReporterContract : public testing::Test {
protected:
    Machine machine;
};

TYPED_TEST_SUITE_P(MissingEventReporterContract);

TYPED_TEST_P(MissingEventReporterContract, EveryCallRaises429)
{
    EventReporter& reporter = this->machine.reporter();
    EXPECT_EQ(429, errorOf([&] { reporter.startUp(); }));
    EXPECT_EQ(429, errorOf([&] { reporter.completeStartUp(); }));
    EXPECT_EQ(429, errorOf([&] { reporter.registerTool("OrvanDiagnostics"); }));
    EXPECT_EQ(429, errorOf([&] { reporter.report("OrvanDiagnosticTool_MC", 1, 10, 10004, {}); }));
}

TYPED_TEST_P(MissingEventReporterContract, ALineThatIsNotFormattedAddsNothing)
{
    std::string formatted = "before:";
    EXPECT_EQ(429, errorOf([&] {
                  this->machine.reporter().formatTraceLine("15:23:07:123,S,1,C,2,a", formatted);
              }));
    EXPECT_EQ("before:", formatted);
}

REGISTER_TYPED_TEST_SUITE_P(MissingEventReporterContract, EveryCallRaises429,
                            ALineThatIsNotFormattedAddsNothing);
