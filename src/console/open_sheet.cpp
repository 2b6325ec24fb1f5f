#include "console/open_sheet.h"

#include "console/first_failure.h"
#include "console/pages.h"
#include "runtime/run_time_error.h"

#include <algorithm>
#include <utility>

OpenSheet::OpenSheet(std::string title, ScopeItem* subject)
    : title_(std::move(title)), subject_(subject)
{}

OpenSheet::Work::Work(OpenSheet& sheet) : hold_(sheet.weak_from_this().lock()), sheet_(sheet)
{
    ++sheet_.callsUnderWay_;
}

void OpenSheet::addPage(std::unique_ptr<SheetPage> page, std::string pageTitle, bool helpButton)
{
    page->onChanged = [this] { tellButtonsChanged(); };
    pages_.push_back({std::move(page), std::move(pageTitle), helpButton});
}

void OpenSheet::show(int position)
{
    const Work work{*this};
    if (pages_.empty()) return close();
    FirstFailure failure;

    slot(position);
    failure.attempt([&] { initialise(pages_[static_cast<std::size_t>(position - 1)]); });
    failure.attempt([&] { enter(position); });
    for (Slot& other : pages_) failure.attempt([&] { initialise(other); });
    tellPageShown();
    failure.raise();
}

std::vector<Timer*> OpenSheet::timers() const
{
    if (closed_ || current_ == 0) return {};
    return currentPage().timers();
}

void OpenSheet::tick(Timer& timer)
{
    const Work work{*this};
    const auto listed = timers();
    if (std::find(listed.begin(), listed.end(), &timer) != listed.end()) timer.tick();
}

bool OpenSheet::cancel()
{
    const Work work{*this};
    if (closed_) return true;
    if (!isCancelAllowed()) return false;
    tellCancelled();
    return true;
}

void OpenSheet::abandon()
{
    const Work work{*this};
    if (closed_) return;
    FirstFailure failure;
    failure.attempt([&] { isCancelAllowed(); });
    failure.attempt([&] { tellCancelled(); });
    failure.raise();
}

bool OpenSheet::isCancelAllowed()
{
    bool allow = true;
    if (current_ > 0)
        if (IMMCPropertyPage* asked = currentPage().propertyPage())
            asked->IMMCPropertyPage_QueryCancel(allow);
    return allow;
}

void OpenSheet::tellCancelled()
{
    FirstFailure failure;
    for (Slot& told : pages_)
        if (told.initialised)
            failure.attempt([&] { told.page->propertyPage()->IMMCPropertyPage_Cancel(); });
    failure.attempt([&] { close(); });
    failure.raise();
}

void OpenSheet::help()
{
    const Work work{*this};
    if (closed_ || current_ == 0) return;
    if (IMMCPropertyPage* asked = currentPage().propertyPage()) asked->IMMCPropertyPage_Help();
}

void OpenSheet::close()
{
    if (std::exchange(closed_, true)) return;
    FirstFailure failure;
    for (Slot& told : pages_)
        if (told.initialised)
            failure.attempt([&] { told.page->propertyPage()->IMMCPropertyPage_Close(); });
    if (observer_) observer_->closed(*this);
    failure.raise();
}

void OpenSheet::tellPageShown()
{
    if (observer_ && !closed_) observer_->pageShown(*this);
}

void OpenSheet::tellButtonsChanged()
{
    if (observer_ && !closed_) observer_->buttonsChanged(*this);
}

const OpenSheet::Slot& OpenSheet::slot(int position) const
{
    if (position < 1 || position > pageCount())
        throw RunTimeError(runTimeErrors::subscriptOutOfRange);
    return pages_[static_cast<std::size_t>(position - 1)];
}

void OpenSheet::initialise(Slot& slot)
{
    IMMCPropertyPage* page = slot.page->propertyPage();
    if (!page || std::exchange(slot.initialised, true)) return;
    page->IMMCPropertyPage_Initialize(subject_, *this);
}
