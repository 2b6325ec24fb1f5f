#pragma once

#include <QMainWindow>

class QTextBrowser;

/// The manual: pages of a folder, with a list of them to find one's way.
class HelpWindow final : public QMainWindow {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent = nullptr);

    /// Shows the page of a numeric topic of the manual in `folder`; topic 0, or one that is not
    /// there, shows the first page. False when the folder holds no manual.
    bool open(const QString& folder, int topic);

    /// The file name of the page on show; empty before the first one.
    QString shownPage() const;

private:
    QTextBrowser* pages_ = nullptr;
};
