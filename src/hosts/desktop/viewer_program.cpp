#include "hosts/desktop/viewer_program.h"

#include <QProcess>
#include <QStandardPaths>

namespace desktop {

namespace {

const QString viewerName = QStringLiteral("orvandiag-viewer");

QString viewerProgram(const QString& folder)
{
    const QString beside = QStandardPaths::findExecutable(viewerName, {folder});
    return beside.isEmpty() ? QStandardPaths::findExecutable(viewerName) : beside;
}

} // namespace

bool openInViewer(const QString& path, const QString& folder)
{
    const QString program = viewerProgram(folder);
    return !program.isEmpty() && QProcess::startDetached(program, {path});
}

} // namespace desktop
