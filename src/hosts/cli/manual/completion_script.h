#pragma once

namespace cli {

/// The scripts that complete the program's command line in a shell. They ask the program at each
/// Tab (`complete`), and know nothing of its commands themselves.
extern const char* const bashCompletion;
extern const char* const zshCompletion;
extern const char* const fishCompletion;

} // namespace cli
