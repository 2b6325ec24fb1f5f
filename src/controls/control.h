#pragma once

#include "controls/font.h"

#include <string>
#include <utility>

class Control;

/// Whoever shows a control: hears of each change, whether the tool or the person made it.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;

    /// Something of `control` changed. May come many times in a row: note it, and draw later.
    virtual void changed(Control& control) = 0;

    /// The tool is busy and wants the control to show its state now.
    virtual void refreshed(Control& control) { changed(control); }
};

/// The font that a control shows its text in; an empty name is the host's own.
struct ControlFont {
    int charset = 1;
    std::string name;

    friend bool operator==(const ControlFont&, const ControlFont&) = default;
};

/// A control of a page: holds the state that a host renders and carries the person's actions back.
///
/// A page owns its controls and sets an event's function to learn of it. What a person does comes
/// in through the methods that say so, such as `click` and `setByPerson`; a control that is
/// disabled or hidden ignores the person. Everything runs on the one thread of the console.
class Control : public FontTarget {
public:
    Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Who hears of changes; null for nobody. The observer outlives the control or takes leave.
    void observe(ControlObserver* observer) { observer_ = observer; }

    bool visible() const { return visible_; }
    void setVisible(bool visible) { assign(visible_, visible); }

    bool enabled() const { return enabled_; }
    void setEnabled(bool enabled) { assign(enabled_, enabled); }

    const std::string& toolTip() const { return toolTip_; }
    void setToolTip(std::string toolTip) { assign(toolTip_, std::move(toolTip)); }

    const ControlFont& font() const { return font_; }

    /// Takes a language's font; one without a name gives the host's own back.
    void setFont(const LanguageFont& font) override
    {
        assign(font_, ControlFont{font.charset, std::string(font.name)});
    }

    /// Asks whoever shows the control to do so now.
    void refresh()
    {
        if (observer_) observer_->refreshed(*this);
    }

protected:
    void notify()
    {
        if (observer_) observer_->changed(*this);
    }

    /// Stores a value and tells the observer; true when it is another one than before.
    template <typename Value>
    bool assign(Value& held, Value value)
    {
        if (held == value) return false;
        held = std::move(value);
        notify();
        return true;
    }

    /// Whether the person can use the control.
    bool usable() const { return visible_ && enabled_; }

private:
    ControlObserver* observer_ = nullptr;
    bool visible_ = true;
    bool enabled_ = true;
    std::string toolTip_;
    ControlFont font_;
};

/// A control with a caption.
class CaptionedControl : public Control {
public:
    const std::string& caption() const { return caption_; }
    void setCaption(std::string caption) { assign(caption_, std::move(caption)); }

private:
    std::string caption_;
};
