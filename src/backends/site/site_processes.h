#pragma once

#include "platform/processes.h"
#include "system/file_descriptor.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

class SitePaths;

/// The programs that a site may have started, as paths of the machine; empty where there is none.
struct InstalledPrograms {
    std::string cabinetMaker;
    std::string viewer;
};

/// The programs that a site asks for: of those, only what is installed on this machine runs.
///
/// A site is often a copy that somebody sent, and a folder with results one that others write to,
/// so no file of either is ever run. A program called `cabmaker` that is there stands for the
/// installed one, which runs in its place, whether or not the two are the same: a site may have got
/// its own from an older tool. The explorer stands for the machine's own, which opens a folder when
/// there is a screen for it. Everything else must be the installed viewer itself.
///
/// A program runs without a shell, with nothing to read and its output thrown away, but for what
/// the cabinet maker says of its failure, in a process group of its own, so that Ctrl-C reaches the
/// tool alone. It finds the site's folder in the variable `ORVAN_SITE_DRIVES`.
class SiteProcesses final : public Processes {
public:
    /// `paths` gives the current folder and outlives this.
    SiteProcesses(const SitePaths& paths, InstalledPrograms installed);
    ~SiteProcesses() override;

    std::int32_t start(const std::string& commandLine, WindowStyle window) override;

    /// A process is there until it was waited for to its end.
    bool wait(std::int32_t processId, std::int32_t milliseconds) override;

    /// Why a program, by its name with or without an ending, would not be started: a clause; empty
    /// where nothing stands in its way.
    std::string obstacleTo(const std::string& program) const;

    ProcessReport lastReport() const override { return lastReport_; }

private:
    /// A process that runs.
    struct Running {
        FileDescriptor standardError; ///< what it writes there; not open for most
        bool replaced = false;
    };

    std::optional<std::string> fileOf(const std::string& name) const;
    std::int32_t startCabinetMaker(const std::string& asked,
                                   const std::vector<std::string>& arguments);
    std::int32_t openFolder(const std::vector<std::string>& arguments);
    std::int32_t spawn(const std::string& program, std::vector<std::string> arguments,
                       Running running);

    const SitePaths& paths_;
    InstalledPrograms installed_;
    std::map<std::int32_t, Running> running_;
    ProcessReport lastReport_;
};
