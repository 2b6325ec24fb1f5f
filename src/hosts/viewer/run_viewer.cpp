#include "hosts/viewer/run_viewer.h"

#include "hosts/common/look/end_wish.h"
#include "hosts/common/look/icons.h"
#include "hosts/common/look/screenshot.h"
#include "hosts/common/look/theme.h"
#include "hosts/common/look/window_start.h"
#include "hosts/common/places.h"
#include "hosts/viewer/session/session_keeper.h"
#include "hosts/viewer/window/main_window.h"
#include "hosts/viewer/window/viewer_options.h"

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>

#include <exception>
#include <memory>

namespace viewer {

namespace {

const QString programName = QStringLiteral("orvandiag-viewer");

/// Paths as a person types them, made whole from the present folder.
QStringList wholePaths(const QStringList& typed)
{
    QStringList paths;
    for (const QString& path : typed)
        paths << (path == QLatin1String("-")
                      ? path
                      : QString::fromStdString(places::wholePath(path.toStdString())));
    return paths;
}

/// A picture is taken of what was read, not of a window that waits for it.
void pictureWhenRead(MainWindow& window, const QString& file)
{
    auto* waiting = new QObject(&window);
    const auto take = [&window, waiting, file] {
        if (window.document().state().busy) return;
        waiting->deleteLater();
        QObject::disconnect(&window.document(), nullptr, waiting, nullptr);
        takeScreenshot(window, file);
    };
    QObject::connect(&window.document(), &Document::viewChanged, waiting, take);
    QObject::connect(&window.document(), &Document::progressed, waiting, take);
    take();
}

int run(const ViewerOptions& options, const std::function<void(MainWindow&)>& opened)
{
    QSettings settings;
    theme::apply(theme::schemeOf(options.theme.isEmpty()
                                     ? settings.value(QStringLiteral("window/theme")).toString()
                                     : options.theme));
    QApplication::setWindowIcon(toolIcon(QStringLiteral("viewer")));
    MainWindow window(settings, QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
    window.setManual(QString::fromStdString(places::installedData()) + QStringLiteral("/help"));
    window.session().setRestoring(!options.fresh);
    if (options.size) window.resize(*options.size);
    window.show();
    window.document().follow(options.follow);
    if (!options.sources.isEmpty()) window.document().open(wholePaths(options.sources));
    if (!options.screenshot.isEmpty()) pictureWhenRead(window, options.screenshot);
    const EndWish wish([&window] { window.close(); });
    if (opened) opened(window);
    return wish.made() ? 0 : QApplication::exec();
}

} // namespace

int runViewer(int argc, char** argv, const std::function<void(MainWindow&)>& opened)
{
    QCoreApplication::setApplicationName(programName);
    QCoreApplication::setOrganizationName(QStringLiteral("orvandiag"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ORVAN_VERSION));
    if (windowStart::asksForText(argc, argv)) {
        const QCoreApplication application(argc, argv);
        const auto answer = viewerOptionsOf(QCoreApplication::arguments());
        if (const auto* text = std::get_if<NoWindow>(&answer)) return windowStart::say(*text);
    }
    auto watch = std::make_unique<windowStart::DisplayWatch>(programName);
    const QApplication application(argc, argv);
    watch.reset();
    try {
        const auto options = viewerOptionsOf(QCoreApplication::arguments());
        if (const auto* refused = std::get_if<NoWindow>(&options))
            return windowStart::say(*refused);
        return run(std::get<ViewerOptions>(options), opened);
    } catch (const std::exception& error) {
        return windowStart::refuse(programName, error.what());
    }
}

} // namespace viewer
