#include "console/property_sheet_provider.h"

#include "console/console.h"
#include "console/plain_sheet.h"
#include "console/wizard_sheet.h"
#include "runtime/required_object.h"
#include "runtime/run_time_error.h"

#include <algorithm>

void PropertySheetProvider::createPropertySheet(const std::string& title, SheetType type,
                                                ScopeItem& subject)
{
    letGoOfClosedSheets();
    if (type == SheetType::wizard)
        waiting_ = std::make_shared<WizardSheet>(title, &subject);
    else
        waiting_ = std::make_shared<PlainSheet>(title, &subject);
}

void PropertySheetProvider::addPrimaryPages()
{
    console_.createPropertyPages(waiting());
}

void PropertySheetProvider::show(int position)
{
    OpenSheet& sheet = waiting();
    if (sheet.pageCount() > 0) sheet.page(position);
    shown_.push_back(std::move(waiting_));
    try {
        sheet.show(position);
    } catch (const RunTimeError& error) {
        console_.tellHandlerFailed(error);
    }
    if (!sheet.closed()) console_.tellSheetShown(sheet);
}

bool PropertySheetProvider::atWork() const
{
    return std::any_of(shown_.begin(), shown_.end(),
                       [](const auto& sheet) { return sheet->atWork(); });
}

std::shared_ptr<OpenSheet> PropertySheetProvider::lastSheet() const
{
    return shown_.empty() ? nullptr : shown_.back();
}

OpenSheet& PropertySheetProvider::waiting() const
{
    return required(waiting_);
}

void PropertySheetProvider::letGoOfClosedSheets()
{
    const auto inUse = [](const auto& sheet) { return sheet->atWork() || !sheet->closed(); };
    if (std::none_of(shown_.begin(), shown_.end(), inUse)) shown_.clear();
}
