#pragma once

#include "console/console.h"
#include "console/open_sheet.h"

#include <memory>
#include <vector>

/// Follows the sheets that a console shows, and keeps none of them alive.
class ShownSheets final : public ConsoleObserver {
public:
    /// `console` outlives it.
    explicit ShownSheets(Console& console) : console_(console) { console_.addObserver(*this); }
    ~ShownSheets() override { console_.removeObserver(*this); }
    ShownSheets(const ShownSheets&) = delete;
    ShownSheets& operator=(const ShownSheets&) = delete;

    /// Those that are on show, the oldest first.
    std::vector<std::shared_ptr<OpenSheet>> open() const
    {
        std::vector<std::shared_ptr<OpenSheet>> found;
        for (const auto& shown : shown_)
            if (auto sheet = shown.lock(); sheet && !sheet->closed())
                found.push_back(std::move(sheet));
        return found;
    }

    void sheetShown(OpenSheet& sheet) override { shown_.push_back(sheet.weak_from_this()); }

    void scopeItemAdded(ScopeItem&) override {}
    void scopeItemChanged(ScopeItem&) override {}
    void scopeItemRemoved(ScopeItem&) override {}
    void selectionChanged(View&) override {}
    void viewReset(ResultView&) override {}
    void viewFilled(ResultView&) override {}
    void statusBarChanged(View&) override {}

private:
    Console& console_;
    std::vector<std::weak_ptr<OpenSheet>> shown_;
};
