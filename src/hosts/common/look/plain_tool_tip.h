#pragma once

#include <QString>

/// A text as the text of a tool tip that shows it as it is. A tip takes what looks like mark-up for
/// it, and a name or a line of a site may look so.
QString plainToolTip(const QString& text);
