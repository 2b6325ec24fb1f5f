#pragma once

#include "hosts/viewer/session/session.h"

#include <QString>
#include <QStringList>

#include <optional>

namespace viewer {

/// The sessions that were closed last, a file each in a folder of the user's own, by what they had
/// opened. What can't be read or written is as if it had never been: no session is worth a message.
class SessionStore {
public:
    /// `folder` is made when the first one is written.
    explicit SessionStore(QString folder) : folder_(std::move(folder)) {}

    /// The session of some paths, in whatever order; nothing where none is kept.
    std::optional<Session> read(const QStringList& paths) const;

    /// Keeps one in the place of that of before; the oldest go.
    void write(const QStringList& paths, const Session& session) const;

    void forget(const QStringList& paths) const;

    /// How many are kept.
    static constexpr int most = 50;

private:
    QString fileOf(const QStringList& paths) const;

    QString folder_;
};

} // namespace viewer
