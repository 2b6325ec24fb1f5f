#pragma once

#include "controls/control.h"
#include "runtime/run_time_error.h"

/// A bar from 0 to a maximum, in single precision.
class ProgressBar final : public Control {
public:
    float maximum() const { return maximum_; }

    /// Raises 380 for a maximum that is not above 0. A bar without length, 0, is taken all the
    /// same, so that its end is where it begins; a negative one is not. A value past the maximum
    /// moves back to it.
    void setMaximum(float maximum)
    {
        if (maximum >= 0) {
            assign(maximum_, maximum);
            if (value_ > maximum_) assign(value_, maximum_);
        }
        if (!(maximum > 0)) throw RunTimeError(runTimeErrors::invalidPropertyValue);
    }

    float value() const { return value_; }

    /// Raises 380 outside 0 to the maximum.
    void setValue(float value)
    {
        if (!(value >= 0 && value <= maximum_))
            throw RunTimeError(runTimeErrors::invalidPropertyValue);
        assign(value_, value);
    }

private:
    float maximum_ = 100;
    float value_ = 0;
};
