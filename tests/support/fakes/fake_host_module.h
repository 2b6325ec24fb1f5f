#pragma once

#include "platform/host_module.h"

#include <string>
#include <vector>

/// The tool's module as a test wants it.
class FakeHostModule final : public HostModule {
public:
    std::string folderPath = "C:\\OrvanDiagnostics";
    int major = 4;
    int minor = 2;
    int build = 17;
    std::string command = "mmc.exe OrvanDiagnostics.msc";
    bool developmentHost = false;
    int patience = 0; ///< failures of a statement after which the developer gives up; 0 for never
    std::vector<std::string> debugTexts; ///< what was sent to the debugger

    std::string folder() const override { return folderPath; }
    std::string name() const override { return "OrvanDiagnostics"; }
    int majorVersion() const override { return major; }
    int minorVersion() const override { return minor; }
    int revision() const override { return build; }
    std::string commandLine() const override { return command; }
    bool isDevelopmentHost(int failuresInARow) const override
    {
        return developmentHost && (patience == 0 || failuresInARow < patience);
    }
    void debugOutput(const std::string& text) override { debugTexts.push_back(text); }
};
