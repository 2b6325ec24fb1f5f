#pragma once

#include "platform/host_module.h"

#include <functional>
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
    bool developmentHost = false;

    /// Takes what the tool sends to whoever debugs the host; empty when nobody listens.
    std::function<void(std::string_view)> debugListener;
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
    bool isDevelopmentHost() const override { return facts_.developmentHost; }
    void debugOutput(const std::string& text) override;

private:
    std::string folder_;
    HostFacts facts_;
};
