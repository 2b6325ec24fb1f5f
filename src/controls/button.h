#pragma once

#include "controls/control.h"

#include <functional>

/// A push button.
class Button final : public CaptionedControl {
public:
    std::function<void()> onClick;

    /// The person presses the button.
    void click()
    {
        if (usable() && onClick) onClick();
    }
};
