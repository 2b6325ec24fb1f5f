#include "system/pager.h"

bool startPager(const std::string&)
{
    return false; // its console scrolls by itself
}

void endPager() {}
