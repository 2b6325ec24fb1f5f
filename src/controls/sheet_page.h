#pragma once

#include "controls/control.h"
#include "controls/timer.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

class IMMCPropertyPage;
class IWizardPage;

/// What a control is on its page; a host lays out by it, top to bottom in the order of declaration.
enum class ControlRole {
    title,       ///< heading of the page
    description, ///< what the page is for, below the heading
    body,        ///< a paragraph of text; without a caption it takes no room
    choice,      ///< check box or option buttons
    fieldLabel,  ///< caption of the field declared next
    field,       ///< text box, combo box, list, picker or spin control; one declared right behind
                 ///< another stands beside it
    frame,       ///< a box with a caption around the control declared next
    action,      ///< push button
    mainTree,    ///< takes all the room that is left
    progress,    ///< a bar, or the text that goes with the bar declared next
    summary,     ///< what came of it: lines of text, perhaps many
    timer,       ///< not seen
};

/// A control with the name that the page's code gives it.
struct PageControl {
    std::string name;
    ControlRole role;
    Control* control;
};

/// A page of a sheet as a host sees it: controls to render, and the events that it answers.
///
/// A page is an object of its own; what it does needs no window. Being a FontTarget it takes a
/// language's font for itself, and its controls take theirs.
class SheetPage : public FontTarget {
public:
    SheetPage(const SheetPage&) = delete;
    SheetPage& operator=(const SheetPage&) = delete;

    /// As in "ppgMacroTrace1".
    const std::string& name() const { return name_; }

    /// The events that the page answers; null for a kind that it does not.
    virtual IWizardPage* wizardPage() { return nullptr; }
    virtual IMMCPropertyPage* propertyPage() { return nullptr; }

    /// A plain sheet's OK or Apply. The console delivers it twice for one apply.
    virtual void PropertyPage_ApplyChanges() {}

    /// All controls, timers too, in the order of their declaration. The page owns them.
    const std::vector<PageControl>& controls() const { return controls_; }

    /// Null for a name that the page does not declare.
    Control* control(const std::string& name) const
    {
        for (const PageControl& declared : controls_)
            if (declared.name == name) return declared.control;
        return nullptr;
    }

    std::vector<Timer*> timers() const
    {
        std::vector<Timer*> all;
        for (const PageControl& declared : controls_)
            if (auto* timer = dynamic_cast<Timer*>(declared.control)) all.push_back(timer);
        return all;
    }

    /// Whether there is something to apply.
    bool Changed() const { return changed_; }
    void Changed(bool changed)
    {
        if (std::exchange(changed_, changed) != changed && onChanged) onChanged();
    }

    /// `Changed` turned; the sheet that the page stands in listens.
    std::function<void()> onChanged;

    const ControlFont& font() const { return font_; }
    void setFont(const LanguageFont& font) override
    {
        font_ = {font.charset, std::string(font.name)};
    }

protected:
    explicit SheetPage(std::string name) : name_(std::move(name)) {}

    /// Adds a control of the page's own; for the constructor.
    void declare(std::string name, ControlRole role, Control& control)
    {
        controls_.push_back({std::move(name), role, &control});
    }

private:
    std::string name_;
    std::vector<PageControl> controls_;
    ControlFont font_;
    bool changed_ = false;
};
