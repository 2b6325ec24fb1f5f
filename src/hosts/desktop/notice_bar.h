#pragma once

#include <QWidget>

class QLabel;

/// A strip above the panes that says in a sentence what went wrong and what to do. It stays until
/// the person closes it.
class NoticeBar final : public QWidget {
    Q_OBJECT

public:
    explicit NoticeBar(QWidget* parent = nullptr);

    void say(const QString& sentence);
    QString sentence() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QLabel* text_ = nullptr;
};
