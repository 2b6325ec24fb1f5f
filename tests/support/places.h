#pragma once

/// Where what a test reads and starts lies, as whole paths. They differ from one build folder to
/// the next, so that they stand in a source of their own: what is compiled once serves every
/// folder.

/// What this build made. A program that is left out of it has an empty path.
namespace built {

extern const char* const folder;
extern const char* const data; ///< as it is installed
extern const char* const orvandiag;
extern const char* const console;
extern const char* const viewer;
extern const char* const consoleToEnd; ///< the window that a test ends
extern const char* const cabmaker;
extern const char* const failingCalls; ///< the library that is preloaded
extern const char* const cmake;        ///< the program that the build was configured with

} // namespace built

/// What it was made from.
namespace checkout {

extern const char* const folder;
extern const char* const data;
extern const char* const packaging;
extern const char* const readers; ///< the outside readers for Node
extern const char* const traceSchema;
extern const char* const translations; ///< of the window

} // namespace checkout
