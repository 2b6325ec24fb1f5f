#pragma once

#include <QScreen>
#include <QWidget>

/// Gives a window a size, or what its screen has room for with the frame of a window around it.
inline void resizeWithinScreen(QWidget& window, QSize wanted)
{
    constexpr QSize frame(16, 40);
    if (const QScreen* screen = window.screen())
        wanted = wanted.boundedTo(screen->availableSize() - frame);
    window.resize(wanted);
}
