#pragma once

#include <functional>

namespace viewer {

class MainWindow;

/// The viewer's program, from its command line to its exit status. `opened`, if there is one, is
/// called once the window is on show.
int runViewer(int argc, char** argv, const std::function<void(MainWindow&)>& opened = {});

} // namespace viewer
