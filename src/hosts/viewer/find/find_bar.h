#pragma once

#include "hosts/common/filters/highlights.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/viewer/document/document.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QHBoxLayout;
class QLineEdit;
class SpokenLabel;

namespace viewer {

/// The line in which a person looks for a text, sees how many rows have it while they are counted,
/// and keeps texts marked in colours of their own.
class FindBar final : public QWidget {
    Q_OBJECT

public:
    /// Both outlive the bar.
    FindBar(Document& document, Highlights& highlights, QWidget* parent = nullptr);

    QLineEdit& text() { return *text_; }
    QCheckBox& expression() { return *expression_; }

    /// Shows the bar, with the cursor in it.
    void start();

    /// What the bar tells of hits.
    QString said() const;

    /// Tells how many hits there are, and which of them the row at a place is.
    void showHits(std::optional<std::size_t> place);

    /// Keeps the text in the field marked in a colour.
    void keep();

signals:
    void next();
    void previous();
    void closed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    TextCondition condition() const;
    void takeText();
    void showKept();
    void say(LiveSentence sentence);

    Document& document_;
    Highlights& highlights_;
    QLineEdit* text_;
    QCheckBox* expression_;
    QCheckBox* matchesCase_;
    SpokenLabel* said_;
    QWidget* keptButtons_ = nullptr;
    QHBoxLayout* row_;
    QTimer wait_; ///< until the person has stopped typing
    LiveSentence sentence_;
};

} // namespace viewer
