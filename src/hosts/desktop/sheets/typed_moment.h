#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

namespace desktop {

/// The date that a person has typed or pasted; nothing for a text that is no date, or only a part
/// of one.
///
/// The parts stand in the order of `format` ("M/d/yyyy", "dd.MM.yyyy") with its separator or
/// hyphens between them, or with the year first. The year has four digits and is 100 or later.
std::optional<QDate> dateTyped(const QString& text, const QString& format);

/// The same for a time of day: "15:30", "3:30:00 PM", "3 pm", "15h30", "15:30 Uhr", "15時30分".
/// Without AM or PM the hour is one of 24.
std::optional<QTime> timeTyped(const QString& text);

} // namespace desktop
