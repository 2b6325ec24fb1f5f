#pragma once

#include <QAbstractButton>

#include <map>

namespace desktop {

/// A button with a symbol, a title and a sentence that tells what it does.
class TaskCard final : public QAbstractButton {
    Q_OBJECT

public:
    TaskCard(const QIcon& symbol, const QString& title, const QString& help,
             QWidget* parent = nullptr);

    /// Gives the card another title and sentence, as in another language.
    void setTexts(const QString& title, const QString& help);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QFont titleFont() const;
    int textLeft() const;
    int textHeight(int width) const;

    QString help_;
    mutable std::map<int, int> textHeights_; ///< by width: a layout asks for the same ones often
};

} // namespace desktop
