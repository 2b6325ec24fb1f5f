#pragma once

#include "controls/control.h"
#include "runtime/run_time_error.h"

#include <cstddef>
#include <functional>
#include <vector>

/// Option buttons of which at most one is selected, counted from 0.
///
/// What takes an index raises 9 for one without a button.
class OptionButtonGroup final : public Control {
public:
    explicit OptionButtonGroup(int count) : options_(static_cast<std::size_t>(count)) {}

    /// An option was selected, by the person or by the tool.
    std::function<void(int index)> onClick;

    int count() const { return static_cast<int>(options_.size()); }

    const std::string& caption(int index) const { return options_[position(index)].caption; }
    void setCaption(int index, std::string caption)
    {
        assign(options_[position(index)].caption, std::move(caption));
    }

    const std::string& optionToolTip(int index) const { return options_[position(index)].toolTip; }
    void setOptionToolTip(int index, std::string toolTip)
    {
        assign(options_[position(index)].toolTip, std::move(toolTip));
    }

    /// -1 when none is selected.
    int selected() const { return selected_; }

    bool isSelected(int index) const
    {
        position(index);
        return selected_ == index;
    }

    void select(int index)
    {
        position(index);
        if (assign(selected_, index) && onClick) onClick(index);
    }

    /// The person selects an option.
    void click(int index)
    {
        if (usable()) select(index);
    }

private:
    struct Option {
        std::string caption;
        std::string toolTip;
    };

    std::size_t position(int index) const
    {
        if (index < 0 || index >= count()) throw RunTimeError(runTimeErrors::subscriptOutOfRange);
        return static_cast<std::size_t>(index);
    }

    std::vector<Option> options_;
    int selected_ = -1;
};
