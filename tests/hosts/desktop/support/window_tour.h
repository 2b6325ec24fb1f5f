#pragma once

#include "hosts/desktop/support/test_window.h"

#include <functional>
#include <string>
#include <vector>

namespace desktop {

/// Looks at a place of the window while it is on show: the window itself, a dialog or a menu.
using Visit = std::function<void(const std::string& name, QWidget& shown)>;

/// Takes a window on a server through every place that a person can come to, and visits each: the
/// views and bars of the main window, its menus, boxes, wizards page by page, and sheets. Names
/// tell the place, such as "gather-4-progress", and are the same in each language. Raises
/// std::runtime_error where a place can't be reached.
void tourWindow(TestWindow& shown, const Visit& visit);

/// The parts of the tour.
void tourViews(TestWindow& shown, const Visit& visit);
void tourMenus(TestWindow& shown, const Visit& visit);
void tourBoxes(TestWindow& shown, const Visit& visit);
void tourWizards(TestWindow& shown, const Visit& visit);
void tourSheets(TestWindow& shown, const Visit& visit);

/// The codes of the languages that the tool's texts are there in, such as "DEU", in order.
std::vector<std::string> toolLanguages();

} // namespace desktop
