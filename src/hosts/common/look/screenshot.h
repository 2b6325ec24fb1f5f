#pragma once

#include <QString>

class QWidget;

/// Writes a picture of a window, or of the dialog in front of it, once it has been painted, and
/// ends the program: with 1 when the file can't be written.
void takeScreenshot(QWidget& window, const QString& file);
