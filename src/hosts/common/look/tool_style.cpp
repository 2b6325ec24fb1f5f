#include "hosts/common/look/tool_style.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/style_drawing.h"
#include "hosts/common/look/theme.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOption>

#include <algorithm>

namespace {

/// Around texts, in units of the screen that the style was made for.
constexpr int indicatorSide = 16;
constexpr int textMargin = 4;
constexpr int fieldMargin = 3;
constexpr int sortMark = 9;
constexpr int markDrop = 3; ///< from where the usual style has it to the middle of a text
constexpr int scrollBarSide = 13;
constexpr int shortestHandle = 28;
constexpr QSize buttonRoom(14, 8);
constexpr QSize fieldRoom(4, 6);
constexpr QSize menuRoom(8, 6);
constexpr int headerRoom = 2;

class Kept {
public:
    explicit Kept(QPainter& painter) : painter_(painter)
    {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Kept() { painter_.restore(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

private:
    QPainter& painter_;
};

using Draw = void (*)(const QStyleOption& option, QPainter& painter);

Draw drawingOf(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
        return drawing::checkBox;
    case QStyle::PE_IndicatorRadioButton:
        return drawing::optionButton;
    case QStyle::PE_PanelButtonCommand:
        return drawing::button;
    case QStyle::PE_Frame:
        return drawing::frame;
    case QStyle::PE_PanelLineEdit:
        return drawing::field;
    case QStyle::PE_FrameLineEdit:
        return drawing::fieldEdge;
    default:
        return nullptr;
    }
}

Draw drawingOf(QStyle::ControlElement element)
{
    switch (element) {
    case QStyle::CE_HeaderSection:
    case QStyle::CE_HeaderEmptyArea:
        return drawing::headerSection;
    case QStyle::CE_ToolBar:
        return drawing::toolBar;
    case QStyle::CE_MenuBarItem:
    case QStyle::CE_MenuBarEmptyArea:
        return drawing::menuTitle;
    case QStyle::CE_Splitter:
        return drawing::splitter;
    case QStyle::CE_ProgressBarGroove:
        return drawing::progressGround;
    case QStyle::CE_ProgressBarContents:
        return drawing::progress;
    default:
        return nullptr;
    }
}

/// The handle of a scroll bar, which has no arrows at its ends.
QRect handleOf(const QStyleOptionSlider& bar)
{
    const bool across = bar.orientation == Qt::Horizontal;
    const int room = across ? bar.rect.width() : bar.rect.height();
    const qint64 all = static_cast<qint64>(bar.maximum) - bar.minimum + bar.pageStep;
    const int share =
        all > 0 ? static_cast<int>(bar.pageStep * static_cast<qint64>(room) / all) : 0;
    const int length = std::min(room, std::max(shortestHandle, share));
    const int start = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                      room - length, bar.upsideDown);
    const QRect handle = across ? QRect(start, 0, length, bar.rect.height())
                                : QRect(0, start, bar.rect.width(), length);
    return handle.translated(bar.rect.topLeft());
}

/// What a scroll bar's list, tree or text stands on; cards stand on the window.
QPalette::ColorRole groundOf(const QWidget* scrollBar)
{
    const bool cards = scrollBar && scrollBar->parentWidget() &&
                       qobject_cast<const QScrollArea*>(scrollBar->parentWidget()->parentWidget());
    return cards ? QPalette::Window : QPalette::Base;
}

QRect partOf(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const QRect handle = handleOf(bar);
    QRect before = bar.rect;
    QRect behind = bar.rect;
    if (bar.orientation == Qt::Horizontal) {
        before.setRight(handle.left() - 1);
        behind.setLeft(handle.right() + 1);
    } else {
        before.setBottom(handle.top() - 1);
        behind.setTop(handle.bottom() + 1);
    }
    switch (part) {
    case QStyle::SC_ScrollBarSlider:
        return handle;
    case QStyle::SC_ScrollBarGroove:
        return bar.rect;
    case QStyle::SC_ScrollBarSubPage:
        return before;
    case QStyle::SC_ScrollBarAddPage:
        return behind;
    default:
        return {};
    }
}

/// The same option with its texts in the colour of a selection's.
template <typename Option>
Option asSelected(const Option& option)
{
    Option changed = option;
    const QColor text = option.palette.color(QPalette::HighlightedText);
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
        changed.palette.setColor(role, text);
    return changed;
}

/// Whether an option is of a selected row in a view that keys do not go to.
bool rests(const QStyleOption& option, const QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    return view && (option.state & QStyle::State_Selected) && !view->hasFocus() &&
           view->window()->windowType() != Qt::Popup;
}

/// The same option with a selection that steps back behind the one that keys go to.
QStyleOptionViewItem asResting(const QStyleOptionViewItem& option)
{
    QStyleOptionViewItem changed = option;
    changed.palette.setColor(QPalette::Highlight, theme::restingSelection(option.palette));
    return changed;
}

} // namespace

ToolStyle::ToolStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ToolStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const
{
    if (const Draw draw = drawingOf(element)) {
        const Kept kept(*painter);
        return draw(*option, *painter);
    }
    if (element == PE_FrameFocusRect && (option->state & State_Item)) {
        const Kept kept(*painter);
        return drawing::itemFocus(*option, *painter);
    }
    const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if ((element == PE_PanelItemViewRow || element == PE_PanelItemViewItem) && item &&
        rests(*option, widget)) {
        const QStyleOptionViewItem resting = asResting(*item);
        return QProxyStyle::drawPrimitive(element, &resting, painter, widget);
    }
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == PE_IndicatorHeaderArrow && header) {
        const bool up = header->sortIndicator == QStyleOptionHeader::SortUp;
        QStyleOption mark = *option;
        mark.rect.translate(0, markDrop);
        return proxy()->drawPrimitive(up ? PE_IndicatorArrowUp : PE_IndicatorArrowDown, &mark,
                                      painter, widget);
    }
    if (element == PE_IndicatorBranch && (option->state & State_Selected)) {
        const QStyleOption selected = asSelected(*option);
        return QProxyStyle::drawPrimitive(element, &selected, painter, widget);
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

/// A chosen item of a menu, its drawing in the colour that the text has on that ground.
QStyleOptionMenuItem ToolStyle::onHighlight(const QStyleOptionMenuItem& item,
                                            const QWidget* widget) const
{
    const int side = proxy()->pixelMetric(PM_SmallIconSize, &item, widget);
    const qreal ratio = widget ? widget->devicePixelRatio() : 1;
    QStyleOptionMenuItem drawn = item;
    drawn.icon = QIcon(item.icon.pixmap(QSize(side, side), ratio, QIcon::Selected));
    return drawn;
}

void ToolStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const
{
    if (const Draw draw = drawingOf(element)) {
        const Kept kept(*painter);
        return draw(*option, *painter);
    }
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
    if (element == CE_PushButtonLabel && button && drawing::standsOut(*option)) {
        const QStyleOptionButton selected = asSelected(*button);
        return QProxyStyle::drawControl(element, &selected, painter, widget);
    }
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const QStyle::State chosen = State_Selected | State_Enabled;
    if (element == CE_MenuItem && item && !item->icon.isNull() &&
        (item->state & chosen) == chosen) {
        const QStyleOptionMenuItem lit = onHighlight(*item, widget);
        return QProxyStyle::drawControl(element, &lit, painter, widget);
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void ToolStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    const Kept kept(*painter);
    if (control == CC_ScrollBar && bar)
        return drawing::scrollBar(*bar, handleOf(*bar), groundOf(widget), *painter);
    if (control != CC_SpinBox && control != CC_ComboBox)
        return QProxyStyle::drawComplexControl(control, option, painter, widget);
    drawing::field(*option, *painter);
    for (const SubControl part : {SC_SpinBoxUp, SC_SpinBoxDown, SC_ComboBoxArrow})
        drawArrow(control, *option, part, *painter, widget);
}

/// A part of a field that is pressed to change what the field holds; none for a part that the
/// field does not have.
void ToolStyle::drawArrow(ComplexControl control, const QStyleOptionComplex& option,
                          SubControl part, QPainter& painter, const QWidget* widget) const
{
    const bool spins = control == CC_SpinBox;
    if (spins == (part == SC_ComboBoxArrow) || !(option.subControls & part)) return;
    // An arrow is drawn by what every element has.
    QStyleOption arrow = option; // NOLINT(cppcoreguidelines-slicing)
    arrow.rect = proxy()->subControlRect(control, &option, part, widget);
    const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
    const auto needed =
        part == SC_SpinBoxUp ? QAbstractSpinBox::StepUpEnabled : QAbstractSpinBox::StepDownEnabled;
    if (spin && !(spin->stepEnabled & needed)) {
        arrow.state &= ~State_Enabled;
        arrow.palette.setCurrentColorGroup(QPalette::Disabled);
    }
    if (!(option.activeSubControls & part)) arrow.state &= ~(State_MouseOver | State_Sunken);
    drawing::arrowGround(arrow, painter);
    proxy()->drawPrimitive(part == SC_SpinBoxUp ? PE_IndicatorArrowUp : PE_IndicatorArrowDown,
                           &arrow, &painter, widget);
}

QRect ToolStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QProxyStyle::subControlRect(control, option, part, widget);
    return visualRect(bar->direction, bar->rect, partOf(*bar, part));
}

QRect ToolStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const
{
    const QRect room = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element != SE_LineEditContents || !frame || frame->lineWidth == 0) return room;
    return room.adjusted(fieldMargin, 0, -fieldMargin, 0);
}

QSize ToolStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                  const QSize& contents, const QWidget* widget) const
{
    const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    switch (type) {
    case CT_PushButton:
        return size + buttonRoom;
    case CT_LineEdit:
    case CT_ComboBox:
    case CT_SpinBox:
        return size + fieldRoom;
    case CT_MenuBarItem:
    case CT_MenuItem: {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool line = item && item->menuItemType == QStyleOptionMenuItem::Separator;
        return line ? size : size + menuRoom;
    }
    case CT_HeaderSection: {
        // Room for the mark of a sorted column, which the usual style leaves as wide as high.
        const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option);
        if (!header) return size;
        const int text = header->fontMetrics.horizontalAdvance(header->text);
        return {text + sortMark + 4 * textMargin, size.height() + headerRoom};
    }
    default:
        return size;
    }
}

int ToolStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return indicatorSide;
    case PM_FocusFrameHMargin:
        return textMargin;
    case PM_HeaderMargin:
        return textMargin + 1;
    case PM_ScrollBarExtent:
        return scrollBarSide;
    case PM_ScrollBarSliderMin:
        return shortestHandle;
    case PM_ButtonDefaultIndicator:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int ToolStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    // The platform's symbols are drawn for its own colours.
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

QIcon ToolStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                              const QWidget* widget) const
{
    // A menu bar and a tool bar ask for theirs before they know that they have room; Qt would load
    // all its image formats for that.
    switch (which) {
    case SP_ToolBarHorizontalExtensionButton:
        return toolIcon(QStringLiteral("more"));
    case SP_LineEditClearButton:
        return toolIcon(QStringLiteral("close"));
    default:
        return QProxyStyle::standardIcon(which, option, widget);
    }
}
