#include "hosts/desktop/log/bookmarks.h"

#include <QCryptographicHash>
#include <QSettings>
#include <QStringList>

namespace desktop {

Bookmarks::Bookmarks(QSettings& settings, const QString& log,
                     const std::function<QString(int line)>& timeOfLine)
    : settings_(settings)
{
    const QByteArray name =
        QCryptographicHash::hash(log.toUtf8(), QCryptographicHash::Sha1).toHex();
    key_ = QStringLiteral("bookmarks/") + QString::fromLatin1(name);
    for (const QString& stored : settings_.value(key_).toStringList()) {
        const auto blank = stored.indexOf(QLatin1Char(' '));
        const int line = stored.left(blank).toInt();
        const QString time = blank < 0 ? QString() : stored.mid(blank + 1);
        if (line > 0 && timeOfLine(line) == time) times_[line] = time;
    }
}

void Bookmarks::toggle(int line, const QString& time)
{
    if (times_.erase(line) == 0) times_[line] = time;
    store();
}

void Bookmarks::clear()
{
    times_.clear();
    store();
}

void Bookmarks::store()
{
    QStringList stored;
    for (const auto& [line, time] : times_)
        stored << QString::number(line) + QLatin1Char(' ') + time;
    if (stored.empty())
        settings_.remove(key_);
    else
        settings_.setValue(key_, stored);
}

} // namespace desktop
