#pragma once

#include "controls/control.h"

#include <algorithm>
#include <functional>

/// Two arrows that count a whole number up and down.
class SpinControl final : public Control {
public:
    SpinControl(int minimum, int maximum)
        : minimum_(minimum), maximum_(maximum), value_(std::clamp(0, minimum, maximum))
    {}

    /// The value is another one than before, by the person or by the tool.
    std::function<void()> onChange;

    int minimum() const { return minimum_; }
    int maximum() const { return maximum_; }
    int value() const { return value_; }

    /// A value outside the range becomes the nearer bound.
    void setValue(int value)
    {
        if (assign(value_, std::clamp(value, minimum_, maximum_)) && onChange) onChange();
    }

    /// The person presses an arrow.
    void stepUp()
    {
        if (usable() && value_ < maximum_) setValue(value_ + 1);
    }
    void stepDown()
    {
        if (usable() && value_ > minimum_) setValue(value_ - 1);
    }

private:
    int minimum_;
    int maximum_;
    int value_;
};
