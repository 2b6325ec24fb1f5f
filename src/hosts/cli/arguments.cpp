#include "hosts/cli/arguments.h"

#include <CLI/CLI.hpp>

#include <limits>

namespace cli {

Argument& Argument::called(const std::string& valueName)
{
    option_->type_name(valueName);
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
    option_->check(CLI::IsMember(words));
    return *this;
}

Argument& Argument::within(std::uint64_t lowest, std::uint64_t highest)
{
    option_->check(CLI::Range(lowest, highest));
    return *this;
}

Argument& Argument::positive()
{
    CLI::Range range(std::int32_t{1}, std::numeric_limits<std::int32_t>::max());
    range.description("");
    option_->check(range);
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
    return Argument(app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::int32_t& value,
                        const std::string& description)
{
    return Argument(app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::uint64_t& value,
                        const std::string& description)
{
    return Argument(app_->add_option(name, value, description));
}

Argument Arguments::add(const std::string& name, std::vector<std::string>& values,
                        const std::string& description)
{
    return Argument(app_->add_option(name, values, description));
}

Argument Arguments::addFlag(const std::string& name, bool& value, const std::string& description)
{
    return Argument(app_->add_flag(name, value, description));
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
