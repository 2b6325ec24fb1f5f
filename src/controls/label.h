#pragma once

#include "controls/control.h"

/// A text on a page.
class Label final : public CaptionedControl {};

/// A box with a caption around other controls.
class Frame final : public CaptionedControl {};
