#include "hosts/common/gather/destination_turn.h"

#include "backends/site/files/result_folder.h"
#include "hosts/common/gather/gather_sentences.h"
#include "platform/file_system.h"
#include "runtime/run_time_error.h"

#include <utility>

namespace {

void makeWhereMissing(FileSystem& files, const std::string& destination)
try {
    if (!files.folderExists(destination)) files.createPrivateFolder(destination);
} catch (const RunTimeError&) {
    // Another gather has made it meanwhile, or this one will say why it can't.
}

} // namespace

DestinationTurn::DestinationTurn(FileSystem& files, const std::string& destination,
                                 std::string folder)
    : path_(std::move(folder))
{
    // A folder may be put in the place of the one that was opened before that is locked.
    constexpr int mostTries = 5;
    for (int tries = 0; tries < mostTries; ++tries) {
        makeWhereMissing(files, destination);
        if (keep()) return;
    }
}

DestinationTurn::~DestinationTurn() = default;

/// False where the lock is one on a folder that has left its place.
bool DestinationTurn::keep()
try {
    auto folder = std::make_unique<ResultFolder>(path_);
    const auto turn = folder->takeTurn();
    taken_ = turn == ResultFolder::Turn::anothers;
    if (turn != ResultFolder::Turn::anothers && !folder->isAt(path_)) return false;
    folder_ = std::move(folder);
    return true;
} catch (const RunTimeError&) {
    return true;
}

std::optional<Sentence> DestinationTurn::refusal() const
{
    if (!taken_) return {};
    return Sentence{gatherSentences::destinationTaken, {path_}};
}

std::optional<Sentence> DestinationTurn::foreseenRefusal(const std::string& folder)
try {
    if (ResultFolder(folder).takeTurn() != ResultFolder::Turn::anothers) return {};
    return Sentence{gatherSentences::destinationTaken, {folder}};
} catch (const RunTimeError&) {
    return {};
}

bool DestinationTurn::hasNamesOfThisSecond() const
{
    return folder_ && folder_->hasNamesOfThisSecond();
}
