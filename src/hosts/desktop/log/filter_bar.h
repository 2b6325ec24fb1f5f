#pragma once

#include "hosts/common/look/interface_language.h"
#include "hosts/desktop/log/log_filter.h"
#include "hosts/desktop/log/text_decoder.h"

#include <QTimer>
#include <QWidget>

#include <array>

class ListView;
class QBoxLayout;
class QCheckBox;
class QLabel;
class QLineEdit;

namespace desktop {

class FilterButton;

/// The line in which a person says which rows of a log are on show.
class FilterBar final : public QWidget {
    Q_OBJECT

public:
    explicit FilterBar(QWidget* parent = nullptr);

    /// Offers the values of a list. What the person has ticked and typed stays.
    void offer(ListView& list, const TextDecoder& decoder);

    /// Takes the columns' headers anew; what is filtered stays.
    void showTitles(ListView& list);

    LogFilter filter(const CodePage& codePage) const;

    /// Adds a value of a column to those that are shown, or hidden. A column without a button is
    /// passed over.
    void tick(int column, const std::string& value, bool exclude);

    /// Whether the bar has a button for a column.
    bool offersColumn(int column) const;

    /// Lets every row pass.
    void reset();
    void startText();

    void showCounts(int shown, int all);

    /// Room for two rows, which it takes where a window is narrow.
    QSize minimumSizeHint() const override;

signals:
    void changed();
    void closed();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();

    QBoxLayout* rows_ = nullptr;             ///< the buttons, then the rest
    std::array<FilterButton*, 3> buttons_{}; ///< component, source, level
    QLineEdit* text_ = nullptr;
    QCheckBox* excludeText_ = nullptr;
    QLabel* counts_ = nullptr;
    LiveSentence counted_;
    QTimer typing_; ///< runs while the person types on
};

} // namespace desktop
