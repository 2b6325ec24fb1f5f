#pragma once

#include "faults/box.h"

#include <string>
#include <vector>

/// What a change comes to when nothing fails.
struct Outcome {
    Kept old;
    Kept fresh;
    std::map<std::string, std::string> made; ///< in the folder that it makes, and what each holds
    std::uint64_t calls[callKinds] = {};
};

/// Runs a change as it is meant to go. Throws when it fails.
Outcome outcomeOf(const Change& change, const Box& box);

/// A change, and what befalls it.
struct Trial {
    const Change* change;
    const Outcome* outcome;
    std::string plan;
};

/// Runs a trial and looks at everything that it left. Empty, or what is wrong: it ended otherwise
/// than with an answer (or by the planned signal), it said done and it is not, something is neither
/// old nor new, something else was changed, or the same command does not serve afterwards.
std::string problemOf(const Trial& trial, const Box& box);

/// Runs trials on all processors; each that is wrong is a failed test. Says how many there were.
void runTrials(const std::vector<Trial>& trials);
