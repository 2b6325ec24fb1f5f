#include "hosts/common/filters/saved_filters.h"

#include "runtime/run_time_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QSaveFile>
#include <QSettings>

#include <algorithm>

namespace {

const QString ending = QStringLiteral(".json");
constexpr qint64 largestFile = 1'000'000;

bool canBeOfAFile(const QString& name)
{
    static const QString none = QStringLiteral("/\\:*?\"<>|");
    return !name.isEmpty() && !name.startsWith(QLatin1Char('.')) &&
           std::none_of(name.begin(), name.end(), [](QChar letter) {
               return letter < QLatin1Char(' ') || none.contains(letter);
           });
}

[[noreturn]] void refuseFilter(int number, const QString& sentence)
{
    throw RunTimeError(number, sentence.toStdString());
}

} // namespace

SavedFilters SavedFilters::besideSettings(const QSettings& settings)
{
    return SavedFilters(QFileInfo(settings.fileName()).absolutePath() + QStringLiteral("/filters"));
}

QString SavedFilters::fileOf(const QString& name) const
{
    return folder_ + QLatin1Char('/') + name + ending;
}

QStringList SavedFilters::names() const
{
    QStringList names;
    for (const QString& file :
         QDir(folder_).entryList({QLatin1Char('*') + ending}, QDir::Files, QDir::Name))
        names << file.chopped(ending.size());
    return names;
}

void SavedFilters::save(const QString& name, const RowFilter& filter) const
{
    if (!canBeOfAFile(name))
        refuseFilter(runTimeErrors::invalidCall,
                     tr("\"%1\" can't be the name of a filter").arg(name));
    QDir().mkpath(folder_);
    QSaveFile file(fileOf(name));
    const QByteArray text = QJsonDocument(filter.toJson()).toJson();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        refuseFilter(runTimeErrors::pathFileAccess,
                     tr("%1 can't be written: %2").arg(file.fileName(), file.errorString()));
}

RowFilter SavedFilters::read(const QString& name)
{
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        refuseFilter(runTimeErrors::fileNotFound,
                     tr("%1 can't be read: %2").arg(name, file.errorString()));
    QJsonParseError error{};
    const QJsonDocument json = QJsonDocument::fromJson(file.read(largestFile), &error);
    if (!json.isObject()) refuseFilter(runTimeErrors::invalidCall, tr("%1 is no filter").arg(name));
    return RowFilter::ofJson(json.object());
}
