#pragma once

#include "controls/control.h"

#include <functional>
#include <string_view>

/// A line of text that the person may edit.
class TextBox final : public Control {
public:
    /// The text is another one than before, by the person or by the tool.
    std::function<void()> onChange;

    /// A look at each key before it takes effect: gives the character code that counts, 0 for none.
    std::function<int(int code)> onKeyPress;

    const std::string& text() const { return text_; }

    void setText(std::string text)
    {
        if (assign(text_, std::move(text)) && onChange) onChange();
    }

    /// A text that the person may read only.
    bool readOnly() const { return readOnly_; }
    void setReadOnly(bool readOnly) { assign(readOnly_, readOnly); }

    /// What a character key of the person comes to; 0 when the key is dropped.
    int filterKey(int code) const
    {
        if (!usable() || readOnly_) return 0;
        return onKeyPress ? onKeyPress(code) : code;
    }

    /// The person types at the end of the text, key by key; code 8 takes a character away.
    void typeByPerson(std::string_view keys)
    {
        for (const char key : keys) {
            const int code = filterKey(static_cast<unsigned char>(key));
            if (code == backspace)
                setByPerson(text_.substr(0, text_.empty() ? 0 : text_.size() - 1));
            else if (code != 0)
                setByPerson(text_ + static_cast<char>(code));
        }
    }

    /// The person's editing leaves this text: the keys passed the filter, or it was pasted.
    void setByPerson(std::string text)
    {
        if (usable() && !readOnly_) setText(std::move(text));
    }

private:
    static constexpr int backspace = 8;

    std::string text_;
    bool readOnly_ = false;
};
