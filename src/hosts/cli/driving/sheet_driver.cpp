#include "hosts/cli/driving/sheet_driver.h"

#include "runtime/run_time_error.h"
#include "runtime/text.h"

namespace cli {

SheetDriver::SheetDriver(OpenTool& tool, const std::string& menuItem)
{
    tool.console().clickMenuItem(menuItem);
    open_ = tool.console().currentView().propertySheetProvider().lastSheet();
    sheet_ = open_ ? open_->plainSheet() : nullptr;
    if (!sheet_ || sheet_->closed()) throw CommandFailure("the sheet does not open");
}

SheetDriver::~SheetDriver()
{
    try {
        if (!sheet_->closed()) sheet_->cancel();
    } catch (const RunTimeError&) {
        // A page that can't be told of its end has no work left.
    }
}

void SheetDriver::missing(const std::string& name) const
{
    throw CommandFailure("the page " + sheet_->currentPage().name() + " has no " + name);
}

PassedOverErrors::PassedOverErrors(OpenTool& tool, const std::string& module)
    : listener_(tool.context(), [this, page = "[" + module + "]"](const RunTimeError& error,
                                                                  std::string_view procName) {
          if (first_.empty() &&
              (beginsWith(procName, page) || beginsWith(procName, "[mdlOrvanDatabase]")))
              first_ = error.description();
      })
{}

void PassedOverErrors::requireNone(const std::string& failure) const
{
    if (!first_.empty()) throw CommandFailure(failure + ": " + first_);
}

} // namespace cli
