#pragma once

#include "hosts/common/sentence.h"

#include <memory>
#include <optional>
#include <string>

class FileSystem;
class ResultFolder;

/// A gather's turn to write to a folder, held for as long as this lives: results are named by the
/// second, and one of two gathers would take the other's place.
///
/// The turn is a lock on the folder itself, so it leaves nothing there, holds by whatever path the
/// folder is reached, and goes with the program, and with those that it started, however they end.
/// Where the folder can't be made, opened or locked there is none to take: the gather tells of the
/// folder by itself.
class DestinationTurn {
public:
    /// Takes the turn on a folder, which is made as the gather would make it where it is not there.
    /// `destination` is the path as the tool names it, `folder` the same one on this machine.
    DestinationTurn(FileSystem& files, const std::string& destination, std::string folder);
    ~DestinationTurn();
    DestinationTurn(const DestinationTurn&) = delete;
    DestinationTurn& operator=(const DestinationTurn&) = delete;

    /// Why the gather must not begin: another one has the turn.
    std::optional<Sentence> refusal() const;

    /// Why a gather into a folder of this machine would not begin now. Makes nothing, and keeps no
    /// turn.
    static std::optional<Sentence> foreseenRefusal(const std::string& folder);

    /// Whether results of an earlier gather lie there that one in this second would name as its
    /// own. Where the folder can't be listed there are none.
    bool hasNamesOfThisSecond() const;

    /// How long names of this second can stand in a gather's way, in milliseconds; with clocks
    /// that differ they may seem to do so for ever.
    static constexpr int longestPause = 2000;

private:
    bool keep();

    std::string path_;
    std::unique_ptr<ResultFolder> folder_; ///< null where there is none to take
    bool taken_ = false;                   ///< by another gather
};
