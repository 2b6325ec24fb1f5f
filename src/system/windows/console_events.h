#pragma once

#include <optional>

/// Whether an event of the console, numbered by the system, is kept from ending the program.
using KeepsConsoleEvent = bool (*)(unsigned long event);

/// Notes the events by which the console and the system ask the program to end, those that `keeps`
/// keeps from ending it. What can't be kept is given the time that the system leaves.
void listenToConsole(KeepsConsoleEvent keeps);

void stopListeningToConsole();

/// Whether one was noted since the listening began.
bool consoleEventCame();

/// Takes off the latest that was noted.
std::optional<unsigned long> takeConsoleEvent();

/// Ends the program as an event that nobody listens to does.
[[noreturn]] void endAsConsoleWould();
