#pragma once

#include "platform/file_system.h"

#include <QObject>
#include <QTimer>

#include <string>
#include <vector>

namespace desktop {

/// Looks at the logs of a server's log folder, some at a time, so that the window never waits for
/// thousands of them.
class LogFacts final : public QObject {
    Q_OBJECT

public:
    /// `files` outlives it.
    LogFacts(const FileSystem& files, std::string folder, QObject* parent = nullptr);

    /// Looks at logs anew, by their names, instead of those before. Those that can't be looked at
    /// are passed over.
    void look(std::vector<std::string> names);

    /// Whether all have been looked at.
    bool complete() const { return next_ == names_.size(); }

    /// What is known of those that have been.
    const std::vector<FileInfo>& logs() const { return logs_; }

signals:
    /// All have been looked at.
    void known();

private:
    void lookAtSome();

    const FileSystem& files_;
    std::string folder_;
    std::vector<std::string> names_;
    std::size_t next_ = 0;
    std::vector<FileInfo> logs_;
    QTimer timer_;
};

} // namespace desktop
