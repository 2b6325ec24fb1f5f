#pragma once

/// What further interruptions do, once one was noted.
enum class FurtherInterruptions { end, areIgnored };

/// Notes Ctrl-C, a polite termination and the end of the terminal from now on, in place of the end
/// of the program. A program that was started to outlive its terminal goes on.
void noteInterruptions(FurtherInterruptions further);

/// Lets them end the program again. What was noted stays noted.
void stopNotingInterruptions();

/// Whether one came since the latest noting began.
bool interruptionCame();
