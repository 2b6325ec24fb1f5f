#pragma once

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

/// Around a list, a tree or a text.
void frame(const QStyleOption& option, QPainter& painter);

void headerSection(const QStyleOption& option, QPainter& painter);
void toolBar(const QStyleOption& option, QPainter& painter);
void menuTitle(const QStyleOption& option, QPainter& painter);
void splitter(const QStyleOption& option, QPainter& painter);
void progressGround(const QStyleOption& option, QPainter& painter);
void progress(const QStyleOption& option, QPainter& painter);

/// The handle of a scroll bar, in its place on the ground.
void scrollBar(const QStyleOptionSlider& option, const QRect& handle, QPainter& painter);

} // namespace drawing
