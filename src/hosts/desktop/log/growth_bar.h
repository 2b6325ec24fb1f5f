#pragma once

#include "hosts/common/look/interface_language.h"

#include <QWidget>

class QCheckBox;
class QPushButton;
class SpokenLabel;

namespace desktop {

/// The line below a log that tells how many lines came to it since it was read, with the switch
/// that shows them as they come.
class GrowthBar final : public QWidget {
    Q_OBJECT

public:
    explicit GrowthBar(QWidget* parent = nullptr);

    /// Says a sentence, with a button to read the log again, or to open it in the viewer instead.
    void say(LiveSentence sentence, bool viewer);

    QString said() const;

    bool following() const;
    void setFollowing(bool following);

signals:
    void readAsked();
    void viewerAsked();
    void followed(bool on);

private:
    SpokenLabel* text_ = nullptr;
    QPushButton* read_ = nullptr;
    QPushButton* viewer_ = nullptr;
    QCheckBox* follow_ = nullptr;
    LiveSentence sentence_;
};

} // namespace desktop
