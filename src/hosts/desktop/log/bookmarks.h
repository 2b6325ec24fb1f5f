#pragma once

#include <QString>

#include <functional>
#include <map>

class QSettings;

namespace desktop {

/// The marked lines of one log, kept in the settings: a line by its number, and by its time, so
/// that a mark does not move to another line when the log's file was replaced.
class Bookmarks {
public:
    /// Takes the marks of a log that still hold: `timeOfLine` gives the time stamp of a line, or
    /// the empty text for a line that is not there. `settings` outlives this.
    Bookmarks(QSettings& settings, const QString& log,
              const std::function<QString(int line)>& timeOfLine);

    bool has(int line) const { return times_.count(line) != 0; }
    int count() const { return static_cast<int>(times_.size()); }

    /// Marks a line, or takes its mark away.
    void toggle(int line, const QString& time);
    void clear();

private:
    void store();

    QSettings& settings_;
    QString key_;
    std::map<int, QString> times_;
};

} // namespace desktop
