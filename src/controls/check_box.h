#pragma once

#include "controls/control.h"

#include <functional>

/// A box that is ticked or not.
class CheckBox final : public CaptionedControl {
public:
    /// The box was ticked or cleared, by the person or by the tool.
    std::function<void()> onClick;

    bool checked() const { return checked_; }

    void setChecked(bool checked)
    {
        if (assign(checked_, checked) && onClick) onClick();
    }

    /// The person ticks or clears the box.
    void click()
    {
        if (usable()) setChecked(!checked_);
    }

private:
    bool checked_ = false;
};
