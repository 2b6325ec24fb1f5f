#include "hosts/desktop/screenshot.h"

#include <QApplication>
#include <QDialog>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace {
constexpr int paintMilliseconds = 400; ///< for the window manager, layouts and fonts to settle
}

void takeScreenshot(QWidget& window, const QString& file, const QString& size)
{
    const QStringList sides = size.split(QLatin1Char('x'));
    if (sides.size() == 2) window.resize(sides[0].toInt(), sides[1].toInt());
    QTimer::singleShot(paintMilliseconds, &window,
                       [&window, file] { QApplication::exit(window.grab().save(file) ? 0 : 1); });
}
