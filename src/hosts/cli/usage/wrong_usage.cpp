#include "hosts/cli/usage/wrong_usage.h"

#include "hosts/cli/naming/near_names.h"
#include "hosts/cli/usage/unknown_words.h"
#include "runtime/text.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <vector>

namespace cli {

namespace {

using Words = std::vector<std::string>;

const CLI::App& innermostCommand(const CLI::App& app)
{
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app : innermostCommand(*chosen.front());
}

/// The path of the chosen command below the program, such as "gather frame".
std::string chosenPath(const CLI::App& app)
{
    const std::string whole = chosenCommand(app);
    const auto blank = whole.find(' ');
    return blank == std::string::npos ? "" : whole.substr(blank + 1);
}

bool isOption(const std::string& word)
{
    return word.size() > 1 && word.front() == '-';
}

/// Refuses the words that no command took; empty where there are none.
std::string refuseLeftOver(const CLI::App& app)
{
    const Words words = app.remaining(true); // those of the outermost one, where all of them wait
    if (words.empty()) return {};
    const DescribedCommand program = describeCommands(app);
    const UnknownWords unknown(program, chosenPath(app));
    if (isOption(words.front())) return unknown.refuseOption(words.front());
    if (unknown.mayBeCommand()) return unknown.refuseCommand(words.front());
    return unknown.refuseWords({words.begin(), std::find_if(words.begin(), words.end(), isOption)});
}

/// Asks for the command that is not there, with some that could be.
std::string missingCommand(const CLI::App& innermost)
{
    constexpr std::size_t most = 3;
    Words names;
    for (const CLI::App* command :
         innermost.get_subcommands([](const CLI::App* sub) { return !sub->get_group().empty(); }))
        if (names.size() < most) names.push_back(command->get_name());
    return "name a command, such as " + namesToChoose(names);
}

/// Something that is not there, unless words that nothing takes stand in its stead.
std::string refuseMissing(const CLI::App& app, const std::string& error)
{
    if (std::string refusal = refuseLeftOver(app); !refusal.empty()) return refusal;
    const CLI::App& innermost = innermostCommand(app);
    return innermost.get_require_subcommand_min() > 0 ? missingCommand(innermost) : error;
}

/// The option that an error of the library names ahead of a sign; null where it names none.
const CLI::Option* optionNamed(const CLI::App& app, const std::string& error,
                               const std::string& sign)
{
    const std::string name = error.substr(0, error.find(sign));
    for (const CLI::App* command = &innermostCommand(app); command != nullptr;
         command = command->get_parent())
        for (const CLI::Option* option : command->get_options())
            if (option->get_name() == name) return option;
    return nullptr;
}

/// An option that has not as many values as it takes.
std::string refuseNumberOfValues(const CLI::App& app, const std::string& error)
{
    const CLI::Option* option = optionNamed(app, error, ": ");
    if (option == nullptr) return error;
    if (option->count() > 1) return option->get_name() + " is given more than once";
    return option->get_name() + " needs a value: " + describeOption(*option).argument;
}

/// A flag that was given a value; that of any other option is looked at before it is converted.
std::string refuseConversion(const CLI::App& app, const std::string& error)
{
    const std::string beginning = "Could not convert: ";
    if (!beginsWith(error, beginning)) return error;
    const CLI::Option* option = optionNamed(app, error.substr(beginning.size()), " = ");
    if (option == nullptr || option->get_items_expected_max() > 0) return error;
    return option->get_name() + " takes no value";
}

/// A value that a check refused, either with a clause about the option or with a sentence.
std::string refuseValue(const std::string& error)
{
    const auto colon = error.find(':');
    const bool isClause = error.find(": takes ") == colon && colon != std::string::npos;
    return isClause ? error.substr(0, colon) + error.substr(colon + 1) : error;
}

} // namespace

std::string chosenCommand(const CLI::App& app)
{
    const auto chosen = app.get_subcommands();
    return chosen.empty() ? app.get_name() : app.get_name() + " " + chosenCommand(*chosen.front());
}

std::string unknownCommand(const CLI::App& app)
{
    if (innermostCommand(app).get_require_subcommand_min() == 0) return {};
    return refuseLeftOver(app);
}

bool namesNothing(const CLI::App& app)
{
    return app.get_subcommands().empty() && app.remaining(true).empty();
}

std::string wrongUsage(const CLI::App& app, const CLI::ParseError& error)
{
    // By number, as words that are left over bear the program's name in place of the error's.
    switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
    case CLI::ExitCodes::RequiredError:
        return refuseMissing(app, error.what());
    case CLI::ExitCodes::ExtrasError:
        return refuseLeftOver(app);
    case CLI::ExitCodes::ArgumentMismatch:
        return refuseNumberOfValues(app, error.what());
    case CLI::ExitCodes::ConversionError:
        return refuseConversion(app, error.what());
    case CLI::ExitCodes::ValidationError:
        return refuseValue(error.what());
    default:
        return error.what();
    }
}

} // namespace cli
