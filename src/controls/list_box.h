#pragma once

#include "controls/control.h"
#include "runtime/run_time_error.h"

#include <cstddef>
#include <functional>
#include <vector>

/// Texts to choose one from, counted from 0. What takes an index raises 380 for one without a text.
class ListControl : public Control {
public:
    /// The selection changed, by the person or by the tool.
    std::function<void()> onClick;

    int count() const { return static_cast<int>(items_.size()); }
    const std::vector<std::string>& items() const { return items_; }
    const std::string& item(int index) const { return items_[position(index)]; }

    void addItem(std::string text)
    {
        items_.push_back(std::move(text));
        notify();
    }

    /// Removes all texts, and with them the selection, which is no event.
    void clear()
    {
        items_.clear();
        selectedIndex_ = -1;
        notify();
    }

    /// -1 when nothing is selected; -1 may also be set.
    int selectedIndex() const { return selectedIndex_; }

    void setSelectedIndex(int index)
    {
        if (index != -1) position(index);
        if (!assign(selectedIndex_, index)) return;
        selectionChanged();
        if (onClick) onClick();
    }

    /// The person chooses a text.
    void chooseByPerson(int index)
    {
        if (usable()) setSelectedIndex(index);
    }

protected:
    virtual void selectionChanged() {}

    void dropSelection() { selectedIndex_ = -1; }

private:
    std::size_t position(int index) const
    {
        if (index < 0 || index >= count()) throw RunTimeError(runTimeErrors::invalidPropertyValue);
        return static_cast<std::size_t>(index);
    }

    std::vector<std::string> items_;
    int selectedIndex_ = -1;
};

class ListBox final : public ListControl {
public:
    /// The selected text, or the empty text.
    std::string text() const { return selectedIndex() < 0 ? std::string() : item(selectedIndex()); }
};
