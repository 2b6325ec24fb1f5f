#pragma once

#include "console/console_observer.h"

namespace desktop {

/// Follows the console in part: what a class does not override is of no interest to it.
class QuietObserver : public ConsoleObserver {
public:
    void scopeItemAdded(ScopeItem&) override {}
    void scopeItemChanged(ScopeItem&) override {}
    void scopeItemRemoved(ScopeItem&) override {}
    void selectionChanged(View&) override {}
    void viewReset(ResultView&) override {}
    void viewFilled(ResultView&) override {}
    void statusBarChanged(View&) override {}
};

} // namespace desktop
