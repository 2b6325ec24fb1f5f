#pragma once

#include "console/plain_sheet.h"
#include "core/trapped_error_listener.h"
#include "hosts/cli/open_tool.h"

#include <memory>
#include <string>

namespace cli {

/// Drives a plain sheet of one page as a person does, for a host that shows nothing.
class SheetDriver {
public:
    /// Opens the sheet of a menu item. Raises CommandFailure when none comes up.
    SheetDriver(OpenTool& tool, const std::string& menuItem);

    /// Leaves the sheet by Cancel when it is still open: nothing is applied.
    ~SheetDriver();
    SheetDriver(const SheetDriver&) = delete;
    SheetDriver& operator=(const SheetDriver&) = delete;

    /// Presses Apply.
    void apply() { sheet_->apply(); }

    /// A control of the page. Raises CommandFailure for a name that it does not have.
    template <typename Kind>
    Kind& control(const std::string& name)
    {
        auto* found = dynamic_cast<Kind*>(sheet_->currentPage().control(name));
        if (!found) missing(name);
        return *found;
    }

private:
    [[noreturn]] void missing(const std::string& name) const;

    std::shared_ptr<OpenSheet> open_;
    PlainSheet* sheet_ = nullptr;
};

/// Hears of the errors that a page and the routines that it calls log and pass over.
class PassedOverErrors {
public:
    /// `module` is that of the page, such as "ppgConfLogSettings".
    PassedOverErrors(OpenTool& tool, const std::string& module);

    /// Raises CommandFailure with `failure` and the first error, when there was one.
    void requireNone(const std::string& failure) const;

private:
    std::string first_;
    TrappedErrorListener listener_;
};

} // namespace cli
