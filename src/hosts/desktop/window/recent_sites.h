#pragma once

#include <QStringList>

class QSettings;

namespace desktop {

/// Folders of the sites that were opened, the latest first.
QStringList recentSites(const QSettings& settings);

/// Puts a folder first; the list keeps eight.
void rememberSite(QSettings& settings, const QString& folder);

/// Takes folders off the list; what lies in them is left alone.
void forgetSites(QSettings& settings, const QStringList& folders);

} // namespace desktop
