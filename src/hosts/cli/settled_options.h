#pragma once

namespace cli {

struct GlobalOptions;

/// Fills what the command line left open with what the person has set, and tells on standard error
/// of what the person's file says that is no setting. Raises RunTimeError, with a sentence that
/// names the file and the line or the variable, for what can't be taken.
void settleOptions(GlobalOptions& options);

/// The same, and tells nothing.
void settleOptionsQuietly(GlobalOptions& options);

} // namespace cli
