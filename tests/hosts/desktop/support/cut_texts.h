#pragma once

#include <string>
#include <vector>

class QWidget;

namespace desktop {

/// The widgets of a window whose text has less room than it needs, or that reach out of the window:
/// a line for each, with its kind and text. None for a window that shows all it has to say.
///
/// Data of the server may be elided where the view says so by its elide mode, such as the names in
/// the tree, and in the cells of a table. What a scroll area holds may reach out of it.
std::vector<std::string> cutTexts(QWidget& window);

} // namespace desktop
