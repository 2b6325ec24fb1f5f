#include "hosts/viewer/session/session_store.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>

namespace viewer {

namespace {

const QString ending = QStringLiteral(".json");
constexpr qint64 largestSessionFile = 1'000'000;

} // namespace

QString SessionStore::fileOf(const QStringList& paths) const
{
    QStringList sorted;
    for (const QString& path : paths) sorted << QDir::cleanPath(path);
    sorted.sort();
    sorted.removeDuplicates();
    // No name of a file has a zero in it.
    const QByteArray text = sorted.join(QChar(0)).toUtf8();
    return folder_ + QLatin1Char('/') +
           QString::fromLatin1(
               QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex().left(32)) +
           ending;
}

std::optional<Session> SessionStore::read(const QStringList& paths) const
{
    QFile file(fileOf(paths));
    if (file.size() > largestSessionFile || !file.open(QIODevice::ReadOnly)) return std::nullopt;
    return sessionOfJson(file.read(largestSessionFile));
}

void SessionStore::write(const QStringList& paths, const Session& session) const
{
    QDir().mkpath(folder_);
    QSaveFile file(fileOf(paths));
    if (!file.open(QIODevice::WriteOnly)) return;
    file.write(toJson(session));
    if (!file.commit()) return;
    const QDir folder(folder_);
    const QStringList files =
        folder.entryList({QLatin1Char('*') + ending}, QDir::Files, QDir::Time);
    for (qsizetype old = most; old < files.size(); ++old)
        QFile::remove(folder.filePath(files[old]));
}

void SessionStore::forget(const QStringList& paths) const
{
    QFile::remove(fileOf(paths));
}

} // namespace viewer
