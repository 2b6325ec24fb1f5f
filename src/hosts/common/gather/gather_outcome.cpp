#include "hosts/common/gather/gather_outcome.h"

#include "hosts/common/gather/gather_sentences.h"

std::vector<Sentence> GatherOutcome::sentences() const
{
    std::vector<Sentence> all;
    if (cancelled) all.push_back({gatherSentences::cancelled, {}});
    all.insert(all.end(), missing.begin(), missing.end());
    if (emptyFrame) all.push_back({gatherSentences::emptyFrame, {}});
    if (cabinetMakerReplaced) all.push_back({gatherSentences::cabinetMakerReplaced, {}});
    if ((cancelled || !missing.empty()) && !files.empty())
        all.push_back({gatherSentences::kept, {destination}});
    return all;
}
