#pragma once

#include <string>
#include <string_view>

/// What becomes of a line feed.
enum class LineEnds {
    shown, ///< written out like any other control character: the text is one line
    kept,
};

/// UTF-8 as a terminal may have it. What would act there instead of being seen is written out: a
/// control character, a byte that is no UTF-8, a mark that turns the direction of writing, a
/// separator of lines or paragraphs. A tab stays.
///
/// Controls below the blank and stray bytes become "\x1b", the others "\u009b". So a text in JSON,
/// which has escaped the former itself, stays JSON with the same values.
std::string visibleText(std::string_view text, LineEnds lineEnds = LineEnds::shown);

/// Appends `visibleText` of a text.
void appendVisible(std::string& target, std::string_view text, LineEnds lineEnds = LineEnds::shown);
