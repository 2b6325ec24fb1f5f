#pragma once

#include "hosts/mmc/com/com_pointer.h"
#include "hosts/mmc/sheets/native_sheet.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace mmc {

class ConsoleDesktop;

/// The sheets of one console's tool: has the console make a native sheet for each that the model
/// shows, and knows those that are open.
class SheetWindows {
public:
    /// What is asked of the host around it.
    struct Around {
        /// What each native sheet is given, for as long as its windows live.
        std::function<NativeSheet::Around()> ofSheets;

        /// Tells the person that a sheet of this title could not be shown.
        std::function<void(const std::wstring& title)> refused;

        /// What the console asks for the pages of a sheet: the object that `addPages` answers for.
        std::function<IUnknown*()> pageOwner;

        /// The data object of what a sheet is for.
        std::function<ComPointer<IDataObject>()> subject;
    };

    /// `thread` and `desktop` outlive it.
    SheetWindows(const ToolThread& thread, const ConsoleDesktop& desktop, Around around)
        : thread_(thread), desktop_(desktop), around_(std::move(around))
    {}

    /// Notes a sheet that the model shows. Its windows come by `showNext`, which is to be called
    /// when the console's call is over: a wizard's own loop would not let it return.
    void add(OpenSheet& sheet);

    /// Shows the oldest sheet that waits, by the console; of a wizard, returns when it is over.
    void showNext(IConsole2* console);

    /// Whether a sheet is waiting for its pages to be asked for.
    bool wantsPages() const { return beingMade_ != nullptr; }

    /// Gives the console the pages of the sheet that it is making. `S_FALSE` when it makes none.
    HRESULT addPages(IPropertySheetCallback& callback);

    /// Lets all sheets go without the person.
    void abandonAll();

    /// Whether windows of a sheet are still there.
    bool any() const;

private:
    HRESULT makeBy(IPropertySheetProvider& provider, NativeSheet& sheet);

    const ToolThread& thread_;
    const ConsoleDesktop& desktop_;
    Around around_;
    std::vector<std::shared_ptr<NativeSheet>> waiting_;
    std::vector<std::weak_ptr<NativeSheet>> open_;
    NativeSheet* beingMade_ = nullptr;
};

} // namespace mmc
