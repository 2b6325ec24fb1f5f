#pragma once

#include <functional>

class QApplication;

/// The one application of a test program, on a display that nobody sees.
QApplication& testApplication();

/// Handles events until none is left.
void settle();

/// Handles events until something holds, for a while at most; false when it never did.
bool waitUntil(const std::function<bool()>& holds, int milliseconds = 20'000);
