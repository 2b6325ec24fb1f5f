#pragma once

#include <QProxyStyle>
#include <QStyleOptionMenuItem>

/// The window's style: calm and flat, with room around texts, and controls that can be told from
/// their ground in light and dark alike.
class ToolStyle final : public QProxyStyle {
    Q_OBJECT

public:
    ToolStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    QStyleOptionMenuItem onHighlight(const QStyleOptionMenuItem& item, const QWidget* widget) const;
    void drawArrow(ComplexControl control, const QStyleOptionComplex& option, SubControl part,
                   QPainter& painter, const QWidget* widget) const;
};
