#pragma once

#include "timeline/timeline.h"

#include <QString>

#include <cstdint>

namespace viewer {

/// What the level of a row tells.
enum class Severity { none, error, warning };

/// What the level of a record tells; nothing for one without a component, which has no level that
/// means anything.
Severity severityOf(const timeline::Record& record);

/// A row with its texts as a person sees them: decoded, and with nothing in them that would act on
/// a screen instead of being seen.
struct ShownRow {
    timeline::IndexRow index;
    bool hasForm = false; ///< false for a line without a form, which is `trace` alone
    bool belongs = false; ///< to the row before it in its source
    bool cut = false;     ///< whether a text is shortened, and ends with a sign of that
    Severity severity = Severity::none;
    std::int32_t traceNumber = 0;
    std::int16_t level = 0;
    QString process;
    QString source;
    QString component;
    QString thread;
    QString port;
    QString callId;
    QString file;
    QString trace; ///< one line: a line's end within it is a sign
};

/// How much is kept of a row's texts, which may have millions of characters.
enum class Texts {
    whole,
    shortened, ///< to more than a line on a screen has
};

/// The most characters of a shortened trace, and of another shortened text.
inline constexpr qsizetype longestShownTrace = 2000;
inline constexpr qsizetype longestShownField = 250;

/// Reads a row of a timeline. One that can't be read any more has the reason for its trace.
ShownRow readRow(const timeline::Timeline& timeline, const timeline::IndexRow& row,
                 timeline::Record& room, Texts texts = Texts::whole);

/// A text of a record, in the characters of its code page.
QString decoded(std::string_view bytes, const CodePage* codePage);

/// The text with a sign for each character that would act instead of being seen.
QString harmless(QString text);

} // namespace viewer
