#pragma once

#include "platform/host_module.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

struct ModuleVersion {
    int major = 0;
    int minor = 0;
    int revision = 0;
};

/// What a host tells of itself when it opens a site.
struct HostFacts {
    ModuleVersion version;
    std::string commandLine;

    /// Stands for a developer at a debugger, who gives a statement up that has failed ten times in
    /// a row: a switch may never be turned off, and no run is to be endless.
    bool developmentHost = false;

    /// Takes what the tool sends to whoever debugs the host; empty when nobody listens.
    std::function<void(std::string_view)> debugListener;

    /// Whether the person wants the program to end; empty when the host can't tell. The developer
    /// then lets every statement go.
    std::function<bool()> interrupted;

    /// Takes what a person who waits is to know; empty when nobody reads it.
    std::function<void(const std::string&)> notice = {};

    /// A folder for the tool's module that the person named, as a path of the tool; empty for that
    /// of the site. It alone may be a folder of the machine.
    std::string toolFolder = {};

    /// The identifier of the language that the person wants texts in; nothing for that of the site.
    std::optional<std::int32_t> language = {};
};

/// The tool's module, which lies in a folder of the site.
class SiteHostModule final : public HostModule {
public:
    SiteHostModule(std::string folder, HostFacts facts);

    std::string folder() const override { return folder_; }
    std::string name() const override { return "OrvanDiagnostics"; }
    int majorVersion() const override { return facts_.version.major; }
    int minorVersion() const override { return facts_.version.minor; }
    int revision() const override { return facts_.version.revision; }
    std::string commandLine() const override { return facts_.commandLine; }
    bool isDevelopmentHost(int failuresInARow) const override;
    void debugOutput(const std::string& text) override;

private:
    std::string folder_;
    HostFacts facts_;
};
