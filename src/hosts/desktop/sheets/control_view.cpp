#include "hosts/desktop/sheets/control_view.h"

#include "hosts/common/look/plain_tool_tip.h"

namespace desktop {

ControlView::ControlView(Control& control, QWidget* widget, ActOnControl act)
    : control_(control), widget_(widget), act_(std::move(act))
{
    control_.observe(this);
}

ControlView::~ControlView()
{
    control_.observe(nullptr);
}

void ControlView::showState()
{
    waiting_ = false;
    if (!widget_ || rendering_) return;
    rendering_ = true;
    applyCommonState();
    render();
    rendering_ = false;
    if (onShown) onShown();
}

void ControlView::applyCommonState()
{
    widget_->setVisible(control_.visible());
    widget_->setEnabled(control_.enabled());
    widget_->setToolTip(plainToolTip(QString::fromStdString(control_.toolTip())));
    showFont(QString::fromStdString(control_.font().name));
}

void ControlView::showFont(const QString& family)
{
    if (family.isEmpty()) {
        if (ownFont_) widget_->setFont(*ownFont_);
        ownFont_.reset();
        return;
    }
    // A widget without a font of its own has that of the widget it stands in, which may be a
    // language's by now.
    const bool inherits = !widget_->testAttribute(Qt::WA_SetFont);
    if (!ownFont_) ownFont_ = inherits ? QFont() : widget_->font();
    QFont font = widget_->font();
    font.setFamily(family);
    widget_->setFont(font);
}

void ControlView::act(const std::function<void()>& what)
{
    if (!rendering_ && act_) act_(what);
}

void ControlView::changed(Control&)
{
    noted();
    if (waiting_) return;
    waiting_ = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (waiting_) showState();
        },
        Qt::QueuedConnection);
}

void ControlView::refreshed(Control&)
{
    noted();
    showState();
    if (widget_) widget_->repaint();
}

} // namespace desktop
