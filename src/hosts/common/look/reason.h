#pragma once

#include <QString>

class RunTimeError;

/// Why something failed, to stand in a sentence of the window: a standard text of `error` in the
/// interface language, any other text as it came. For any thread.
QString reasonOf(const RunTimeError& error);
