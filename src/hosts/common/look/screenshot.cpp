#include "hosts/common/look/screenshot.h"

#include <QApplication>
#include <QPixmap>
#include <QTimer>
#include <QWidget>

namespace {
constexpr int paintMilliseconds = 400; ///< for the window manager, layouts and fonts to settle
}

void takeScreenshot(QWidget& window, const QString& file)
{
    QTimer::singleShot(paintMilliseconds, &window, [&window, file] {
        QWidget* front = QApplication::activeModalWidget();
        QApplication::exit((front ? front : &window)->grab().save(file) ? 0 : 1);
    });
}
