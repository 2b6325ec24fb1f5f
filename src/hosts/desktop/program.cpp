#include "hosts/desktop/program.h"

#include "hosts/desktop/turn_wait.h"
#include "hosts/desktop/viewer_program.h"
#include "hosts/desktop/window/recent_sites.h"
#include "runtime/run_time_error.h"
#include "sample/sample_server.h"
#include "shell/snapin_names.h"

#include <QAction>
#include <QApplication>
#include <QFileInfo>
#include <QObject>

#include <filesystem>

namespace desktop {

namespace fs = std::filesystem;

namespace {

LiveSentence notOpened(const std::string& folder, const LiveSentence& why)
{
    return [folder = QString::fromStdString(folder), why] {
        return QObject::tr(
                   "The site %1 could not be opened: %2. Choose another one with Ctrl+Shift+O.")
            .arg(folder, why());
    };
}

LiveSentence as(const std::string& text)
{
    return [text = QString::fromStdString(text)] { return text; };
}

} // namespace

Program::Program(QSettings& settings, std::string installedData, HostFacts facts)
    : settings_(settings), installedData_(std::move(installedData)), facts_(std::move(facts)),
      window_(settings)
{
    viewer = [](const QString& path) { return openInViewer(path); };
    facts_.notice = [this](const std::string& text) { window_.sayWaiting(text); };
    desktop_.setWindow(&window_);
    desktop_.setManual(installedData_ + "/help");
    desktop_.setToolPath(
        [this](const std::string& path) { return tool_ ? tool_->toolPath(path) : path; });
    QObject::connect(&window_, &MainWindow::siteAsked,
                     [this](const QString& folder) { openSite(folder.toStdString()); });
    QObject::connect(&window_, &MainWindow::sampleAsked,
                     [this](const QString& folder) { openSample(folder.toStdString()); });
    QObject::connect(&window_, &MainWindow::fileAsked,
                     [this](const QString& path) { openFile(path); });
    QObject::connect(&window_, &MainWindow::viewerAsked,
                     [this](const QString& path) { openForViewer(path); });
    QObject::connect(&window_, &MainWindow::helpAsked,
                     [this](int topic) { desktop_.showHelp({}, topic); });
    desktop_.setMessageShown([this] {
        if (tool_) tool_->letTurnGo();
        window_.messageShown();
    });
    desktop_.setManualMissing([this] {
        window_.showProblem([] {
            return QObject::tr("The manual is not beside the tool. Install it again to read it.");
        });
    });
}

Program::~Program()
{
    window_.setTool(nullptr);
}

void Program::openSite(const std::string& folder)
{
    std::unique_ptr<OpenTool> opened;
    try {
        if (!isSite(folder))
            return window_.showProblem(notOpened(folder, [] {
                return QObject::tr("it has no site.ini, registry.reg or drive_c in it");
            }));
        opened = std::make_unique<OpenTool>(folder, installedData_, facts_, desktop_);
        opened->takeTurn = [this](const std::string& site) {
            QWidget* asking = QApplication::activeModalWidget();
            return waitForTurn(site, asking ? asking : &window_);
        };
    } catch (const RunTimeError& error) {
        return window_.showProblem(notOpened(folder, as(error.description())));
    }
    const LiveSentence failure = letGo();
    tool_ = std::move(opened);
    rememberSite(settings_, QString::fromStdString(tool_->site().folder()));
    window_.setTool(tool_.get());
    if (failure) window_.showProblem(failure);
}

void Program::openSample(const std::string& folder)
{
    try {
        fs::create_directories(fs::path(folder).parent_path());
        SampleOptions options;
        options.folder = folder;
        options.dataFolder = installedData_;
        makeSampleServer(options);
    } catch (const RunTimeError& error) {
        return window_.showProblem([where = QString::fromStdString(folder),
                                    why = QString::fromStdString(error.description())] {
            return QObject::tr("No sample server could be made in %1: %2. Choose a new folder.")
                .arg(where, why);
        });
    } catch (const fs::filesystem_error& error) {
        return window_.showProblem([where = QString::fromStdString(folder),
                                    why = QString::fromStdString(error.code().message())] {
            return QObject::tr("No sample server could be made in %1: %2. Choose another folder.")
                .arg(where, why);
        });
    }
    openSite(folder);
}

void Program::openDefault(const std::string& folder)
{
    std::error_code none;
    const bool missing = !fs::exists(folder, none) || fs::is_empty(folder, none);
    if (!missing) openSite(folder);
}

void Program::openFile(const QString& path)
{
    const QString kind = QFileInfo(path).suffix().toLower();
    const bool forTheViewer = kind == QLatin1String("mdb") || kind == QLatin1String("cab");
    QAction* open =
        tool_ && !forTheViewer ? window_.consoleAction(snapinItem::openLogFile) : nullptr;
    if (open && open->isEnabled()) {
        desktop_.answerPick(path);
        open->trigger();
        return desktop_.answerPick({});
    }
    openForViewer(path);
}

void Program::openForViewer(const QString& path)
{
    if (viewer(path)) return;
    window_.showProblem([path] {
        return QObject::tr("%1 can be read with the viewer (orvandiag-viewer), which is not "
                           "installed here.")
            .arg(path);
    });
}

void Program::close()
{
    // No event loop runs any more, and the window has gone.
    if (tool_) tool_->takeTurn = nullptr;
    if (const LiveSentence failure = letGo()) window_.showProblem(failure);
}

/// The failure, if there was one, as a sentence; else none.
LiveSentence Program::letGo()
{
    if (!tool_) return {};
    window_.setTool(nullptr);
    const std::unique_ptr<OpenTool> leaving = std::move(tool_);
    try {
        leaving->close();
        return {};
    } catch (const RunTimeError& error) {
        return [why = QString::fromStdString(error.description())] {
            return QObject::tr("The site was not closed cleanly: %1. The language of its event log "
                               "may not be the first one; open it again.")
                .arg(why);
        };
    }
}

} // namespace desktop
