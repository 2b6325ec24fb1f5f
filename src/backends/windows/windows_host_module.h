#pragma once

#include "platform/host_module.h"

#include <functional>
#include <string>
#include <windows.h>

/// What a host tells of itself and of the tool's module.
struct WindowsHostFacts {
    HMODULE module = nullptr; ///< the tool's own: a library, or null for the program itself
    std::string folder = {};  ///< where the tool's files lie; empty for the module's own folder

    /// Stands for a developer at a debugger, who gives a statement up that has failed ten times in
    /// a row: a switch may never be turned off, and no run is to be endless.
    bool developmentHost = false;

    /// Whether the person wants the program to end; empty when the host can't tell. The developer
    /// then lets every statement go.
    std::function<bool()> interrupted = {};
};

/// The tool's module as the system loaded it, with the version that its file bears, 0.0.0 where it
/// bears none.
class WindowsHostModule final : public HostModule {
public:
    explicit WindowsHostModule(WindowsHostFacts facts);

    std::string folder() const override { return folder_; }
    std::string name() const override { return "OrvanDiagnostics"; }
    int majorVersion() const override { return major_; }
    int minorVersion() const override { return minor_; }
    int revision() const override { return revision_; }
    std::string commandLine() const override;
    bool isDevelopmentHost(int failuresInARow) const override;
    void debugOutput(const std::string& text) override;

private:
    void readVersion(const std::wstring& path);

    WindowsHostFacts facts_;
    std::string folder_;
    int major_ = 0;
    int minor_ = 0;
    int revision_ = 0;
};
