#pragma once

#include "console/open_sheet.h"

#include <memory>
#include <string>
#include <vector>

class Console;
class ScopeItem;

/// The numbers are the console's own.
enum class SheetType { propertySheet = 0, wizard = 2 };

/// Makes and shows a console's sheets. They stay until all of them are closed and work that was
/// begun in any has returned, as all wizards share one object that knows the sheet that was shown
/// last.
class PropertySheetProvider {
public:
    explicit PropertySheetProvider(Console& console) : console_(console) {}
    PropertySheetProvider(const PropertySheetProvider&) = delete;
    PropertySheetProvider& operator=(const PropertySheetProvider&) = delete;

    /// `subject` is what the sheet is for. A sheet that was made before and never shown is dropped.
    void createPropertySheet(const std::string& title, SheetType type, ScopeItem& subject);

    /// Asks the snap-in for the pages. Raises 91 without a sheet that waits to be shown.
    void addPrimaryPages();

    /// Shows the sheet at a page, from 1, and returns when it is up. What a page raises is told to
    /// the console's observers. Raises 91 as above, and 9 for a position without a page.
    void show(int position);

    /// Whether a page of a sheet is at work, on show or closed already.
    bool atWork() const;

    /// The sheet that was shown last, closed or not; null before the first.
    std::shared_ptr<OpenSheet> lastSheet() const;

private:
    OpenSheet& waiting() const;
    void letGoOfClosedSheets();

    Console& console_;
    std::shared_ptr<OpenSheet> waiting_;
    std::vector<std::shared_ptr<OpenSheet>> shown_;
};
