#pragma once

#include "controls/control.h"
#include "hosts/common/look/interface_language.h"

#include <QFont>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>

namespace desktop {

/// Runs what the person does to a control, and looks after what it raises.
using ActOnControl = std::function<void(const std::function<void()>& act)>;

/// A control of a page and the widget that shows it.
///
/// Changes are collected and shown when the events at hand are done; a control that asks to be
/// refreshed is painted at once. The control outlives its view.
class ControlView : public QObject, private ControlObserver {
public:
    ControlView(Control& control, QWidget* widget, ActOnControl act);
    ~ControlView() override;

    QWidget* widget() const { return widget_; }

    /// What a label before the control leads to.
    virtual QWidget* focusTarget() const { return widget_; }

    /// Captions in which a letter may be marked; none for a control without.
    virtual QStringList captions() const { return {}; }

    /// Shows the same captions with their letters marked.
    virtual void showCaptions(const QStringList&) {}

    /// Shows the control's state now.
    void showState();

    /// Takes what the person has begun to type. False where that is no value: then the control
    /// shows the last good one, and has said so.
    virtual bool finishEditing() { return true; }

    /// Says in a sentence what was not done; an empty one has nothing more to say.
    std::function<void(const LiveSentence& sentence)> onSaid;

    /// Runs behind each showing.
    std::function<void()> onShown;

protected:
    virtual void render() = 0;

    /// A change that can't wait to be noted, such as nodes that have gone.
    virtual void noted() {}

    void act(const std::function<void()>& what);
    void say(const LiveSentence& sentence)
    {
        if (onSaid) onSaid(sentence);
    }
    bool rendering() const { return rendering_; }

private:
    void changed(Control& control) override;
    void refreshed(Control& control) override;
    void applyCommonState();

    /// Gives the widget a language's font, or its own back for none.
    void showFont(const QString& family);

    Control& control_;
    QPointer<QWidget> widget_;
    std::optional<QFont> ownFont_; ///< while the widget shows a language's
    ActOnControl act_;
    bool waiting_ = false;
    bool rendering_ = false;
};

} // namespace desktop
