#pragma once

#include "core/tool_context.h"
#include "platform/desktop.h"
#include "platform/host_module.h"
#include "runtime/run_time_error.h"

#include <concepts>
#include <string>
#include <string_view>

/// Runs statements one by one and shows each failure to the person at the console, not in the log.
class ShowingTrap {
public:
    /// `failureText` heads each box; it is a literal.
    ShowingTrap(ToolContext& tool, std::string_view failureText)
        : tool_(tool), failureText_(failureText)
    {}

    template <std::invocable Statement>
    void operator()(Statement&& statement)
    {
        try {
            statement();
        } catch (const RunTimeError& error) {
            tool_.platform.desktop.messageBox(std::string(failureText_) + error.description(),
                                              tool_.platform.module.name(), MessageIcon::none);
        }
    }

private:
    ToolContext& tool_;
    std::string_view failureText_;
};
