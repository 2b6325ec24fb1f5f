#pragma once

#include "hosts/mmc/host.h"

namespace mmc {

/// Adds to a menu of the console what the snap-in offers there, as far as the console allows it,
/// the languages of its texts, and the tasks of a task pad on show that no command offers. Adds
/// nothing while the tool is at work.
void addMenuItems(Host& host, ResultPane& pane, IContextMenuCallback& menu, long allowed);

/// Runs what the person chose. False for a number that stands for nothing.
bool runCommand(Host& host, ResultPane& pane, long number);

/// Runs a task of the task pad on show, by its position from 1. False for one that is not there.
bool runTask(Host& host, ResultPane& pane, int position);

} // namespace mmc
