#pragma once

#include "controls/control.h"
#include "runtime/dates.h"

#include <functional>

enum class PickerKind { date, time };

/// A field for a date or a time of day. Its value is a whole moment either way.
class DateTimePicker final : public Control {
public:
    explicit DateTimePicker(PickerKind kind) : kind_(kind) {}

    /// The person picked another value; a value that the tool sets is no event.
    std::function<void()> onChange;

    PickerKind kind() const { return kind_; }

    Date value() const { return value_; }
    void setValue(Date value) { assign(value_, value); }

    /// The person picks a value.
    void setByPerson(Date value)
    {
        if (usable() && assign(value_, value) && onChange) onChange();
    }

private:
    PickerKind kind_;
    Date value_;
};
