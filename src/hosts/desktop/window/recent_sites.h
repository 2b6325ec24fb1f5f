#pragma once

#include <QStringList>

class QSettings;

namespace desktop {

/// Folders of the sites that were opened, the latest first.
QStringList recentSites(const QSettings& settings);

/// Puts a folder first; the list keeps eight.
void rememberSite(QSettings& settings, const QString& folder);

} // namespace desktop
