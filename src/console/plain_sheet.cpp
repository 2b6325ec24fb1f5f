#include "console/plain_sheet.h"

#include "console/first_failure.h"

#include <vector>

namespace {
constexpr int deliveriesOfOneApply = 2;
}

void PlainSheet::selectPage(int place)
{
    const Work work{*this};
    page(place);
    if (closed()) return;
    enter(place);
    tellPageShown();
}

bool PlainSheet::canApply() const
{
    if (closed()) return false;
    for (int place = 1; place <= pageCount(); ++place)
        if (page(place).Changed()) return true;
    return false;
}

void PlainSheet::apply()
{
    const Work work{*this};
    if (closed()) return;
    std::vector<SheetPage*> changed;
    for (int place = 1; place <= pageCount(); ++place)
        if (page(place).Changed()) changed.push_back(&page(place));

    FirstFailure failure;
    for (int delivery = 0; delivery < deliveriesOfOneApply; ++delivery)
        for (SheetPage* applied : changed)
            failure.attempt([&] { applied->PropertyPage_ApplyChanges(); });
    failure.raise();
    for (SheetPage* applied : changed) applied->Changed(false);
}

void PlainSheet::ok()
{
    const Work work{*this};
    if (closed()) return;
    apply();
    close();
}
