#pragma once

#include <QProxyStyle>

/// The window's style: check boxes and option buttons that can be told from their ground in light
/// and dark alike, and a plain tool bar.
class ToolStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ToolStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};
