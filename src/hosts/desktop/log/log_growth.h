#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

namespace desktop {

/// Watches the file of the log on show, and counts the lines that came to it since the tool read
/// it.
class LogGrowth final : public QObject {
    Q_OBJECT

public:
    explicit LogGrowth(QObject* parent = nullptr);

    /// Watches a file of this machine, of which so many lines are on show. The empty path watches
    /// nothing.
    void watch(const QString& file, int shownLines);

    /// How many lines the file has beyond those on show. Lines are counted as the tool counts rows:
    /// empty ones are none.
    int newLines() const { return newLines_; }

    /// Whether the file was cut off or begun anew since it was read.
    bool begunAnew() const { return begunAnew_; }

    /// As it was seen last, in bytes; 0 for a file that is not there.
    qint64 size() const { return size_; }

    /// Looks at the file now.
    void look();

    /// How many milliseconds go by between looks, from now on.
    void setInterval(int interval) { timer_.setInterval(interval); }

signals:
    /// Something of the above is another than it was.
    void changed();

private:
    void count();

    QString file_;
    QTimer timer_;
    int shownLines_ = 0;
    int lines_ = 0;       ///< in the file up to `counted_`
    qint64 counted_ = 0;  ///< bytes
    bool inLine_ = false; ///< the bytes up to there end within a line that is counted
    qint64 size_ = 0;
    int newLines_ = 0;
    bool begunAnew_ = false;
};

} // namespace desktop
