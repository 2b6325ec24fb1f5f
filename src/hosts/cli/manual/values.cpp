#include "hosts/cli/manual/values.h"

namespace cli {

const CommandLine* CommandLine::of(const CLI::App& command)
{
    const CLI::App* app = &command;
    while (app->get_parent() != nullptr) app = app->get_parent();
    return dynamic_cast<const CommandLine*>(app);
}

CommandLine* CommandLine::of(CLI::App& command)
{
    CLI::App* app = &command;
    while (app->get_parent() != nullptr) app = app->get_parent();
    return dynamic_cast<CommandLine*>(app);
}

Values CommandLine::valuesOf(const CLI::Option* option) const
{
    const auto known = values_.find(option);
    return known == values_.end() ? Values::any : known->second;
}

} // namespace cli
