#pragma once

#include "system/root_folder.h"

#include <functional>
#include <string>
#include <vector>

/// A folder of the machine that a gather writes its results to, held open.
class ResultFolder {
public:
    /// Whose turn it is to write to a folder.
    enum class Turn {
        unknown, ///< the folder's file system keeps no locks
        ours,
        anothers,
    };

    /// Raises 76 for what is no folder, 70.
    explicit ResultFolder(const std::string& path);

    /// Takes the turn on the folder for as long as this lives, or finds that another has it. It
    /// passes on to the programs that are started meanwhile, so that the folder is not free while
    /// the cabinet maker of a gather that was killed is at work there.
    Turn takeTurn();

    /// Whether a path of the machine still leads to this folder.
    bool isAt(const std::string& path) const;

    /// Whether results of a gather lie there that one in this second would name as its own. Where
    /// the folder can't be listed there are none.
    bool hasNamesOfThisSecond() const;

    /// Removes what gathers that were killed have left of their packing; for who has the turn on
    /// the folder. Where nobody can have one, all stays. `cabinetMaker` gives the bytes of the
    /// program that a gather copies there.
    void sweepLeftovers(const std::function<std::string()>& cabinetMaker);

    /// The names of what `sweepLeftovers` would remove now. Changes nothing; none where the folder
    /// can't be listed.
    std::vector<std::string> leftovers(const std::function<std::string()>& cabinetMaker) const;

private:
    RootFolder root_;
    FileDescriptor lock_;
};
