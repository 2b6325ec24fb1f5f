#pragma once

#include "console/snap_in_definition.h"
#include "runtime/run_time_error.h"

#include <cstddef>
#include <string>
#include <vector>

/// A command on a task pad.
struct Task {
    std::string key;
    std::string text;
    std::string fontFamily;
    char symbol = ' '; ///< a character of the symbol font
    std::string helpText;
};

/// A result view of commands.
class TaskPad {
public:
    explicit TaskPad(const TaskPadDefinition& definition)
        : title(definition.title), description(definition.description),
          background(definition.background), symbolFontFile(definition.symbolFontFile)
    {
        for (const auto& task : definition.tasks)
            tasks_.push_back({task.key, task.text, task.fontFamily, task.symbol, task.helpText});
    }

    std::string title;
    std::string description;
    std::string background; ///< a reference that may name nothing; then there is none
    std::string symbolFontFile;

    int taskCount() const { return static_cast<int>(tasks_.size()); }

    /// By position from 1. Raises 9 for a task that is not there.
    Task& task(int position)
    {
        if (position < 1 || position > taskCount()) {
            throw RunTimeError(runTimeErrors::subscriptOutOfRange);
        }
        return tasks_[static_cast<std::size_t>(position) - 1];
    }

private:
    std::vector<Task> tasks_;
};
