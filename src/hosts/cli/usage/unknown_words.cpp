#include "hosts/cli/usage/unknown_words.h"

#include "hosts/cli/naming/near_names.h"
#include "runtime/text.h"

#include <algorithm>

namespace cli {

namespace {

using Names = std::vector<std::string>;

std::string lastWordOf(const std::string& path)
{
    return path.substr(path.rfind(' ') + 1);
}

bool has(const DescribedCommand& command, const std::string& option)
{
    return std::any_of(command.options.begin(), command.options.end(), [&](const auto& known) {
        return std::any_of(known.names.begin(), known.names.end(),
                           [&](const auto& name) { return equalIgnoringCase(name, option); });
    });
}

/// Calls `visit` with each command below one.
template <typename Visit>
void forEachBelow(const DescribedCommand& command, const Visit& visit)
{
    for (const DescribedCommand& below : command.commands) {
        visit(below);
        forEachBelow(below, visit);
    }
}

/// "A", "A and B", "A, B and C".
std::string enumerated(const Names& names)
{
    std::string text;
    for (std::size_t at = 0; at < names.size(); ++at)
        text.append(at == 0 ? "" : at + 1 == names.size() ? " and " : ", ").append(names[at]);
    return text;
}

/// Which commands have an option that another one lacks: those of the same family, as `macro set`
/// is of `macro`, where any of them has it. Nothing where too many have it to be told.
std::string ownersOf(const std::string& option, const DescribedCommand& program,
                     const std::string& path)
{
    constexpr std::size_t most = 3;
    const std::string family = path.substr(0, path.find(' ')) + " ";
    Names owners;
    Names relatives;
    forEachBelow(program, [&](const DescribedCommand& command) {
        if (!has(command, option)) return;
        owners.push_back("orvandiag " + command.path);
        if (beginsWith(command.path, family)) relatives.push_back(owners.back());
    });
    const Names& told = relatives.empty() ? owners : relatives;
    if (told.empty() || told.size() > most) return {};
    return "; " + enumerated(told) + (told.size() == 1 ? " has it" : " have it");
}

} // namespace

UnknownWords::UnknownWords(const DescribedCommand& program, const std::string& path)
    : program_(program)
{
    const auto addOptions = [this](const DescribedCommand& command) {
        for (const DescribedOption& option : command.options)
            options_.insert(options_.end(), option.names.begin(), option.names.end());
    };
    const auto addOnPath = [&](const DescribedCommand& command) {
        if (!command.path.empty() && !beginsWith(path + " ", command.path + " ")) return;
        addOptions(command);
        if (command.path == path) command_ = command;
    };
    addOnPath(program);
    forEachBelow(program, addOnPath);
    command_.path = path;
}

bool UnknownWords::mayBeCommand() const
{
    const auto isArgument = [](const DescribedOption& option) { return option.isArgument(); };
    return !command_.commands.empty() &&
           std::none_of(command_.options.begin(), command_.options.end(), isArgument);
}

std::string UnknownWords::refuseCommand(const std::string& word) const
{
    Names elsewhere;
    forEachBelow(program_, [&](const DescribedCommand& command) {
        if (equalIgnoringCase(lastWordOf(command.path), word)) elsewhere.push_back(command.path);
    });
    const std::string meant = elsewhere.empty()
                                  ? didYouMean(word, commandsHere(), optionMeant(word))
                                  : "; did you mean " + namesToChoose(elsewhere) + "?";
    return "no command \"" + word + "\"" + meant;
}

std::string UnknownWords::refuseOption(const std::string& word) const
{
    const std::string option = word.substr(0, word.find('='));
    const std::string owners = ownersOf(option, program_, command_.path);
    return "no option \"" + option + "\"" + (owners.empty() ? optionMeant(option) : owners);
}

std::string UnknownWords::refuseWords(const Names& words) const
{
    Names quoted;
    for (const std::string& word : words) quoted.push_back("\"" + word + "\"");
    return (words.size() == 1 ? "unexpected word " : "unexpected words ") + enumerated(quoted) +
           didYouMean(words.front(), commandsHere(), optionMeant(words.front()));
}

std::vector<std::string> UnknownWords::commandsHere() const
{
    Names names;
    for (const DescribedCommand& command : command_.commands)
        names.push_back(lastWordOf(command.path));
    return names;
}

std::string UnknownWords::optionMeant(const std::string& word) const
{
    const auto start = word.find_first_not_of('-');
    // A letter alone is near to every other one.
    if (start == std::string::npos || word.size() - start < 2) return {};
    return didYouMean("--" + word.substr(start), options_);
}

} // namespace cli
