#include "hosts/cli/manual/completion.h"

#include "runtime/text.h"
#include "text/visible_text.h"

#include <algorithm>

namespace cli {

namespace {

/// Follows the words of a command line down the tree of commands.
class LineWalk {
public:
    explicit LineWalk(const DescribedCommand& program) : program_(program), command_(&program) {}

    void take(const std::string& word)
    {
        if (pending_) {
            note(*pending_, word);
            greedy_ = pending_->takesMany ? pending_ : nullptr;
            pending_ = nullptr;
        } else if (!onlyArguments_ && word == "--") {
            onlyArguments_ = true;
        } else if (!onlyArguments_ && word.size() > 1 && word.front() == '-') {
            takeOption(word);
        } else if (const DescribedCommand* below = onlyArguments_ ? nullptr : commandBelow(word)) {
            command_ = below;
            arguments_ = 0;
            greedy_ = nullptr;
        } else if (!greedy_) {
            ++arguments_;
        }
    }

    Place place(const std::string& last)
    {
        Place place;
        place.typed = last;
        place.site = site_;
        place.toolFolder = toolFolder_;
        const auto sign = last.find('=');
        if (pending_) {
            offerValue(*pending_, place);
        } else if (!onlyArguments_ && beginsWith(last, "--") && sign != std::string::npos) {
            place.before = last.substr(0, sign + 1);
            place.typed = last.substr(sign + 1);
            if (const auto* option = optionNamed(last.substr(0, sign))) offerValue(*option, place);
        } else if (!onlyArguments_ && beginsWith(last, "-")) {
            offerOptions(place);
        } else {
            offerWords(place);
        }
        return place;
    }

private:
    void takeOption(const std::string& word)
    {
        greedy_ = nullptr;
        const auto sign = word.find('=');
        const auto* option = optionNamed(word.substr(0, sign));
        if (!option) return;
        given_.push_back(option);
        if (!option->takesValue()) return;
        if (sign == std::string::npos)
            pending_ = option;
        else
            note(*option, word.substr(sign + 1));
    }

    void note(const DescribedOption& option, const std::string& value)
    {
        if (option.names.back() == "--site") site_ = value;
        if (option.names.back() == "--tool-folder") toolFolder_ = value;
    }

    const DescribedCommand* commandBelow(const std::string& word) const
    {
        for (const auto& below : command_->commands)
            if (equalIgnoringCase(below.name(), word)) return &below;
        return nullptr;
    }

    const DescribedOption* optionNamed(const std::string& name) const
    {
        for (const DescribedCommand* command : {command_, &program_})
            for (const auto& option : command->options)
                if (std::find(option.names.begin(), option.names.end(), name) != option.names.end())
                    return &option;
        return nullptr;
    }

    static void offerValue(const DescribedOption& option, Place& place)
    {
        if (option.choices.empty())
            place.values = option.values;
        else
            place.words.insert(place.words.end(), option.choices.begin(), option.choices.end());
    }

    void offerOptions(Place& place) const
    {
        offerOptionsOf(*command_, place);
        if (command_ == &program_) return;
        for (const auto& option : program_.options)
            if (!isHelpOption(option) && option.names.back() != "--version")
                offerOption(option, place);
    }

    void offerOptionsOf(const DescribedCommand& command, Place& place) const
    {
        for (const auto& option : command.options)
            if (!option.isArgument()) offerOption(option, place);
    }

    void offerOption(const DescribedOption& option, Place& place) const
    {
        const bool again = std::find(given_.begin(), given_.end(), &option) != given_.end();
        if (!again || option.repeated)
            place.words.insert(place.words.end(), option.names.begin(), option.names.end());
    }

    void offerWords(Place& place) const
    {
        if (greedy_) return offerValue(*greedy_, place);
        if (arguments_ == 0 && !onlyArguments_)
            for (const auto& below : command_->commands) place.words.push_back(below.name());
        std::size_t at = 0;
        for (const auto& option : command_->options) {
            if (!option.isArgument()) continue;
            if (at == arguments_ || (option.repeated && at < arguments_)) {
                offerValue(option, place);
                return;
            }
            ++at;
        }
        if (place.words.empty() && !onlyArguments_) offerOptionsOf(*command_, place);
    }

    const DescribedCommand& program_;
    const DescribedCommand* command_;
    const DescribedOption* pending_ = nullptr; ///< waits for its value
    const DescribedOption* greedy_ = nullptr;  ///< takes the words that follow, too
    std::vector<const DescribedOption*> given_;
    std::size_t arguments_ = 0; ///< of the command, so far
    bool onlyArguments_ = false;
    std::optional<std::string> site_;
    std::optional<std::string> toolFolder_;
};

bool canBeShown(const std::string& candidate)
{
    return candidate.find('\t') == std::string::npos && visibleText(candidate) == candidate;
}

} // namespace

Place placeOf(const DescribedCommand& program, const std::vector<std::string>& words,
              const std::string& last)
{
    LineWalk walk(program);
    for (std::size_t at = 1; at < words.size(); ++at) walk.take(words[at]);
    return walk.place(last);
}

std::vector<std::string> beginningWith(const std::vector<std::string>& candidates,
                                       const std::string& typed)
{
    std::vector<std::string> exactly;
    std::vector<std::string> nearly;
    for (const auto& candidate : candidates) {
        if (!canBeShown(candidate)) continue;
        auto& found = beginsWith(candidate, typed) ? exactly : nearly;
        const bool begins = equalIgnoringCase(candidate.substr(0, typed.size()), typed);
        if (begins && std::find(found.begin(), found.end(), candidate) == found.end())
            found.push_back(candidate);
    }
    return exactly.empty() ? nearly : exactly;
}

} // namespace cli
