#pragma once

/// Which wizard or sheet the snap-in is asked to give pages for. There is no 4.
namespace mdlDefinitions {
constexpr int kindMacroTrace = 1;
constexpr int kindMicroTrace = 2;
constexpr int kindDisableAllTraces = 3;
constexpr int kindGatherLogFiles = 5;
constexpr int kindLogSettings = 6;
constexpr int kindEventLogLanguage = 7;
} // namespace mdlDefinitions
