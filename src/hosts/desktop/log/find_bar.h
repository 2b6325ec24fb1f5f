#pragma once

#include "hosts/common/filters/highlights.h"
#include "hosts/common/look/interface_language.h"

#include <QWidget>

class QBoxLayout;
class QCheckBox;
class QLineEdit;
class SpokenLabel;

namespace desktop {

/// The line in which a person looks for a text, keeps texts marked in colours, or goes to a time.
class FindBar final : public QWidget {
    Q_OBJECT

public:
    /// `marks` outlives the bar.
    explicit FindBar(Highlights& marks, QWidget* parent = nullptr);

    /// Puts the cursor into the field of the text, or of the time.
    void startFind();
    void startGoToTime();

    /// What is looked for; its text is empty for nothing.
    TextCondition condition() const;

    /// Keeps the text in the field marked in a colour of its own.
    void keep();

    /// Shows which hit of how many is the current one: 0 where the current row is none.
    void showHits(int current, int count);

    /// Says a sentence in the place of the count.
    void say(LiveSentence sentence);

signals:
    void conditionChanged();
    void next();
    void previous();
    void timeAsked(const QString& time);
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void arrange();
    void showKept();

    Highlights& marks_;
    QLineEdit* text_ = nullptr;
    QLineEdit* time_ = nullptr;
    QCheckBox* expression_ = nullptr;
    QCheckBox* matchesCase_ = nullptr;
    QBoxLayout* lines_ = nullptr;
    QWidget* kept_ = nullptr; ///< a button for each text that is kept; null for none
    SpokenLabel* count_ = nullptr;
    LiveSentence counted_;     ///< what stands in the place of the count
    QList<QWidget*> findPart_; ///< what serves to find, and to go to a time
    QList<QWidget*> timePart_;
    bool timeWanted_ = false;
};

} // namespace desktop
