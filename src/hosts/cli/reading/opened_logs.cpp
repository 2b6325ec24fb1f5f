#include "hosts/cli/reading/opened_logs.h"

#include "runtime/run_time_error.h"

#include <map>
#include <utility>

namespace cli {

namespace {

void append(std::vector<std::string>& sentences, const std::vector<std::string>& more)
{
    sentences.insert(sentences.end(), more.begin(), more.end());
}

std::string withoutName(std::string sentence, const std::string& name)
{
    if (const auto place = sentence.find(name); place != std::string::npos)
        sentence.erase(place, name.size());
    return sentence;
}

} // namespace

void OpenedLogs::open(const std::string& path)
{
    timeline::Progress progress;
    try {
        timeline::OpenedSources opened = opener_.open(path, progress);
        for (auto& source : opened.sources) timeline_.add(std::move(source));
        append(failures_, opened.troubles);
        append(passedOver_, opened.passedOver);
        append(readElsewhere_, opened.notes);
    } catch (const RunTimeError& error) {
        failures_.push_back(error.description());
    }
}

std::vector<std::string> OpenedLogs::guesses() const
{
    struct Guess {
        std::string sentence; ///< of the first log
        std::size_t others = 0;
    };
    std::vector<std::string> inOrder;
    std::map<std::string, Guess> guesses; ///< by what they say of whatever log
    for (std::size_t at = 0; at < timeline_.sourceCount(); ++at) {
        const timeline::SourceFacts& facts = timeline_.source(at).facts();
        for (const std::string& sentence : facts.guesses) {
            std::string said = withoutName(sentence, facts.name);
            const auto [guess, isNew] = guesses.try_emplace(said, Guess{sentence});
            if (isNew)
                inOrder.push_back(std::move(said));
            else
                ++guess->second.others;
        }
    }
    std::vector<std::string> sentences;
    for (const std::string& said : inOrder) {
        const Guess& guess = guesses.at(said);
        sentences.push_back(guess.sentence);
        if (guess.others > 0)
            sentences.back() += "; the same goes for " + std::to_string(guess.others) +
                                (guess.others == 1 ? " other log" : " other logs");
    }
    return sentences;
}

} // namespace cli
