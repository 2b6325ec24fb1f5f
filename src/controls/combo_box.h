#pragma once

#include "controls/list_box.h"

/// A list with a text field, into which the person may also type what the list does not hold.
class ComboBox final : public ListControl {
public:
    /// The text was typed by the person or set by the tool; a choice from the list is `onClick`.
    std::function<void()> onChange;

    const std::string& text() const { return text_; }

    /// Sets the field; nothing of the list is selected then.
    void setText(std::string text)
    {
        dropSelection();
        if (assign(text_, std::move(text)) && onChange) onChange();
    }

    /// The person's typing leaves this text.
    void setByPerson(std::string text)
    {
        if (usable()) setText(std::move(text));
    }

private:
    void selectionChanged() override
    {
        assign(text_, selectedIndex() < 0 ? std::string() : item(selectedIndex()));
    }

    std::string text_;
};
