#pragma once

#include "platform/desktop.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <memory>

class HelpWindow;
class QWidget;

namespace desktop {

/// The person's desktop: boxes, pickers, the message queue and the manual.
class DesktopServices final : public Desktop {
public:
    DesktopServices();
    ~DesktopServices() override;

    /// The window that boxes belong to when no other is active.
    void setWindow(QWidget* window);

    /// How the tool names a path of the machine; without one, by that path.
    void setToolPath(std::function<std::string(const std::string&)> toolPath);

    /// Called when the manual is asked for and is not there.
    void setManualMissing(std::function<void()> said);

    /// Called before each box.
    void setMessageShown(std::function<void()> shown);

    /// The folder of the manual, on the machine.
    void setManual(std::string folder);

    /// Answers the next wish for a file with a path of the machine, without asking the person; an
    /// empty one has the person asked again.
    void answerPick(const QString& path) { answer_ = path; }

    void messageBox(const std::string& text, const std::string& title, MessageIcon icon) override;
    std::string pickFolder(const std::string& title) override;
    std::string pickFile(const std::string& title) override;
    void pumpMessages() override;
    int showHelp(const std::string& file, int topic) override;

private:
    QWidget* owner() const;
    std::string named(const QString& picked) const;

    QPointer<QWidget> window_;
    std::function<std::string(const std::string&)> toolPath_;
    std::function<void()> manualMissing_;
    std::function<void()> messageShown_;
    std::string manual_;
    QString answer_;
    std::unique_ptr<HelpWindow> help_;
};

} // namespace desktop
