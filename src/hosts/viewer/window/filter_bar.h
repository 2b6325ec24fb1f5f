#pragma once

#include "hosts/viewer/document/document.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLineEdit;
class ElidedLabel;
class QToolButton;

namespace viewer {

/// The line in which a person says which texts rows have to have, or not to have, and that tells
/// what else is asked of them.
class FilterBar final : public QWidget {
    Q_OBJECT

public:
    /// The document outlives the bar.
    explicit FilterBar(Document& document, QWidget* parent = nullptr);

    QLineEdit& with() { return *with_; }
    QLineEdit& without() { return *without_; }
    QCheckBox& expression() { return *expression_; }
    QCheckBox& matchesCase() { return *matchesCase_; }

    /// What the bar tells of the filter, or of what is wrong with a text.
    QString said() const;

signals:
    /// The person leaves the bar for the rows.
    void left();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void showFilter();
    void takeTexts();
    QString summary() const;

    Document& document_;
    QLineEdit* with_;
    QLineEdit* without_;
    QCheckBox* expression_;
    QCheckBox* matchesCase_;
    ElidedLabel* said_;
    QToolButton* all_;
    QTimer wait_;          ///< until the person has stopped typing
    bool refused_ = false; ///< whether what stands in the fields makes no sense
    bool showing_ = false;
};

} // namespace viewer
