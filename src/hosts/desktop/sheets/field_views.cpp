#include "hosts/desktop/sheets/field_views.h"

#include "hosts/common/look/roomy_delegate.h"
#include "hosts/desktop/sheets/moment_field.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

constexpr int deleteCode = 127; ///< the Delete key is no character, whatever Qt says
constexpr int firstPrintable = 32;
constexpr int backspaceCode = 8;

/// The texts of a list, given anew only where they are other ones: a list of hundreds keeps its
/// place so.
template <typename Widget>
void showItems(Widget& widget, const ListControl& model)
{
    bool same = widget.count() == model.count();
    const auto shown = [&](int index) {
        if constexpr (std::is_same_v<Widget, QComboBox>)
            return widget.itemText(index);
        else
            return widget.item(index)->text();
    };
    for (int index = 0; same && index < model.count(); ++index)
        same = shown(index) == QString::fromStdString(model.item(index));
    if (same) return;
    widget.clear();
    for (const auto& item : model.items()) widget.addItem(QString::fromStdString(item));
}

} // namespace

TextBoxView::TextBoxView(TextBox& box, QWidget* parent, const ActOnControl& act)
    : ControlView(box, new QLineEdit(parent), act), model_(box),
      edit_(static_cast<QLineEdit*>(widget()))
{
    edit_->installEventFilter(this);
    connect(edit_, &QLineEdit::textEdited, this, [this](const QString& text) {
        ControlView::act([&] { model_.setByPerson(text.toStdString()); });
    });
}

bool TextBoxView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && model_.onKeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QString text = key->text();
        const int code = text.size() == 1 ? text[0].unicode() : 0;
        const bool character =
            (code >= firstPrintable && code != deleteCode) || code == backspaceCode;
        if (character && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            const int counts = model_.filterKey(code);
            if (counts == 0) return true;
            if (counts != code) {
                edit_->insert(QChar(static_cast<char16_t>(counts)));
                ControlView::act([&] { model_.setByPerson(edit_->text().toStdString()); });
                return true;
            }
        }
    }
    return ControlView::eventFilter(watched, event);
}

void TextBoxView::render()
{
    edit_->setReadOnly(model_.readOnly());
    const QString text = QString::fromStdString(model_.text());
    if (text != edit_->text()) edit_->setText(text);
}

ComboBoxView::ComboBoxView(ComboBox& box, QWidget* parent, const ActOnControl& act)
    : ControlView(box, new QComboBox(parent), act), model_(box),
      combo_(static_cast<QComboBox*>(widget()))
{
    combo_->setEditable(true);
    combo_->setInsertPolicy(QComboBox::NoInsert);
    combo_->setCompleter(nullptr);
    connect(combo_, &QComboBox::activated, this,
            [this](int index) { ControlView::act([&] { model_.chooseByPerson(index); }); });
    connect(combo_->lineEdit(), &QLineEdit::textEdited, this, [this](const QString& text) {
        ControlView::act([&] { model_.setByPerson(text.toStdString()); });
    });
}

void ComboBoxView::render()
{
    showItems(*combo_, model_);
    const QString text = QString::fromStdString(model_.text());
    if (combo_->currentIndex() != model_.selectedIndex()) {
        // Another choice moves the cursor to the end, which a person who types may have elsewhere.
        const bool shown = combo_->currentText() == text;
        const int cursor = combo_->lineEdit()->cursorPosition();
        combo_->setCurrentIndex(model_.selectedIndex());
        combo_->setEditText(text);
        if (shown) combo_->lineEdit()->setCursorPosition(cursor);
    }
    if (combo_->currentText() != text) combo_->setEditText(text);
}

ListBoxView::ListBoxView(ListBox& box, QWidget* parent, const ActOnControl& act)
    : ControlView(box, new QListWidget(parent), act), model_(box),
      list_(static_cast<QListWidget*>(widget()))
{
    list_->setItemDelegate(new RoomyDelegate(list_));
    // Not by the current row, which the focus alone puts on the first one.
    connect(list_, &QListWidget::itemSelectionChanged, this, [this] {
        const auto chosen = list_->selectedItems();
        if (chosen.isEmpty()) return showState();
        const int row = list_->row(chosen.front());
        ControlView::act([&] { model_.chooseByPerson(row); });
    });
}

