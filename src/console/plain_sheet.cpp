#include "console/plain_sheet.h"

#include "console/first_failure.h"

#include <vector>

namespace {
constexpr int deliveriesOfOneApply = 2;
}

void PlainSheet::selectPage(int position)
{
    const Work work{*this};
    page(position);
    if (closed()) return;
    enter(position);
    tellPageShown();
}

bool PlainSheet::canApply() const
{
    if (closed()) return false;
    for (int position = 1; position <= pageCount(); ++position)
        if (page(position).Changed()) return true;
    return false;
}

void PlainSheet::apply()
{
    const Work work{*this};
    if (closed()) return;
    std::vector<SheetPage*> changed;
    for (int position = 1; position <= pageCount(); ++position)
        if (page(position).Changed()) changed.push_back(&page(position));

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
