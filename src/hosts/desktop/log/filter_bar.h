#pragma once

#include "hosts/common/filters/row_filter.h"
#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/log/log_filter.h"
#include "hosts/desktop/log/text_decoder.h"

#include <QTimer>
#include <QWidget>

#include <string>
#include <vector>

class ListView;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace desktop {

class FilterButton;

/// The line in which a person says which rows of a log are on show.
class FilterBar final : public QWidget {
    Q_OBJECT

public:
    explicit FilterBar(const CodePage& codePage, QWidget* parent = nullptr);

    /// Offers the values of a list, which stays until `leave`. What the person has ticked and typed
    /// stays.
    void offer(ListView& list, const TextDecoder& decoder);
    void leave() { list_ = nullptr; }

    /// Takes the columns' headers anew; what is filtered stays.
    void showTitles(ListView& list);

    /// An expression that is none lets every row pass; the bar says so.
    LogFilter filter(const CodePage& codePage);

    /// Adds a value of a column to those that are shown, or hidden, with a button for the column
    /// where there was none.
    void tick(int column, const std::string& value, bool exclude);

    /// Whether a column can be filtered by its values: all but the number.
    bool offersColumn(int column) const;

    /// Puts a button for a column into the bar; the one that is there stays.
    void addColumn(int column);

    /// Opens the menu of the columns that have no button yet. A chosen one opens its values.
    void offerColumns();

    /// What the bar asks for, in the form that filters are saved in, and back. Conditions that no
    /// field of the bar shows are kept beside them.
    RowFilter asked() const;
    void take(const RowFilter& filter);

    /// Whether all that a filter asks for holds here: moments and processes are not looked at in a
    /// single log.
    static bool holdsWhole(const RowFilter& filter);

    /// Whether values are chosen of a column that saved filters do not have.
    bool asksForMore() const;

    /// Lets every row pass.
    void reset();
    void startText();

    void showCounts(int shown, int all);

    /// Room for two rows, which it takes where a window is narrow.
    QSize minimumSizeHint() const override;

signals:
    void changed();
    void closed();
    /// A sentence for the status bar.
    void said(const QString& sentence);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();
    FilterButton* buttonOf(int column) const;
    FilterButton& makeButton();
    void fill(FilterButton& button, int column);
    void showRest();

    QBoxLayout* rows_ = nullptr; ///< the buttons, then the rest
    QBoxLayout* columns_ = nullptr;
    std::vector<FilterButton*> buttons_; ///< component, source and level first
    QToolButton* more_ = nullptr;        ///< for a further column
    QToolButton* rest_ = nullptr;        ///< tells of conditions without a field, and ends them
    ListView* list_ = nullptr;           ///< whose values are offered
    TextDecoder decoder_;
    RowFilter kept_; ///< the conditions without a field
    QCheckBox* expression_ = nullptr;
    QCheckBox* matchesCase_ = nullptr;
    QLineEdit* text_ = nullptr;
    QCheckBox* excludeText_ = nullptr;
    QLabel* counts_ = nullptr;
    LiveSentence counted_;
    QTimer typing_; ///< runs while the person types on
};

} // namespace desktop
