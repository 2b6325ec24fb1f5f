#pragma once

#include "hosts/desktop/log/log_filter.h"
#include "hosts/desktop/log/text_decoder.h"

#include <QToolButton>

class QCheckBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace desktop {

/// Opens a list of a column's values, to show or to hide those that are ticked. Of many values it
/// lists the ones of most rows, and those with what the person types.
class FilterButton final : public QToolButton {
    Q_OBJECT

public:
    explicit FilterButton(QWidget* parent = nullptr);

    /// Offers the values of a column. `title` is the column's header. What was ticked in the same
    /// column before stays, a value that no row has any more too.
    void offer(const QString& title, int column, const std::vector<ColumnValue>& values,
               const TextDecoder& decoder);

    /// Another text for the column's header; what is ticked stays.
    void setTitle(const QString& title);

    int column() const { return column_; }

    /// Ticks these and no others; those that no row has too.
    void setCondition(const ColumnCondition& condition, const TextDecoder& decoder);
    ColumnCondition condition() const;

    /// Ticks a value beside those that are; turns to showing or to hiding.
    void tick(const std::string& value, bool exclude);

    /// Unticks all.
    void reset();

    QSize sizeHint() const override;

signals:
    void changed();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Offered {
        ColumnValue value;
        QString text; ///< as a person reads it
        bool ticked = false;
    };

    void updateText();
    void listValues();
    void takeTick(const QListWidgetItem& item);

    QString title_;
    int column_ = 0;
    std::vector<Offered> values_; ///< those of most rows first
    QLineEdit* search_ = nullptr;
    QListWidget* list_ = nullptr;
    QCheckBox* exclude_ = nullptr;
    bool filling_ = false;
};

} // namespace desktop
