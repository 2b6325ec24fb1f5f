#pragma once

#include "hosts/common/look/interface_language.h"

#include <QWidget>

class QLineEdit;
class SpokenLabel;

namespace desktop {

/// The line in which a person looks for a text, or goes to a time.
class FindBar final : public QWidget {
    Q_OBJECT

public:
    explicit FindBar(QWidget* parent = nullptr);

    /// Puts the cursor into the field of the text, or of the time.
    void startFind();
    void startGoToTime();

    QString text() const;

    /// Shows which hit of how many is the current one: 0 where the current row is none.
    void showHits(int current, int count);

    /// Says a sentence in the place of the count.
    void say(LiveSentence sentence);

signals:
    void textChanged(const QString& text);
    void next();
    void previous();
    void timeAsked(const QString& time);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();

    QLineEdit* text_ = nullptr;
    QLineEdit* time_ = nullptr;
    SpokenLabel* count_ = nullptr;
    LiveSentence counted_;     ///< what stands in the place of the count
    QList<QWidget*> findPart_; ///< what serves to find, and to go to a time
    QList<QWidget*> timePart_;
    bool timeWanted_ = false;
};

} // namespace desktop
