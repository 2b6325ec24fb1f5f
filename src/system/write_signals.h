#pragma once

/// Makes a write into a pipe that nobody reads any more an error of the write. Without this the
/// system ends the program.
void letWritesToClosedPipesFail();

/// The same of a write past the largest size that the user may give a file.
void letWritesPastTheSizeLimitFail();