void ListBoxView::render()
{
    showItems(*list_, model_);
    list_->setCurrentRow(model_.selectedIndex());
}

PickerView::PickerView(DateTimePicker& picker, QWidget* parent, const ActOnControl& act)
    : ControlView(picker,
                  new MomentField(picker.kind() == PickerKind::date ? MomentField::Part::date
                                                                    : MomentField::Part::time,
                                  parent),
                  act),
      model_(picker), field_(static_cast<MomentField*>(widget()))
{
    const bool date = model_.kind() == PickerKind::date;
    field_->setAccessibleName(date ? QObject::tr("Date") : QObject::tr("Time"));
    connect(field_, &MomentField::picked, this, &PickerView::take);
    connect(field_, &MomentField::refused, this, [this, date](const QString& text) {
        const QString kept = field_->textOf(field_->date(), field_->time());
        say([date, text, kept] {
            return date ? QObject::tr("\"%1\" is not a date, so %2 stays. Type a date as it is "
                                      "written there.")
                              .arg(text, kept)
                        : QObject::tr("\"%1\" is not a time, so %2 stays. Type a time as it is "
                                      "written there.")
                              .arg(text, kept);
        });
    });
}

bool PickerView::finishEditing()
{
    return field_->finishEditing();
}

/// Gives the page what was picked, and says when the page makes something else of it.
void PickerView::take()
{
    if (rendering()) return;
    const QString wanted = field_->textOf(field_->date(), field_->time());
    say({});
    ControlView::act([this] { model_.setByPerson(picked()); });
    showState();
    const QString shown = field_->textOf(field_->date(), field_->time());
    if (shown == wanted) return;
    say([wanted, shown] {
        return QObject::tr("%1 can't be chosen here. The field now holds %2.").arg(wanted, shown);
    });
}

/// The part that the field shows, with the rest of the value as it was.
Date PickerView::picked() const
{
    const DateParts held = partsOf(model_.value());
    const QDate day = field_->date();
    const QTime time = field_->time();
    if (model_.kind() == PickerKind::date)
        return dateOf(day.year(), day.month(), day.day(), held.hour, held.minute, held.second);
    return dateOf(held.year, held.month, held.day, time.hour(), time.minute(), time.second());
}

void PickerView::render()
{
    const DateParts value = partsOf(model_.value());
    const QDate day(value.year, value.month, value.day);
    const QTime time(value.hour, value.minute, value.second);
    // What the person is typing stays while the value is the one that was there before.
    if (day != field_->date() || time != field_->time()) field_->show(day, time);
}

SpinView::SpinView(SpinControl& spin, QWidget* parent, const ActOnControl& act)
    : ControlView(spin, new QWidget(parent), act), model_(spin)
{
    auto* column = new QVBoxLayout(widget());
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    const auto arrow = [&](Qt::ArrowType type, const QString& name, void (SpinControl::*step)()) {
        auto* button = new QToolButton(widget());
        button->setArrowType(type);
        button->setAutoRepeat(true);
        button->setAccessibleName(name);
        button->setToolTip(name);
        button->setFocusPolicy(Qt::TabFocus);
        button->setFixedSize(button->fontMetrics().height() + 8,
                             button->fontMetrics().height() / 2 + 6);
        column->addWidget(button);
        connect(button, &QToolButton::clicked, this,
                [this, step, &arrows = model_] { ControlView::act([&] { (arrows.*step)(); }); });
        return button;
    };
    up_ = arrow(Qt::UpArrow, QObject::tr("More"), &SpinControl::stepUp);
    down_ = arrow(Qt::DownArrow, QObject::tr("Less"), &SpinControl::stepDown);
    widget()->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QWidget* SpinView::focusTarget() const
{
    return up_;
}

void SpinView::render()
{
    up_->setEnabled(model_.value() < model_.maximum());
    down_->setEnabled(model_.value() > model_.minimum());
}

} // namespace desktop
