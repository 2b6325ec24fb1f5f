#pragma once

#include "platform/processes.h"

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

class SitePaths;

/// Programs on a site, and the machine's own behind a leading `/`.
///
/// A program runs without a shell, with nothing to read and its output thrown away, in a process
/// group of its own, so that Ctrl-C reaches the tool alone. It finds the site's folder in the
/// variable `ORVAN_SITE_DRIVES`. Where the site has no file explorer, the machine's own opens the
/// folder, when there is a screen for it.
class SiteProcesses final : public Processes {
public:
    /// `paths` gives the current folder and outlives this.
    explicit SiteProcesses(const SitePaths& paths);
    ~SiteProcesses() override;

    std::int32_t start(const std::string& commandLine, WindowStyle window) override;

    /// A process is there until it was waited for to its end.
    bool wait(std::int32_t processId, std::int32_t milliseconds) override;

private:
    std::optional<std::string> programOf(const std::string& name) const;
    std::int32_t spawn(const std::string& program, std::vector<std::string> arguments);
    std::int32_t openFolder(const std::vector<std::string>& arguments);

    const SitePaths& paths_;
    std::set<pid_t> started_;
};
