#pragma once

#include <QLabel>

/// A label whose accessible name tells what it is, and whose text a screen reader gets as the
/// value. It shows plain text unless told otherwise. Of a plain label with a name the text would
/// not be told.
class SpokenLabel : public QLabel {
    Q_OBJECT

public:
    explicit SpokenLabel(QWidget* parent = nullptr);

    /// Shows a text, and tells screen readers that it is another one.
    void setText(const QString& text);

    /// The text without its markup.
    QString spokenText() const;
};
