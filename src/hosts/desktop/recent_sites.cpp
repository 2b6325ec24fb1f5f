#include "hosts/desktop/recent_sites.h"

#include <QSettings>

namespace {
constexpr const char* sitesKey = "sites/recent";
constexpr int keptSites = 8;
} // namespace

QStringList recentSites(const QSettings& settings)
{
    return settings.value(sitesKey).toStringList();
}

void rememberSite(QSettings& settings, const QString& folder)
{
    QStringList sites = recentSites(settings);
    sites.removeAll(folder);
    sites.prepend(folder);
    while (sites.size() > keptSites) sites.removeLast();
    settings.setValue(sitesKey, sites);
}
