#pragma once

#include "hosts/common/look/interface_language.h"

#include <QWidget>

class QLabel;

/// A strip above the panes that says in a sentence what went wrong and what to do. It stays until
/// the person closes it.
class NoticeBar final : public QWidget {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    void say(LiveSentence sentence);
    QString sentence() const;

    /// Asks for the sentence on show again; an empty one takes the strip away.
    void renew();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    LiveSentence said_;
    QLabel* text_ = nullptr;
};
