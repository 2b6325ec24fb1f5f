#pragma once

#include "faults/call_counts.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

/// A command that changes a site or makes something.
struct Change {
    std::string name;
    std::vector<std::string> words; ///< "TO" stands for a folder that is not there yet
    bool gathers = false;
    bool makesSample = false;
    /// What a value may be besides old and new while the command is at work: expressions that a
    /// part of its name and the whole value match.
    std::vector<std::pair<std::string, std::string>> passing = {};
};

const std::vector<Change>& everyChange();

/// Whether a value is one that the tool notes whenever it starts and finds none: whether it could
/// note it says nothing of the command.
bool isNotedAtStart(const std::string& name);

/// What is kept for a server: every registry value and every row of the directory database, by
/// name. Moments that changed are all alike.
using Kept = std::map<std::string, std::string>;

/// How a run of orvandiag ended.
struct Run {
    int status = -1; ///< exit status, or 128 and the signal
    std::string words;
    std::string messages;
};

std::string contentOf(const std::filesystem::path& file);

/// A folder of one worker's own, where the file system keeps nothing on a disk: a site that is
/// made anew for each trial, the folder that is gathered into, a home and a working folder.
class Box {
public:
    /// Makes the small site that all trials begin with; it is the same in every box.
    Box();
    ~Box();
    Box(const Box&) = delete;
    Box& operator=(const Box&) = delete;

    /// Puts back the site, and empties the folder that is gathered into.
    void begin() const;

    /// Everything below a folder: "folder", or "file " and the content.
    static std::map<std::string, std::string> filesOf(const std::filesystem::path& folder);

    /// Runs a command with a plan for its calls; the empty plan only counts.
    Run run(const Change& change, const std::string& plan) const;

    /// How often the last run made calls.
    const CallCounts& counts() const { return *counts_; }

    Kept kept(const std::filesystem::path& of) const;

    /// What is wrong with the files of the site that no command changes, with its event log, and
    /// with what lies outside; empty when all is well.
    std::string strayChanges() const;

    std::filesystem::path folder;
    std::filesystem::path sound; ///< the site as it was
    std::filesystem::path site;
    std::filesystem::path to; ///< a folder that is not there yet

private:
    std::map<std::string, std::string> outside() const;
    void makeFolders();
    void makeSite();

    CallCounts* counts_ = nullptr;
    std::map<std::string, std::string> before_;
    std::map<std::string, std::string> soundFiles_;
    std::string soundEvents_;
};
