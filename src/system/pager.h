#pragma once

#include <string>

/// From now on the program's standard output goes to another program, which shows it page by page:
/// `command` is what a person would type, and the empty text stands for "less -R". False, with
/// nothing changed, where there is none to be had. Call it before anything is written.
bool startPager(const std::string& command);

/// Ends the output to it, which has to be flushed, and waits until the person leaves it.
void endPager();
