#include "hosts/desktop/sheets/moment_field.h"

#include "hosts/common/look/icons.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/sheets/typed_moment.h"

#include <QAction>
#include <QApplication>
#include <QCalendarWidget>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>
#include <QScreen>
#include <QStyleOptionSpinBox>
#include <QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

constexpr int firstYear = 100;
constexpr int lastYear = 9999;
constexpr int hoursOfAHalf = 12;
constexpr int secondsOfAMinute = 60;
constexpr int secondsOfAnHour = 3600;
constexpr int cursorRoom = 6;
constexpr int symbolRoom = 26; ///< of the calendar's symbol

/// The letter of each part that a format shows, in order: of "M/d/yyyy" M, d and y.
QString unitsOf(const QString& format)
{
    QString units;
    for (const QChar letter : format)
        if (letter.isLetter() && letter != QLatin1Char('P') && !units.contains(letter))
            units += letter;
    return units.replace(QLatin1Char('H'), QLatin1Char('h'));
}

QDate stepped(const QDate& date, QChar unit, int steps)
{
    if (unit == QLatin1Char('y')) return date.addYears(steps);
    return unit == QLatin1Char('M') ? date.addMonths(steps) : date.addDays(steps);
}

/// Goes round at midnight.
QTime stepped(const QTime& time, QChar unit, int steps)
{
    if (unit == QLatin1Char('s')) return time.addSecs(steps);
    if (unit == QLatin1Char('m')) return time.addSecs(steps * secondsOfAMinute);
    if (unit == QLatin1Char('A')) steps *= hoursOfAHalf;
    return time.addSecs(steps * secondsOfAnHour);
}

} // namespace

MomentField::MomentField(Part part, QWidget* parent) : QAbstractSpinBox(parent), part_(part)
{
    // Any text may stand in the field on the way to a good one.
    lineEdit()->setValidator(nullptr);
    connect(lineEdit(), &QLineEdit::textChanged, this, [this] { edited_ |= !showing_; });
    if (part_ == Part::date) {
        auto* calendar = lineEdit()->addAction(toolIcon(QStringLiteral("calendar")),
                                               QLineEdit::TrailingPosition);
        connect(calendar, &QAction::triggered, this, &MomentField::openCalendar);
        showInLanguage(this, [calendar] {
            calendar->setText(tr("Calendar"));
            calendar->setToolTip(tr("Pick a day from a calendar (F4)"));
        });
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    showInLanguage(this, [this] {
        if (!edited_) showText();
        updateGeometry();
    });
}

QString MomentField::format() const
{
    // Each language has a form of its own: in German it is dd.MM.yyyy and HH:mm:ss.
    return part_ == Part::date ? tr("M/d/yyyy") : tr("h:mm:ss AP");
}

QString MomentField::textOf(const QDate& date, const QTime& time) const
{
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    return part_ == Part::date ? english.toString(date, format())
                               : english.toString(time, format());
}

void MomentField::show(const QDate& date, const QTime& time)
{
    date_ = date;
    time_ = time;
    showText();
}

void MomentField::showText()
{
    showing_ = true;
    const QString text = textOf(date_, time_);
    if (lineEdit()->text() != text) lineEdit()->setText(text);
    showing_ = false;
    edited_ = false;
}

void MomentField::pick(const QDate& date, const QTime& time)
{
    const bool same = date == date_ && time == time_;
    show(date, time);
    if (!same) emit picked();
}

bool MomentField::finishEditing()
{
    if (!edited_) return true;
    const QString text = lineEdit()->text();
    if (part_ == Part::date) {
        if (const auto typed = dateTyped(text, format())) return pick(*typed, time_), true;
    } else if (const auto typed = timeTyped(text)) {
        return pick(date_, *typed), true;
    }
    showText();
    emit refused(text.trimmed());
    return false;
}

QValidator::State MomentField::validate(QString&, int&) const
{
    return QValidator::Intermediate;
}

QSize MomentField::sizeHint() const
{
    ensurePolished();
    const QString widest = textOf(QDate(2000, 12, 28), QTime(22, 58, 58));
    const int symbol = part_ == Part::date ? symbolRoom : 0;
    const QSize contents(fontMetrics().horizontalAdvance(widest + QLatin1Char('0')) + cursorRoom +
                             symbol,
                         lineEdit()->sizeHint().height());
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, contents, this);
}

