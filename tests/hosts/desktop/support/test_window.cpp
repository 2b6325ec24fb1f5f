#include "hosts/desktop/support/test_window.h"

#include "console/console.h"
#include "settings/about_box.h"
#include "support/places.h"

#include <QTimer>

#include <algorithm>
#include <regex>
#include <stdexcept>

namespace desktop {

TestServer::TestServer(std::size_t lines, LogFields fields)
{
    SampleOptions options;
    options.folder = site();
    options.dataFolder = built::data;
    options.lines = lines;
    options.logFields = fields;
    makeSampleServer(options);
}

void TestServer::speak(int language) const
{
    static const std::regex line("\\nlanguage=[0-9]*");
    const std::string settings = folder_.read("site/site.ini");
    if (!std::regex_search(settings, line))
        throw std::runtime_error("the sample's site.ini tells no language");
    folder_.write("site/site.ini",
                  std::regex_replace(settings, line, "\nlanguage=" + std::to_string(language)));
}

std::string TestServer::currentLog(const std::string& process) const
{
    std::string latest;
    for (const auto& entry : std::filesystem::directory_iterator(logs())) {
        const std::string name = entry.path().filename().string();
        const bool ofProcess = name.rfind("diag_" + process + "_", 0) == 0;
        if (ofProcess && name.find("_fmtd") == std::string::npos) latest = std::max(latest, name);
    }
    if (latest.empty()) throw std::runtime_error("the sample has no log of " + process);
    return latest;
}

TestWindow::TestWindow(std::size_t lines, LogFields fields)
    : server((testApplication(), lines), fields),
      settings(QString::fromStdString(server.folder() / "console.ini"), QSettings::IniFormat)
{
    open();
}

TestWindow::~TestWindow()
{
    window.reset();
    if (tool) tool->close();
}

void TestWindow::open()
{
    tool = std::make_unique<OpenTool>(server.site(), built::data, HostFacts{}, desktop);
    window = std::make_unique<MainWindow>(settings);
    window->show();
    window->setTool(tool.get());
    settle();
}

void TestWindow::reopen()
{
    window.reset();
    tool->close();
    tool.reset();
    open();
}

void TestWindow::reopenIn(int language)
{
    server.speak(language);
    reopen();
}

LogView& TestWindow::log()
{
    return pane().log();
}

ListView& TestWindow::shownList()
{
    return console().currentView().selectedScopePaneItem().resultView().list();
}

void TestWindow::showLog(const std::string& process)
{
    if (!window->showNode(server.currentLog(process)))
        throw std::runtime_error("no node for the log of " + process);
    settle();
}

void TestWindow::chooseLanguage(int identifier)
{
    bool chosen = false;
    // The box is modal: its own OK ends it.
    QTimer::singleShot(0, window.get(), [&] {
        frmAbout& form = tool->snapIn().showAbout();
        const auto& languages = form.mnuLanguageList();
        const auto found = std::find_if(languages.begin(), languages.end(), [&](const auto& item) {
            return item.tag == std::to_string(identifier);
        });
        chosen = found != languages.end();
        if (chosen) form.mnuLanguageList_Click(static_cast<int>(found - languages.begin()));
        form.cmdOK_Click();
    });
    window->run(Command::about);
    settle();
    if (!chosen) throw std::runtime_error("no such language: " + std::to_string(identifier));
}

} // namespace desktop
