#pragma once

#include <QPalette>

class QPainter;
class QStyleOption;
class QStyleOptionSlider;
class QRect;

/// How the parts of controls are drawn: flat, in the colours of the option's palette.
namespace drawing {

void checkBox(const QStyleOption& option, QPainter& painter);
void optionButton(const QStyleOption& option, QPainter& painter);

/// The ground of a button; the default one of a dialog stands out.
void button(const QStyleOption& option, QPainter& painter);

/// Whether `button` draws that ground in the colour of selections.
bool standsOut(const QStyleOption& option);

/// A field to type in, and its edge alone.
void field(const QStyleOption& option, QPainter& painter);
void fieldEdge(const QStyleOption& option, QPainter& painter);

/// Behind an arrow at the end of a field, under the pointer or pressed.
void arrowGround(const QStyleOption& option, QPainter& painter);

/// Around the item of a list or a tree that keys go to.
void itemFocus(const QStyleOption& option, QPainter& painter);

/// Around a list, a tree or a text.
void frame(const QStyleOption& option, QPainter& painter);

void headerSection(const QStyleOption& option, QPainter& painter);
void toolBar(const QStyleOption& option, QPainter& painter);
void menuTitle(const QStyleOption& option, QPainter& painter);
void splitter(const QStyleOption& option, QPainter& painter);
void progressGround(const QStyleOption& option, QPainter& painter);
void progress(const QStyleOption& option, QPainter& painter);

/// The handle of a scroll bar, in its place on the ground of what is scrolled.
void scrollBar(const QStyleOptionSlider& option, const QRect& handle, QPalette::ColorRole ground,
               QPainter& painter);

} // namespace drawing