/// The unit that the cursor is in; the smallest usual one where all of the text is selected.
QChar MomentField::unitAt(int cursor) const
{
    if (lineEdit()->selectedText() == lineEdit()->text())
        return QLatin1Char(part_ == Part::date ? 'd' : 'h');
    const QString units = unitsOf(format());
    const QString before = lineEdit()->text().left(cursor);
    const auto passed = std::count_if(before.begin(), before.end(),
                                      [](QChar letter) { return !letter.isLetterOrNumber(); });
    return units[std::min<qsizetype>(passed, units.size() - 1)];
}

/// Selects a part of the text by its unit.
void MomentField::select(QChar unit)
{
    const QString text = lineEdit()->text();
    int start = 0;
    for (int at = 0; at <= text.size(); ++at) {
        if (at < text.size() && text[at].isLetterOrNumber()) continue;
        lineEdit()->setSelection(start, at - start);
        if (unitAt(start) == unit) return;
        start = at + 1;
    }
}

void MomentField::stepBy(int steps)
{
    if (!finishEditing()) return;
    const bool all = lineEdit()->selectedText() == lineEdit()->text();
    const QChar unit = unitAt(lineEdit()->cursorPosition());
    if (part_ == Part::date) {
        const QDate next = stepped(date_, unit, steps);
        if (next.isValid() && next.year() >= firstYear && next.year() <= lastYear)
            pick(next, time_);
    } else {
        pick(date_, stepped(time_, unit, steps));
    }
    all ? lineEdit()->selectAll() : select(unit);
}

void MomentField::keyPressEvent(QKeyEvent* event)
{
    const bool down = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (part_ == Part::date && (down || event->key() == Qt::Key_F4)) return openCalendar();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        // What was not understood is read first; the next Enter goes on.
        event->setAccepted(!finishEditing());
        return;
    }
    QAbstractSpinBox::keyPressEvent(event);
}

void MomentField::focusOutEvent(QFocusEvent* event)
{
    QAbstractSpinBox::focusOutEvent(event);
    if (event->reason() == Qt::ActiveWindowFocusReason || event->reason() == Qt::PopupFocusReason)
        return;
    // A button of the dialog that is pressed asks for the value itself, and does not go on with
    // one that was not understood; Cancel has no use for it.
    const QWidget* next = QApplication::focusWidget();
    const bool inside = next && parentWidget() && parentWidget()->isAncestorOf(next);
    if (event->reason() == Qt::MouseFocusReason && !inside) return;
    finishEditing();
}

void MomentField::openCalendar()
{
    if (part_ != Part::date) return;
    finishEditing();
    auto* popup = new QFrame(this, Qt::Popup);
    popup->setAttribute(Qt::WA_DeleteOnClose);
    popup->setFrameShape(QFrame::StyledPanel);
    auto* calendar = new QCalendarWidget(popup);
    //: The language and country by which a calendar names its days.
    calendar->setLocale(QLocale(tr("en_US")));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar->setDateRange(QDate(firstYear, 1, 1), QDate(lastYear, 12, 31));
    calendar->setSelectedDate(date_);
    auto* column = new QVBoxLayout(popup);
    column->setContentsMargins(1, 1, 1, 1);
    column->addWidget(calendar);
    const auto choose = [this, popup](const QDate& day) {
        popup->close();
        pick(day, time_);
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    popup->adjustSize();
    QRect area(mapToGlobal(rect().bottomLeft()), popup->size());
    const QRect room = screen()->availableGeometry();
    if (area.bottom() > room.bottom()) area.moveBottom(mapToGlobal(rect().topLeft()).y());
    area.moveRight(std::min(area.right(), room.right()));
    popup->move(area.topLeft());
    popup->show();
    calendar->setFocus();
}

} // namespace desktop
