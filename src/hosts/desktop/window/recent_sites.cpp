#include "hosts/desktop/window/recent_sites.h"

#include <QSettings>

namespace desktop {

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
    const QStringList before = recentSites(settings);
    QStringList sites = before;
    sites.removeAll(folder);
    sites.prepend(folder);
    while (sites.size() > keptSites) sites.removeLast();
    // Settings are written to the disk, and waited for, before the window is painted.
    if (sites != before) settings.setValue(sitesKey, sites);
}

void forgetSites(QSettings& settings, const QStringList& folders)
{
    QStringList sites = recentSites(settings);
    for (const QString& folder : folders) sites.removeAll(folder);
    if (sites != recentSites(settings)) settings.setValue(sitesKey, sites);
}

} // namespace desktop
