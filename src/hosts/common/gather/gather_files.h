#pragma once

#include "hosts/common/gather/gather_job.h"
#include "hosts/common/sentence.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class ResultFolder;
struct ToolContext;

/// The destination of one run of the gather pipeline: what lay there before, what stands in the
/// run's way, and which of the files there are its own. Other programs may write there too.
class GatherFiles {
public:
    /// Made before the run. `tool` and `job` outlive it.
    GatherFiles(const ToolContext& tool, const GatherJob& job, MachinePath machinePath);
    ~GatherFiles();
    GatherFiles(const GatherFiles&) = delete;
    GatherFiles& operator=(const GatherFiles&) = delete;

    /// The destination, as a path of this machine.
    std::string folder() const;

    /// Why the run must not begin, if so: it would take away what lies there, or write to what is
    /// not a plain file. What a gather that was killed has left of its packing is removed first. To
    /// be asked before the run, by who has the turn on the destination.
    std::optional<Sentence> refusal() const;

    /// What `refusal` would say. Changes nothing, and needs no turn.
    std::optional<Sentence> foreseenRefusal() const;

    /// Whether the destination is another folder now than when this was made; false where there was
    /// none then.
    bool swapped() const;

    /// The names of the files there that the run made or wrote anew, sorted.
    std::vector<std::string> written() const;

private:
    struct Stamp {
        std::filesystem::file_time_type written;
        std::uintmax_t size;

        bool operator==(const Stamp&) const = default;
    };

    std::string cabinetMaker() const;
    std::optional<Sentence> refusalBeside(const std::vector<std::string>& leftovers) const;
    std::map<std::string, Stamp> filesThere() const;
    bool isCapture(const std::string& name) const;
    bool isOfThisRun(const std::string& name) const;
    bool mayBeOfThisRun(const std::string& name) const;

    const ToolContext& tool_;
    const GatherJob& job_;
    MachinePath machinePath_;
    std::map<std::string, Stamp> before_;   ///< by name
    std::unique_ptr<ResultFolder> asItWas_; ///< null where there was no folder that may be listed
};
