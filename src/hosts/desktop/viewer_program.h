#pragma once

#include <QCoreApplication>
#include <QString>

namespace desktop {

/// Opens what the viewer reads (a log, a trace database, a cabinet, a folder of them) in a process
/// of the viewer's own, which outlives this program. The viewer is the one in `folder`, by default
/// that of this program, else the one on the search path. False where there is none, or it could
/// not be started.
bool openInViewer(const QString& path,
                  const QString& folder = QCoreApplication::applicationDirPath());

} // namespace desktop
