#pragma once

#include <functional>

namespace desktop {

class Program;

/// Runs the console by its command line, from the start to the end of the process, and gives the
/// exit status. `opened` is called once, before the first event is handled: the window is on show,
/// with the site and the node that were asked for.
int runConsole(int argc, char** argv, const std::function<void(Program&)>& opened = {});

} // namespace desktop
