#pragma once

#include <QAbstractSpinBox>
#include <QDate>
#include <QTime>

namespace desktop {

/// A field for a date or for a time of day, in the form of the interface language.
///
/// A person types or pastes a text as into any field. It is read as a whole when the person leaves
/// the field, presses Enter or goes on (`finishEditing`), never in between: half a date is another
/// date. The arrows change the part that the cursor is in; a date can be picked from a calendar.
class MomentField final : public QAbstractSpinBox {
    Q_OBJECT

public:
    enum class Part { date, time };

    explicit MomentField(Part part, QWidget* parent = nullptr);

    Part part() const { return part_; }
    QDate date() const { return date_; }
    QTime time() const { return time_; }

    /// Shows a moment, of which the field shows its part. What stood in the field is gone.
    void show(const QDate& date, const QTime& time);

    /// What the field shows of a moment.
    QString textOf(const QDate& date, const QTime& time) const;

    /// Takes what the person has typed. False for a text that is not understood: then the last
    /// good value stands in the field again.
    bool finishEditing();

    /// Opens the calendar of a date.
    void openCalendar();

    void stepBy(int steps) override;
    QValidator::State validate(QString& text, int& cursor) const override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    /// The person has chosen another value.
    void picked();

    /// The person has typed what is no value; the last good one is on show.
    void refused(const QString& text);

protected:
    StepEnabled stepEnabled() const override { return StepUpEnabled | StepDownEnabled; }
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    QString format() const;
    void showText();
    void pick(const QDate& date, const QTime& time);
    QChar unitAt(int cursor) const;
    void select(QChar unit);

    Part part_;
    QDate date_{2000, 1, 1};
    QTime time_{0, 0};
    bool edited_ = false;  ///< by the person, since the value was shown
    bool showing_ = false; ///< the text is being changed by the field itself
};

} // namespace desktop
