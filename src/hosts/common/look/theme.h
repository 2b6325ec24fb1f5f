#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>
#include <QString>

/// How the window looks: light, dark, or as the desktop is.
namespace theme {

enum class Scheme { system, light, dark };

/// By the names "system", "light" and "dark"; anything else is the system's.
Scheme schemeOf(const QString& name);
QString nameOf(Scheme scheme);

/// Gives the whole program a scheme, now and for windows to come.
void apply(Scheme scheme);

bool isDark(const QPalette& palette);

/// Behind a row of a log whose level tells of an error or a warning.
QColor errorTint(const QPalette& palette);
QColor warningTint(const QPalette& palette);

/// Behind a text that was found, and behind a notice.
QColor hitTint(const QPalette& palette);
QColor noticeTint(const QPalette& palette);

/// Behind the selected rows of a view that does not have the focus; their text is that of a
/// selection.
QColor restingSelection(const QPalette& palette);

/// The marks of a log's overview: rows of an error, of a warning, and with the text looked for.
QColor errorMark(const QPalette& palette);
QColor warningMark(const QPalette& palette);
QColor hitMark(const QPalette& palette);

/// A thin line, and text of less weight.
QColor outline(const QPalette& palette);
QColor quietText(const QPalette& palette);

/// The fixed-width font of traces, at the size of the program's own.
QFont traceFont();

} // namespace theme
