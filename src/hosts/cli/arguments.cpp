#include "hosts/cli/arguments.h"

#include "hosts/cli/manual/values.h"
#include "hosts/cli/naming/near_names.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <limits>
#include <optional>

namespace cli {

namespace {

/// The number of digits alone: what else a number could be written as, such as in octal digits, is
/// nothing that a person means.
std::optional<std::uint64_t> wholeNumber(const std::string& text)
{
    std::uint64_t number = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end) return std::nullopt;
    return number;
}

/// Takes whole numbers within bounds, and hands them on without leading zeros, which the library
/// takes for a sign of octal digits.
CLI::Validator numberWithin(std::uint64_t lowest, std::uint64_t highest,
                            const std::string& description)
{
    const auto take = [lowest, highest](std::string& text) -> std::string {
        const auto number = wholeNumber(text);
        if (!number || *number < lowest || *number > highest)
            return "takes a whole number from " + std::to_string(lowest) + " to " +
                   std::to_string(highest) + ", not \"" + text + "\"";
        text = std::to_string(*number);
        return {};
    };
    return CLI::Validator(take, description);
}

} // namespace

Argument& Argument::called(const std::string& valueName)
{
    option_->type_name(valueName);
    return *this;
}

Argument& Argument::completes(Values values)
{
    if (CommandLine* line = CommandLine::of(*command_)) line->setValues(option_, values);
    return *this;
}

Argument& Argument::required()
{
    option_->required();
    return *this;
}

Argument& Argument::withDefault()
{
    option_->capture_default_str();
    return *this;
}

Argument& Argument::oneAtATime()
{
    option_->allow_extra_args(false);
    return *this;
}

Argument& Argument::oneOf(const std::vector<std::string>& words)
{
    const CLI::IsMember member(words, CLI::ignore_case);
    const auto take = [member, words](std::string& text) -> std::string {
        const std::string typed = text;
        if (member(text).empty()) return {};
        return "takes " + namesToChoose(words) + ", not \"" + typed + "\"" +
               didYouMean(typed, words);
    };
    option_->transform(CLI::Validator(take, member.get_description()));
    return *this;
}

Argument& Argument::within(std::uint64_t lowest, std::uint64_t highest)
{
    const CLI::Range range(lowest, highest);
    option_->transform(numberWithin(lowest, highest, range.get_description()));
    return *this;
}

Argument& Argument::positive()
{
    option_->transform(numberWithin(1, std::numeric_limits<std::int32_t>::max(), ""));
    return *this;
}

Argument& Argument::notNegative()
{
    option_->transform(numberWithin(0, std::numeric_limits<std::uint64_t>::max(), ""));
    return *this;
}

Argument& Argument::refusedBy(const std::function<std::string(const std::string&)>& reason)
{
    option_->check(reason);
    return *this;
}

bool Argument::given() const
{
    return option_->count() > 0;
}

Argument Arguments::add(const std::string& name, std::string& value, const std::string& description)
{
    return Argument(app_, app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::int32_t& value,
                        const std::string& description)
{
    return Argument(app_, app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::uint64_t& value,
                        const std::string& description)
{
    return Argument(app_, app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::vector<std::string>& values,
                        const std::string& description)
{
    return Argument(app_, app_->add_option(name, values, description));
}

Argument Arguments::addFlag(const std::string& name, bool& value, const std::string& description)
{
    return Argument(app_, app_->add_flag(name, value, description));
}

Arguments Arguments::addCommand(const std::string& name, const std::string& summary)
{
    return Arguments(app_->add_subcommand(name, summary));
}

void Arguments::requireCommand()
{
    app_->require_subcommand(1);
}

bool Arguments::given() const
{
    return app_->parsed();
}

bool Arguments::given(const std::string& option) const
{
    return app_->count(option) > 0;
}

const CLI::App& Arguments::program() const
{
    const CLI::App* app = app_;
    while (app->get_parent() != nullptr) app = app->get_parent();
    return *app;
}

} // namespace cli
